#include "toolkit/window/Escape.h"

#include "toolkit/control/Button.h"
#include "toolkit/window/Overlay.h"

#include <algorithm>

namespace brimsound::toolkit {

bool closeFront(View& view)
{
    const auto& children = view.children();
    const auto front = std::find_if(
        children.rbegin(), children.rend(), [](const auto& child) { return child->coversParent(); });
    if (front == children.rend())
        return false;
    // The action may remove the view.
    const auto covering = keep(front->get());
    if (auto* overlay = dynamic_cast<Overlay*>(covering.get())) {
        overlay->escape();
        return true;
    }
    if (auto* button = dynamic_cast<Button*>(covering.get()))
        return button->press();
    return closeFront(*covering);
}

} // namespace brimsound::toolkit
