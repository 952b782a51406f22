#include "platform/desktop/UIKit/Escape.h"

#include "platform/UIKit/UIButton.h"
#include "platform/desktop/UIKit/Overlay.h"
#include "platform/desktop/UIKit/Press.h"
#include "platform/desktop/UIKit/ViewPeer.h"

namespace brimsound::desktop {

bool closeFront(UIView& view)
{
    const auto views = view.subviews();
    // NOLINTNEXTLINE(modernize-loop-convert): from the front backwards
    for (auto front = views.rbegin(); front != views.rend(); ++front) {
        if (!coversSuperview(**front))
            continue;
        const auto kept = retain(front->get());
        if (auto* overlay = dynamic_cast<Overlay*>(kept.get())) {
            overlay->escape();
            return true;
        }
        if (dynamic_cast<const UIButton*>(kept.get()))
            return pressBeside(*kept);
        return closeFront(*kept);
    }
    return false;
}

} // namespace brimsound::desktop
