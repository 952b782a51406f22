#include "platform/desktop/UIKit/TextButton.h"

#include "platform/desktop/UIKit/ControlPeer.h"
#include "platform/desktop/UIKit/Theme.h"

namespace brimsound::desktop {

namespace {

struct TextButtonPeer : ControlPeer {
    std::string title;
    RetainPtr<UIFont> font;
    std::function<void()> onPress;

    void beginTracking(CGPoint, Pointer) override { setNeedsDisplay(*view); }
    void continueTracking(CGPoint) override { setNeedsDisplay(*view); }
    void cancelTracking() override { setNeedsDisplay(*view); }
    void endTracking(CGPoint point, bool) override
    {
        setNeedsDisplay(*view);
        // Without the margin that other controls grant: two buttons lie side by side here.
        if (contains(boundsOf(*this), point))
            static_cast<TextButton*>(view)->press();
    }

    Accessible accessible() const override
    {
        return { .role = AccessibleRole::Button, .name = title, .focusable = true };
    }

    void draw(Canvas& canvas) const override
    {
        const auto bounds = boundsOf(*this);
        if (isTracking && isTouchInside)
            canvas.fillRect(bounds, theme::rowPressed);
        canvas.drawLine(title, bounds, *font, theme::tint, NSTextAlignment::Center);
    }
};

TextButtonPeer& peerOf(const TextButton& button)
{
    return static_cast<TextButtonPeer&>(button.peer());
}

} // namespace

TextButton::TextButton(const std::string& title, RetainPtr<UIFont> font, std::function<void()> onPress)
    : UIControl(new TextButtonPeer)
{
    auto& peer = peerOf(*this);
    peer.title = title;
    peer.font = std::move(font);
    peer.onPress = std::move(onPress);
}

const std::string& TextButton::title() const
{
    return peerOf(*this).title;
}

void TextButton::press()
{
    // What is pressed may take the button away.
    const auto kept = brimsound::retain(this);
    if (const auto onPress = peerOf(*this).onPress)
        onPress();
}

} // namespace brimsound::desktop
