#include "toolkit/view/View.h"

#include "toolkit/scroll/ScrollView.h"
#include "toolkit/view/Transition.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

View::View(const Rect& frame)
    : _frame(frame)
{
}

View::~View()
{
    for (const auto& child : _children)
        child->_parent = nullptr;
    if (onDestroyed)
        onDestroyed();
}

void View::add(View& view)
{
    insert(view, _children.size());
}

void View::insert(View& view, std::size_t place)
{
    const auto kept = keep(&view);
    view.removeFromParent();
    place = std::min(place, _children.size());
    _children.insert(_children.begin() + static_cast<std::ptrdiff_t>(place), kept);
    view._parent = this;
    view.reachChanged();
    setNeedsLayout();
    view.setNeedsDisplay();
    view.accessibleChanged(AccessibleChange::Shown);
}

void View::removeFromParent()
{
    if (!_parent)
        return;
    accessibleChanged(AccessibleChange::WillHide);
    if (auto* around = window())
        around->focus().forgetWithin(*this);
    setNeedsDisplay();
    const auto kept = keep(this);
    reachChanged();
    auto* former = std::exchange(_parent, nullptr);
    std::erase(former->_children, kept);
}

bool View::isWithin(const View& ancestor) const
{
    const auto* view = this;
    while (view && view != &ancestor)
        view = view->_parent;
    return view != nullptr;
}

View* View::withTag(long tag)
{
    if (_tag == tag)
        return this;
    for (const auto& child : _children) {
        if (auto* found = child->withTag(tag))
            return found;
    }
    return nullptr;
}

Window* View::window() const
{
    auto* root = const_cast<View*>(this);
    while (root->_parent)
        root = root->_parent;
    return root->asWindow();
}

bool View::isRightToLeft() const
{
    const auto* around = window();
    return around && around->layoutDirection() == LayoutDirection::RightToLeft;
}

Rect View::inLayoutDirection(const Rect& rect) const
{
    return isRightToLeft() ? mirrored(rect, _frame.size.width) : rect;
}

Alignment View::naturalAlignment() const
{
    return isRightToLeft() ? Alignment::Right : Alignment::Left;
}

ScrollView* View::enclosingScrollView() const
{
    for (auto* view = const_cast<View*>(this); view; view = view->_parent) {
        if (auto* scrollView = view->asScrollView())
            return scrollView;
    }
    return nullptr;
}

void View::setFrame(const Rect& frame)
{
    if (_frame == frame)
        return;
    setNeedsDisplay();
    Transition::frame(*this);
    const auto before = std::exchange(_frame, frame).size;
    reachChanged();
    if (before != frame.size) {
        setNeedsLayout();
        resizeChildren(before);
    }
    setNeedsDisplay();
}

void View::resizeChildren(Size before)
{
    const auto follows = [](const auto& child) { return child->_followsWidth || child->_followsHeight; };
    // This is the case for most views.
    if (std::ranges::none_of(_children, follows))
        return;
    // Resizing a child may change the list.
    const auto children = _children;
    for (const auto& child : children) {
        auto size = child->_frame.size;
        if (child->_followsWidth)
            size.width += _frame.size.width - before.width;
        if (child->_followsHeight)
            size.height += _frame.size.height - before.height;
        if (follows(child))
            child->setFrame({ child->_frame.origin, size });
    }
}

void View::setOrigin(Point origin)
{
    if (_origin == origin)
        return;
    _origin = origin;
    reachChanged();
    setNeedsLayout();
    setNeedsDisplay();
}

void View::setFollowsParent(bool width, bool height)
{
    _followsWidth = width;
    _followsHeight = height;
}

Point View::fromWindow(Point point) const
{
    return _parent ? fromParent(_parent->fromWindow(point)) : point;
}

Point View::toWindow(Point point) const
{
    return _parent ? _parent->toWindow(toParent(point)) : point;
}

Rect View::partWithin(const View* outermost) const
{
    auto part = bounds();
    // The origin of the view's coordinates in those of the current ancestor.
    Point start;
    for (const auto* view = this; view != outermost && view->_parent; view = view->_parent) {
        start = view->toParent(start);
        part = intersection(part, offset(view->_parent->bounds(), Point {} - start));
    }
    return part;
}

void View::setBackground(std::optional<Color> color)
{
    const bool shows = color.value_or(transparent) != _background.value_or(transparent);
    if (shows)
        Transition::background(*this);
    _background = color;
    if (shows)
        setNeedsDisplay();
}

void View::setAlpha(double alpha)
{
    alpha = std::clamp(alpha, 0.0, 1.0);
    if (_alpha == alpha)
        return;
    Transition::alpha(*this);
    _alpha = alpha;
    setNeedsDisplay();
}

void View::setCornerRadius(double radius)
{
    if (std::exchange(_cornerRadius, radius) != radius)
        setNeedsDisplay();
}

void View::setHidden(bool hidden)
{
    if (_hidden == hidden)
        return;
    // Both before and after, because it does nothing while the view is hidden.
    setNeedsDisplay();
    _hidden = hidden;
    reachChanged();
    setNeedsDisplay();
}

void View::setClips(bool clips)
{
    if (_clips == clips)
        return;
    // Both before and after, because a view that clips draws on a smaller area.
    setNeedsDisplay();
    _clips = clips;
    reachChanged();
    setNeedsDisplay();
}

void View::layOutIfNeeded()
{
    if (std::exchange(_needsLayout, false))
        layOut();
    // A layout may add or remove views.
    const auto children = _children;
    for (const auto& child : children)
        child->layOutIfNeeded();
}

void View::scrollToFocus()
{
    scrollIntoView(*this);
}

void View::accessibleChanged(AccessibleChange change)
{
    const auto* around = window();
    if (around && around->onAccessibleChange)
        around->onAccessibleChange(*this, change);
}

} // namespace brimsound::toolkit
