#include "platform/desktop/UIKit/Window.h"

#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"

#include <utility>

namespace brimsound::desktop {

namespace {

Window* lastWindow = nullptr;

} // namespace

const Window* windowOf(const UIView& view)
{
    const auto* ancestor = &view;
    while (const auto* superview = ancestor->superview())
        ancestor = superview;
    return dynamic_cast<const Window*>(ancestor);
}

Window* windowOf(UIView& view)
{
    return const_cast<Window*>(windowOf(std::as_const(view)));
}

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

bool Window::keyPressed(Key key, KeyStroke stroke)
{
    layOut();
    return _focus.keyPressed(key, stroke);
}

void Window::keyReleased(Key key)
{
    _focus.keyReleased(key);
}

void Window::releaseKeys()
{
    _focus.releaseKeys();
}

bool Window::typeText(const std::string& text)
{
    layOut();
    const auto* field = dynamic_cast<const UITextField*>(_focus.view());
    if (field)
        peerOf(*field).type(text);
    return field != nullptr;
}

void Window::touchDown(const Touch& touch)
{
    layOut();
    const bool isPointed = touch.pointer != Pointer::Keyboard;
    if (isPointed)
        releaseKeys();
    auto* hit = isTouched() ? nullptr : hitTest(*this, touch.location);
    if (!hit)
        return;
    if (isPointed)
        _focus.touched(*hit);
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
    _focus.refresh();
}

void Window::invalidate(const CGRect& part) const
{
    if (onInvalidate)
        onInvalidate(part);
}

} // namespace brimsound::desktop
