#include "platform/desktop/UIKit/Press.h"

#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

Window* windowOf(UIView& view)
{
    auto* ancestor = &view;
    while (auto* superview = ancestor->superview())
        ancestor = superview;
    return dynamic_cast<Window*>(ancestor);
}

CGRect rectIn(const UIView& ancestor, const UIView& view)
{
    const auto bounds = view.bounds();
    return { convertFromWindow(convertToWindow(bounds.origin, view), ancestor), bounds.size };
}

CGPoint middleOf(const CGRect& rect)
{
    return { rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2 };
}

bool isWithin(const UIView* view, const UIView& ancestor)
{
    while (view && view != &ancestor)
        view = view->superview();
    return view != nullptr;
}

/// The window of the view, when a touch at the point, given in the view's own coordinates, reaches it.
RetainPtr<Window> windowToTouch(UIView& view, CGPoint point)
{
    auto* window = windowOf(view);
    if (!window || window->isTouched())
        return nullptr;
    window->layOut();
    if (auto* scrollView = enclosingScrollView(view))
        scrollPeerOf(*scrollView).scrollIntoView(rectIn(*scrollView, view));
    window->layOut();
    return isWithin(hitTest(*window, convertToWindow(point, view)), view) ? retain(window) : nullptr;
}

} // namespace

bool press(UIView& view)
{
    // What is pressed may take the view and the window away.
    const auto kept = retain(&view);
    const auto window = windowToTouch(view, middleOf(view.bounds()));
    if (!window)
        return false;
    const auto at = convertToWindow(middleOf(view.bounds()), view);
    window->touchDown({ at, Pointer::Mouse });
    window->touchUp(at);
    return true;
}

bool slideTo(UISlider& slider, double value)
{
    const auto kept = retain(&slider);
    const auto window = windowToTouch(slider, peerOf(slider).thumbCentre(slider.value()));
    if (!window)
        return false;
    const auto place
        = [&](double shown) { return convertToWindow(peerOf(slider).thumbCentre(shown), slider); };
    const double lowest = slider.minimumValue();
    const double highest = slider.maximumValue();
    const auto target = place(std::clamp(value, lowest, highest));
    window->touchDown({ place(slider.value()), Pointer::Mouse });
    window->touchMove(target);
    window->touchUp(target);
    return true;
}

void scrollPages(UIView& scrollView, double pages)
{
    scrollPeerOf(scrollView).scrollBy(pages * scrollView.bounds().size.height);
    if (auto* window = windowOf(scrollView))
        window->layOut();
}

} // namespace brimsound::desktop
