#pragma once

#include "toolkit/control/Control.h"

#include <functional>
#include <string>

namespace brimsound::toolkit {

/// An invisible button, placed over or behind other views. It is an element for screen readers only with a
/// label.
class Button : public Control {
public:
    using Control::Control;

    Role role() const override { return label().empty() ? Role::None : Role::Button; }
};

/// A button with a title, in another color while it is pressed. It acts only when it is released within its
/// edges, because other buttons may be right next to it.
class TitledButton : public Control {
public:
    TitledButton(std::string title, Font, std::function<void()> onPress);

    const std::string& title() const { return _title; }

    Role role() const override { return Role::Button; }
    Accessible accessible() const override;

protected:
    const Font& font() const { return _font; }
    void setTitle(std::string);
    bool looksPressed() const { return isHeld() && isTouchInside(); }

    double touchMargin() const override { return 0; }
    void trackingBegan(Point, Pointer) override { setNeedsDisplay(); }
    void trackingMoved(Point) override { setNeedsDisplay(); }
    void trackingEnded() override { setNeedsDisplay(); }
    void pressed() override;

private:
    std::string _title;
    const Font _font;
    const std::function<void()> _onPress;
};

/// A title in the theme's tint color, on gray while it is pressed.
class TextButton : public TitledButton {
public:
    using TitledButton::TitledButton;

    void draw(Canvas&) const override;
};

} // namespace brimsound::toolkit
