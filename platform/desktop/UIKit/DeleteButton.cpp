#include "platform/desktop/UIKit/DeleteButton.h"

#include "platform/desktop/UIKit/ControlPeer.h"
#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/Theme.h"

namespace brimsound::desktop {

namespace {

constexpr auto title = "Delete";

struct DeleteButtonPeer : ControlPeer {
    const RetainPtr<UIFont> font = UIFont::systemFontOfSize(theme::textSize);

    DeleteButtonPeer() { clipsToBounds = true; }

    void beginTracking(CGPoint, Pointer) override { setNeedsDisplay(*view); }
    void continueTracking(CGPoint) override { setNeedsDisplay(*view); }
    void cancelTracking() override { setNeedsDisplay(*view); }
    void endTracking(CGPoint point, bool) override
    {
        setNeedsDisplay(*view);
        // Without the margin that other controls grant: what lies around it stands for changing one's mind.
        auto* table = dynamic_cast<UITableView*>(view->superview());
        if (table && contains(boundsOf(*this), point))
            peerOf(*table).deleteSwipedRow();
    }

    Accessible accessible() const override { return { .role = AccessibleRole::Button, .name = title }; }

    void draw(Canvas& canvas) const override
    {
        const auto size = shownFrame().size;
        canvas.fillRect(
            { {}, size }, isTracking && isTouchInside ? theme::destructivePressed : theme::destructive);
        // The title comes along with the edge of the row that uncovers it.
        const auto place = CGRectMake(0, 0, DeleteButton::width, size.height);
        canvas.drawLine(title, place, *font, theme::rowBackground, NSTextAlignment::Center);
    }
};

} // namespace

DeleteButton::DeleteButton()
    : UIControl(new DeleteButtonPeer)
{
}

} // namespace brimsound::desktop
