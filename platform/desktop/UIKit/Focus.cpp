#include "platform/desktop/UIKit/Focus.h"

#include "platform/desktop/UIKit/Escape.h"
#include "platform/desktop/UIKit/Press.h"
#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/TabOrder.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>
#include <utility>

namespace brimsound::desktop {

Focus::Focus(Window& window)
    : _window(window)
{
}

UIView* Focus::view() const
{
    const auto last
        = std::find_if(_views.rbegin(), _views.rend(), [](const auto* view) { return isReachable(*view); });
    return last == _views.rend() ? nullptr : *last;
}

UIView* Focus::part() const
{
    const auto* focused = view();
    return focused ? &peerOf(*focused).focusedPart() : nullptr;
}

void Focus::giveTo(UIView& view)
{
    std::erase_if(_views, [&](const UIView* former) {
        return isReachable(*former) || former == &view
            || (view.canBecomeFirstResponder() && former->canBecomeFirstResponder());
    });
    _views.push_back(&view);
    refresh();
}

void Focus::takeFrom(UIView& view)
{
    std::erase(_views, &view);
    refresh();
}

bool Focus::isGivenTo(const UIView& view) const
{
    return std::ranges::find(_views, &view) != _views.end();
}

bool Focus::moveTo(UIView& view)
{
    auto* stop = tabStopAround(view);
    if (!stop)
        return false;
    peerOf(*stop).focusOn(view);
    peerOf(*stop).scrollToFocus();
    giveTo(*stop);
    return true;
}

bool Focus::keyPressed(Key key, KeyStroke stroke)
{
    if (key == Key::Escape)
        return stroke == KeyStroke::First && closeFront(_window);
    if (key == Key::Tab || key == Key::Backtab)
        return moveOn(key == Key::Tab ? Direction::Next : Direction::Previous);

    const auto focused = retain(view());
    if (focused)
        showRing(true);
    if (focused && peerOf(*focused).keyPressed(key, stroke)) {
        _heldKey = key;
        _keyed = focused;
        return true;
    }
    switch (key) {
    case Key::Return:
    case Key::Space:
        // A key that is held presses once.
        return focused && (stroke == KeyStroke::Repeated || press(*focused));
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
    if (view && isWithin(view.get(), _window))
        peerOf(*view).keysReleased();
    else if (view)
        _window.touchCancel();
}

void Focus::touched(UIView& hit)
{
    showRing(false);
    // A text field keeps the keyboard, and takes it when the touch has ended in it.
    auto* focused = view();
    auto* stop = tabStopAround(hit);
    if (!stop || stop->canBecomeFirstResponder() || (focused && focused->canBecomeFirstResponder()))
        return;
    peerOf(*stop).focusOn(hit);
    giveTo(*stop);
}

void Focus::forgetWithin(const UIView& tree)
{
    std::erase_if(_views, [&](const auto* view) { return isWithin(view, tree); });
    if (!isWithin(_known, tree))
        return;
    tell(*std::exchange(_known, nullptr), false);
    if (_window.onFocusMoved)
        _window.onFocusMoved();
}

void Focus::refresh()
{
    // What covers the view that had the keyboard gets it, so that keys and readers go on there.
    if (!view() && std::ranges::any_of(_views, [](const auto* former) { return isCovered(*former); })) {
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
        accessibleChanged(peerOf(*now).focusedPart(), AccessibleChange::FocusMoved);
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
    auto* scrollView = focused ? enclosingScrollView(*focused) : scrollViewInFront(_window);
    if (!scrollView)
        return false;
    auto& peer = scrollPeerOf(*scrollView);
    switch (key) {
    case Key::PageUp:
        scrollPages(*scrollView, -1);
        return true;
    case Key::PageDown:
        scrollPages(*scrollView, 1);
        return true;
    case Key::Home:
        peer.scrollTo(0);
        return true;
    case Key::End:
        peer.scrollTo(peer.contentHeight());
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

void Focus::tell(UIView& view, bool hasKeyboard) const
{
    auto& peer = peerOf(view);
    peer.hasKeyboard = hasKeyboard;
    peer.showsFocus = hasKeyboard && _showsRing;
    setNeedsDisplay(view);
}

} // namespace brimsound::desktop
