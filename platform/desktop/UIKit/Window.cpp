#include "platform/desktop/UIKit/Window.h"

#include "platform/desktop/UIKit/ScrollPeer.h"

namespace brimsound::desktop {

namespace {

Window* lastWindow = nullptr;

} // namespace

Window* keyWindow()
{
    return lastWindow;
}

Window::Window(CGSize size)
    : UIView(CGRectMake(0, 0, size.width, size.height))
    , _alerts(*this)
{
    lastWindow = this;
}

Window::~Window()
{
    if (lastWindow == this)
        lastWindow = nullptr;
}

Overlay* Window::frontOverlay() const
{
    // NOLINTNEXTLINE(modernize-loop-convert): from the front backwards
    for (auto front = subviews().rbegin(); front != subviews().rend(); ++front) {
        auto* overlay = dynamic_cast<Overlay*>(front->get());
        if (overlay && !peerOf(*overlay).ignoresTouches())
            return overlay;
    }
    return nullptr;
}

bool Window::keyPressed(Key key)
{
    auto* overlay = frontOverlay();
    if (overlay)
        overlay->keyPressed(key);
    return overlay != nullptr;
}

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
