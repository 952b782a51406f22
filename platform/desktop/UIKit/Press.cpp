#include "platform/desktop/UIKit/Press.h"

#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

/// How far from the edges of a view it is touched beside what lies over it, in points.
constexpr double edge = 1;

CGPoint middleOf(const CGRect& rect)
{
    return { rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2 };
}

/// The window of the view, when a touch at the point, given in the view's own coordinates, reaches it.
RetainPtr<Window> windowToTouch(UIView& view, CGPoint point)
{
    auto* window = windowOf(view);
    if (!window || window->isTouched())
        return nullptr;
    window->layOut();
    scrollIntoView(view);
    return isWithin(hitTest(*window, convertToWindow(point, view)), view) ? retain(window) : nullptr;
}

CGPoint thumbOf(const UISlider& slider, double value)
{
    return peerOf(slider).thumbCentre(value);
}

/// Down and up.
bool touch(UIView& view, CGPoint point)
{
    const auto window = windowToTouch(view, point);
    if (!window)
        return false;
    const auto at = convertToWindow(point, view);
    window->touchDown({ at, Pointer::Keyboard });
    window->touchUp(at);
    return true;
}

} // namespace

bool press(UIView& view)
{
    // What is pressed may take the view and the window away.
    const auto kept = retain(&view);
    scrollIntoView(view);
    return touch(view, middleOf(partWithin(view, nullptr)));
}

bool pressBeside(UIView& view)
{
    const auto kept = retain(&view);
    const auto [width, height] = view.bounds().size;
    for (const double x : { edge, width / 2, width - edge }) {
        for (const double y : { edge, height / 2, height - edge }) {
            auto* window = windowOf(view);
            if (window && hitTest(*window, convertToWindow({ x, y }, view)) == &view)
                return touch(view, { x, y });
        }
    }
    return false;
}

bool takeThumb(UISlider& slider)
{
    scrollIntoView(slider);
    const auto window = windowToTouch(slider, thumbOf(slider, slider.value()));
    if (window)
        window->touchDown({ convertToWindow(thumbOf(slider, slider.value()), slider), Pointer::Keyboard });
    return window != nullptr;
}

void dragThumb(UISlider& slider, double value)
{
    const auto window = retain(windowOf(slider));
    if (!window)
        return;
    const double wanted = std::clamp<double>(value, slider.minimumValue(), slider.maximumValue());
    window->touchMove(convertToWindow(thumbOf(slider, wanted), slider));
}

void releaseThumb(UISlider& slider)
{
    const auto window = retain(windowOf(slider));
    if (window)
        window->touchUp(convertToWindow(thumbOf(slider, slider.value()), slider));
}

bool slideTo(UISlider& slider, double value)
{
    const auto kept = retain(&slider);
    if (!takeThumb(slider))
        return false;
    dragThumb(slider, value);
    releaseThumb(slider);
    return true;
}

bool deleteRow(UITableViewCell& cell)
{
    const auto kept = retain(&cell);
    const auto window = windowToTouch(cell, middleOf(cell.bounds()));
    const auto* table = window ? dynamic_cast<UITableView*>(cell.superview()) : nullptr;
    const auto row = table ? peerOf(*table).rowOf(cell) : std::nullopt;
    return row && peerOf(*table).deleteRow(*row);
}

void scrollPages(UIView& scrollView, double pages)
{
    scrollPeerOf(scrollView).scrollBy(pages * scrollView.bounds().size.height);
    if (auto* window = windowOf(scrollView))
        window->layOut();
}

} // namespace brimsound::desktop
