#pragma once

#include "toolkit/control/Button.h"

#include <functional>
#include <string>
#include <vector>

namespace brimsound::toolkit {

/// A white card with a message and, below it, the buttons: two side by side, any other number one below the
/// other.
class Alert : public View {
public:
    /// The first button is the cancel button: it has the keyboard focus at first, and Escape presses it. The
    /// title may be empty.
    Alert(std::string title, std::string message, const std::vector<std::string>& buttonTitles);

    const std::string& title() const { return _title; }
    const std::string& message() const { return _message; }
    const std::vector<Ref<TextButton>>& buttons() const { return _buttons; }
    TextButton& cancelButton() const { return *_buttons.front(); }
    std::vector<std::string> buttonTitles() const;

    /// Called when the alert has appeared.
    std::function<void()> onShown;
    /// Called once, with the button's index, when a button was pressed and the alert fades out.
    std::function<void(std::size_t button)> onAnswer;

    /// The size of the alert in a window of that size, in points. Texts that do not fit are cut off.
    Size sizeIn(Size window) const;

    void layOut() override;
    void draw(Canvas&) const override;
    Role role() const override { return Role::Alert; }
    Accessible accessible() const override;

private:
    void answer(std::size_t button);
    // In an alert of that width.
    Rect titleRect(double width) const;
    Rect messageRect(double width) const;
    double topOfButtons() const;
    bool hasButtonsSideBySide() const { return _buttons.size() == 2; }

    const std::string _title;
    const std::string _message;
    std::vector<Ref<TextButton>> _buttons;
};

} // namespace brimsound::toolkit
