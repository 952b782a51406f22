// What stands behind a UIAlertView.
#pragma once

#include "platform/UIKit/UIAlertView.h"
#include "platform/desktop/UIKit/TextButton.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <string>
#include <vector>

namespace brimsound::desktop {

/// A white card with the message and, below it, the buttons: side by side when there are two, else one below
/// the other.
struct AlertPeer : ViewPeer {
    std::string title;
    std::string message;
    UIAlertViewDelegate* delegate = nullptr;
    std::vector<RetainPtr<TextButton>> buttons;

    AlertPeer();

    void draw(Canvas&) const override;
    Accessible accessible() const override;
    /// It has the keyboard at first, and is what Escape presses.
    TextButton& cancelButton() const { return *buttons.front(); }

    UIAlertView& alert() const { return static_cast<UIAlertView&>(*view); }
    /// Takes the alert away, then tells the delegate.
    void answer(std::size_t buttonIndex);
    // In a card of that width.
    CGRect titleRect(double width) const;
    CGRect messageRect(double width) const;
    double topOfButtons() const;
    bool hasButtonsSideBySide() const { return buttons.size() == 2; }
};

AlertPeer& peerOf(const UIAlertView&);

/// The size in points that the alert's texts and buttons take in a window of that size. Where the texts take
/// more than it has, they are cut off.
CGSize sizeOf(const UIAlertView&, CGSize window);

std::vector<std::string> buttonTitlesOf(const UIAlertView&);

} // namespace brimsound::desktop
