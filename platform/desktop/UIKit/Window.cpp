#include "platform/desktop/UIKit/Window.h"

#include "platform/desktop/UIKit/ScrollPeer.h"

namespace brimsound::desktop {

Window::Window(CGSize size)
    : UIView(CGRectMake(0, 0, size.width, size.height))
{
}

Window::~Window() = default;

void Window::touchDown(const Touch& touch)
{
    layOut();
    if (auto* hit = isTouched() ? nullptr : hitTest(*this, touch.location))
        _touch.begin(*hit, touch);
}

void Window::touchMove(CGPoint location)
{
    _touch.move(location);
}

void Window::touchUp(CGPoint location)
{
    _touch.end(location);
}

void Window::touchCancel()
{
    _touch.cancel();
}

void Window::scroll(CGPoint at, CGPoint by)
{
    layOut();
    if (auto* hit = hitTest(*this, at)) {
        if (auto* scrollView = enclosingScrollView(*hit))
            scrollPeerOf(*scrollView).scrollBy(by.y);
    }
}

void Window::layOut()
{
    layOutTree(*this);
}

void Window::invalidate(const CGRect& part) const
{
    if (onInvalidate)
        onInvalidate(part);
}

} // namespace brimsound::desktop
