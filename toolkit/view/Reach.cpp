// Which views touches and screen readers can reach, and which are covered.
#include "toolkit/scroll/ScrollView.h"
#include "toolkit/view/View.h"
#include "toolkit/window/Window.h"

#include <algorithm>

namespace brimsound::toolkit {

namespace {

/// Views with a smaller alpha are neither visible nor touchable.
constexpr double faintest = 0.01;

bool isLeaf(Role role)
{
    switch (role) {
    case Role::Label:
    case Role::Slider:
    case Role::Switch:
    case Role::Button:
    case Role::Row:
    case Role::TextField:
        return true;
    default:
        return false;
    }
}

} // namespace

bool View::canBeTouched() const
{
    return !_hidden && _alpha >= faintest && _interactive && !ignoresTouches();
}

bool View::coversParent() const
{
    const auto area = _parent->bounds();
    return canBeTouched() && area.size.width > 0 && area.size.height > 0 && contains(_frame, area);
}

View* View::hitTest(Point point)
{
    if (!canBeTouched() || !contains(bounds(), point))
        return nullptr;
    // NOLINTNEXTLINE(modernize-loop-convert): from the front backwards
    for (auto front = _children.rbegin(); front != _children.rend(); ++front) {
        if (auto* hit = (*front)->hitTest((*front)->fromParent(point)))
            return hit;
    }
    return this;
}

std::optional<Point> View::placeToTouch()
{
    /// The distance from the edges of the view to the points near the edges that are tried, in points.
    constexpr double edge = 1;
    auto* around = window();
    if (!around)
        return std::nullopt;
    const auto part = partWithin(nullptr);
    const auto isFree = [&](Point place) {
        const auto* hit = around->hitTest(toWindow(place));
        return hit && hit->isWithin(*this) && (hit == this || !hit->takesTouches());
    };
    if (isFree(part.middle()))
        return part.middle();
    for (const double x : { part.left() + edge, part.middle().x, part.right() - edge }) {
        for (const double y : { part.top() + edge, part.middle().y, part.bottom() - edge }) {
            if (isFree({ x, y }))
                return Point { x, y };
        }
    }
    return std::nullopt;
}

bool View::comeIntoReach()
{
    auto* around = window();
    if (!around || around->isTouched())
        return false;
    around->layOutAll();
    scrollIntoView(*this);
    return placeToTouch().has_value();
}

bool View::isCoveredBySibling() const
{
    const auto& siblings = _parent->_children;
    const auto self = std::ranges::find(siblings, this, &Ref<View>::get);
    return std::any_of(self + 1, siblings.end(), [](const auto& front) { return front->coversParent(); });
}

/// Whether the view is visible and not covered by one of its siblings.
bool View::isShown() const
{
    return !_hidden && _alpha >= faintest && !ignoresTouches() && !isCoveredBySibling();
}

bool View::isReachable() const
{
    const auto* view = this;
    for (; view->_parent; view = view->_parent) {
        if (!view->isShown())
            return false;
    }
    return window() == view;
}

bool View::isCovered() const
{
    for (const auto* view = this; view->_parent; view = view->_parent) {
        if (view->isCoveredBySibling())
            return true;
    }
    return false;
}

std::vector<View*> View::accessibleChildren() const
{
    if (isLeaf(role()))
        return {};
    std::vector<View*> children;
    for (const auto& child : _children)
        children.push_back(child.get());
    std::ranges::stable_sort(children, [rightToLeft = isRightToLeft()](const View* a, const View* b) {
        const auto first = a->_frame;
        const auto second = b->_frame;
        if (first.top() != second.top())
            return first.top() < second.top();
        return rightToLeft ? first.right() > second.right() : first.left() < second.left();
    });
    std::vector<View*> found;
    for (auto* child : children) {
        if (!child->isShown())
            continue;
        if (child->role() != Role::None) {
            found.push_back(child);
            continue;
        }
        const auto inner = child->accessibleChildren();
        found.insert(found.end(), inner.begin(), inner.end());
    }
    return found;
}

View* View::accessibleParent() const
{
    auto* ancestor = _parent;
    while (ancestor && ancestor->role() == Role::None)
        ancestor = ancestor->_parent;
    return ancestor;
}

} // namespace brimsound::toolkit
