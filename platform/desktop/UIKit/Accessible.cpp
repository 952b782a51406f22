#include "platform/desktop/UIKit/Accessible.h"

#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISlider.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

// Views fainter than this are not seen.
constexpr double faintest = 0.01;

bool isLeaf(AccessibleRole role)
{
    switch (role) {
    case AccessibleRole::Label:
    case AccessibleRole::Slider:
    case AccessibleRole::Switch:
    case AccessibleRole::Button:
    case AccessibleRole::Row:
    case AccessibleRole::TextField:
        return true;
    case AccessibleRole::None:
    case AccessibleRole::Table:
    case AccessibleRole::List:
    case AccessibleRole::Alert:
    case AccessibleRole::Dialog:
        return false;
    }
    return false;
}

bool isCoveredBySibling(const UIView& view)
{
    const auto& siblings = view.superview()->subviews();
    const auto self = std::ranges::find(siblings, &view, &RetainPtr<UIView>::get);
    return std::any_of(self + 1, siblings.end(), [](const auto& front) { return coversSuperview(*front); });
}

/// Whether the view shows among its siblings and none of them covers it.
bool isShown(const UIView& view)
{
    const auto& peer = peerOf(view);
    return !peer.hidden && peer.alpha >= faintest && !peer.ignoresTouches() && !isCoveredBySibling(view);
}

void addAccessible(UIView& view, std::vector<UIView*>& found)
{
    if (!isShown(view))
        return;
    if (peerOf(view).accessible().role != AccessibleRole::None) {
        found.push_back(&view);
        return;
    }
    const auto inner = accessibleChildren(view);
    found.insert(found.end(), inner.begin(), inner.end());
}

bool isInStrip(const UIView& label, const UIView& slider)
{
    const auto left = label.frame();
    const auto right = slider.frame();
    return left.origin.y == right.origin.y && left.size.height == right.size.height
        && left.origin.x + left.size.width <= right.origin.x;
}

const UITableViewCell* rowOf(const UIView& view)
{
    for (const auto* ancestor = &view; ancestor; ancestor = ancestor->superview()) {
        if (const auto* cell = dynamic_cast<const UITableViewCell*>(ancestor))
            return cell;
    }
    return nullptr;
}

} // namespace

void accessibleChanged(UIView& view, AccessibleChange change)
{
    const auto* window = windowOf(view);
    if (window && window->onAccessibleChange)
        window->onAccessibleChange(view, change);
}

std::vector<UIView*> accessibleChildren(const UIView& view)
{
    if (isLeaf(peerOf(view).accessible().role))
        return {};
    std::vector<UIView*> subviews;
    for (const auto& subview : view.subviews())
        subviews.push_back(subview.get());
    std::ranges::stable_sort(subviews, [](const UIView* a, const UIView* b) {
        const auto first = a->frame().origin;
        const auto second = b->frame().origin;
        return first.y != second.y ? first.y < second.y : first.x < second.x;
    });
    std::vector<UIView*> found;
    for (auto* subview : subviews)
        addAccessible(*subview, found);
    return found;
}

UIView* accessibleParent(const UIView& view)
{
    auto* ancestor = view.superview();
    while (ancestor && peerOf(*ancestor).accessible().role == AccessibleRole::None)
        ancestor = ancestor->superview();
    return ancestor;
}

bool isReachable(const UIView& view)
{
    const auto* ancestor = &view;
    while (const auto* superview = ancestor->superview()) {
        if (!isShown(*ancestor))
            return false;
        ancestor = superview;
    }
    return dynamic_cast<const Window*>(ancestor) != nullptr;
}

bool isCovered(const UIView& view)
{
    for (const auto* ancestor = &view; ancestor->superview(); ancestor = ancestor->superview()) {
        if (isCoveredBySibling(*ancestor))
            return true;
    }
    return false;
}

std::string captionOf(const UISlider& slider)
{
    if (const auto* superview = slider.superview()) {
        for (const auto& sibling : superview->subviews()) {
            const auto* label = dynamic_cast<const UILabel*>(sibling.get());
            if (label && isInStrip(*label, slider))
                return label->text();
        }
    }
    return {};
}

std::string captionOf(const UIButton& button)
{
    std::string caption;
    if (const auto* superview = button.superview()) {
        for (const auto& sibling : superview->subviews()) {
            if (sibling == &button)
                break;
            const auto* label = dynamic_cast<const UILabel*>(sibling.get());
            if (label && !label->isHidden() && intersects(label->frame(), button.frame()))
                caption = label->text();
        }
    }
    return caption;
}

std::string rowTextOf(const UIView& view)
{
    const auto* row = rowOf(view);
    return row ? row->textLabel().text() : std::string();
}

bool namesControl(const UIView& label)
{
    const auto* row = rowOf(label);
    if (row && &row->textLabel() == &label && dynamic_cast<const UISwitch*>(row->accessoryView()))
        return true;
    const auto* superview = label.superview();
    return superview && std::ranges::any_of(superview->subviews(), [&](const auto& sibling) {
        return dynamic_cast<const UISlider*>(sibling.get()) && isInStrip(label, *sibling);
    });
}

} // namespace brimsound::desktop
