#include "toolkit/window/Window.h"

#include "toolkit/scroll/ScrollView.h"
#include "toolkit/text/TextField.h"

namespace brimsound::toolkit {

namespace {

Window* lastWindow = nullptr;

} // namespace

Window* keyWindow()
{
    return lastWindow;
}

Window::Window(Size size, LayoutDirection direction)
    : View({ {}, size })
    , _layoutDirection(direction)
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
    layOutAll();
    return _focus.keyPressed(key, stroke);
}

bool Window::typeText(const std::string& text)
{
    layOutAll();
    auto* field = dynamic_cast<TextField*>(_focus.view());
    if (field)
        field->type(text);
    return field != nullptr;
}

void Window::touchDown(const Touch& touch)
{
    layOutAll();
    releaseKeys();
    auto* hit = isTouched() ? nullptr : hitTest(touch.location);
    if (!hit)
        return;
    _focus.touched(*hit);
    _touch.begin(*hit, touch);
}

bool Window::hold(View& view)
{
    if (!view.comeIntoReach())
        return false;
    _touch.hold(view);
    return true;
}

void Window::scroll(Point at, Point by)
{
    layOutAll();
    if (auto* hit = hitTest(at)) {
        if (auto* scrollView = hit->enclosingScrollView())
            scrollView->scrollBy(by.y);
    }
}

void Window::layOutAll()
{
    layOutIfNeeded();
    _focus.refresh();
}

void Window::invalidate(const Rect& part) const
{
    if (onInvalidate)
        onInvalidate(part);
}

} // namespace brimsound::toolkit
