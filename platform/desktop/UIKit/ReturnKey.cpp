#include "platform/desktop/UIKit/ReturnKey.h"

#include "platform/desktop/UIKit/Text.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"

namespace brimsound::desktop {

namespace {

constexpr double titleSize = 15;
/// Between the text and the title.
constexpr double gap = 8;
constexpr double pressedAlpha = 0.3;

const UIFont& titleFont()
{
    static const auto font = UIFont::fontWithNameSize("HelveticaNeue-SemiBold", titleSize);
    return *font;
}

struct ReturnKeyPeer : ControlPeer {
    TextFieldPeer& field() const { return peerOf(static_cast<UITextField&>(*view->superview())); }
    std::string title() const { return field().returnKeyType == UIReturnKeyType::Done ? "Done" : "Return"; }

    bool ignoresTouches() const override { return !field().hasKeyboard; }
    void beginTracking(CGPoint, Pointer) override { setNeedsDisplay(*view); }
    void continueTracking(CGPoint) override { setNeedsDisplay(*view); }
    void cancelTracking() override { setNeedsDisplay(*view); }
    void endTracking(CGPoint point, bool) override
    {
        setNeedsDisplay(*view);
        // Without the margin that other controls grant: the text lies beside it.
        if (contains(boundsOf(*this), point))
            field().confirm();
    }

    Accessible accessible() const override { return { .role = AccessibleRole::Button, .name = title() }; }

    void draw(Canvas& canvas) const override
    {
        if (!field().hasKeyboard)
            return;
        const auto color = isTracking && isTouchInside ? theme::tint.withAlpha(pressedAlpha) : theme::tint;
        auto place = boundsOf(*this);
        place.origin.x += gap;
        place.size.width -= gap;
        canvas.drawLine(title(), place, titleFont(), color, NSTextAlignment::Right);
    }
};

} // namespace

ReturnKey::ReturnKey()
    : UIControl(new ReturnKeyPeer)
{
}

std::string ReturnKey::title() const
{
    return static_cast<ReturnKeyPeer&>(peer()).title();
}

double ReturnKey::width() const
{
    // A little wider than the title, as one that just fits may end in an ellipsis.
    return gap + widthOfLine(title(), titleFont()) + 1;
}

} // namespace brimsound::desktop
