#include "toolkit/window/Focus.h"

#include "toolkit/scroll/ScrollView.h"
#include "toolkit/window/Escape.h"
#include "toolkit/window/TabOrder.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

Focus::Focus(Window& window)
    : _window(window)
{
}

View* Focus::view() const
{
    const auto last
        = std::find_if(_views.rbegin(), _views.rend(), [](const auto* view) { return view->isReachable(); });
    return last == _views.rend() ? nullptr : *last;
}

View* Focus::part() const
{
    auto* focused = view();
    return focused ? &focused->focusedPart() : nullptr;
}

void Focus::giveTo(View& view)
{
    std::erase_if(_views, [&](const View* former) {
        return former->isReachable() || former == &view || (view.takesText() && former->takesText());
    });
    _views.push_back(&view);
    refresh();
}

void Focus::takeFrom(View& view)
{
    std::erase(_views, &view);
    refresh();
}

bool Focus::isGivenTo(const View& view) const
{
    return std::ranges::find(_views, &view) != _views.end();
}

bool Focus::moveTo(View& view)
{
    auto* stop = tabStopAround(view);
    if (!stop)
        return false;
    stop->focusOn(view);
    stop->scrollToFocus();
    giveTo(*stop);
    return true;
}

bool Focus::keyPressed(Key key, KeyStroke stroke)
{
    if (key == Key::Escape)
        return stroke == KeyStroke::First && closeFront(_window);
    if (key == Key::Tab || key == Key::Backtab)
        return moveOn(key == Key::Tab ? Direction::Next : Direction::Previous);

    const auto focused = keep(view());
    if (focused)
        showRing(true);
    if (focused && focused->keyPressed(key, stroke)) {
        _heldKey = key;
        _keyed = focused;
        return true;
    }
    switch (key) {
    case Key::Return:
    case Key::Space:
        // A repeated key does not press again.
        return focused && (stroke == KeyStroke::Repeated || focused->activate());
    case Key::Left:
    case Key::Up:
        return moveOn(Direction::Previous);
    case Key::Right:
    case Key::Down:
        return moveOn(Direction::Next);
    default:
        return scroll(key);
    }
}

void Focus::keyReleased(Key key)
{
    if (key == _heldKey)
        releaseKeys();
}

void Focus::releaseKeys()
{
    _heldKey.reset();
    const auto view = std::exchange(_keyed, nullptr);
    if (view && view->isWithin(_window))
        view->keysReleased();
    else if (view)
        _window.touchCancel();
}

void Focus::touched(View& hit)
{
    showRing(false);
    // A text field keeps the focus, and gets it when a touch ends in it.
    auto* focused = view();
    auto* stop = tabStopAround(hit);
    if (!stop || stop->takesText() || (focused && focused->takesText()))
        return;
    stop->focusOn(hit);
    giveTo(*stop);
}

void Focus::forgetWithin(const View& tree)
{
    std::erase_if(_views, [&](const auto* view) { return view->isWithin(tree); });
    if (!_known || !_known->isWithin(tree))
        return;
    tell(*std::exchange(_known, nullptr), false);
    if (_window.onFocusMoved)
        _window.onFocusMoved();
}

void Focus::refresh()
{
    // What covers the focused view gets the focus, for keys and screen readers.
    if (!view() && std::ranges::any_of(_views, [](const auto* former) { return former->isCovered(); })) {
        if (auto* stop = tabStopBeside(_window, nullptr, Direction::Next)) {
            giveTo(*stop);
            return;
        }
    }
    auto* now = view();
    if (_keyed && _keyed != now)
        releaseKeys();
    auto* before = std::exchange(_known, now);
    if (before == now)
        return;
    if (before)
        tell(*before, false);
    if (now) {
        tell(*now, true);
        now->focusedPart().accessibleChanged(AccessibleChange::FocusMoved);
    }
    if (_window.onFocusMoved)
        _window.onFocusMoved();
}

bool Focus::moveOn(Direction direction)
{
    releaseKeys();
    auto* next = tabStopBeside(_window, view(), direction);
    if (!next)
        return false;
    showRing(true);
    return moveTo(*next);
}

bool Focus::scroll(Key key)
{
    auto* focused = view();
    auto* scrollView = focused ? focused->enclosingScrollView() : scrollViewInFront(_window);
    if (!scrollView)
        return false;
    switch (key) {
    case Key::PageUp:
        scrollView->scrollPages(-1);
        return true;
    case Key::PageDown:
        scrollView->scrollPages(1);
        return true;
    case Key::Home:
        scrollView->scrollTo(0);
        return true;
    case Key::End:
        scrollView->scrollToEnd();
        return true;
    default:
        return false;
    }
}

void Focus::showRing(bool shows)
{
    if (std::exchange(_showsRing, shows) != shows && _known)
        tell(*_known, true);
}

void Focus::tell(View& view, bool hasKeyboard) const
{
    view._showsFocus = hasKeyboard && _showsRing;
    if (std::exchange(view._hasKeyboard, hasKeyboard) != hasKeyboard)
        view.keyboardChanged();
    view.setNeedsDisplay();
}

} // namespace brimsound::toolkit
