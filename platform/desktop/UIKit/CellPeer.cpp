#include "platform/desktop/UIKit/CellPeer.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/Theme.h"

#include <algorithm>
#include <cmath>

namespace brimsound::desktop {

namespace {

constexpr double fadeTime = 0.25;
/// The height of a line of text, as a multiple of the font's size.
constexpr double lineSpacing = 1.2;

/// Grey until it is given a colour, within the rounded corners of the group that its row is in.
struct SelectedBackgroundPeer : ViewPeer {
    void draw(Canvas& canvas) const override
    {
        const auto* cell = dynamic_cast<const UITableViewCell*>(superview);
        if (backgroundColor || !cell)
            return;
        const auto& setting = peerOf(*cell).setting;
        canvas.save();
        canvas.clip(boundsOf(*this));
        if (setting.groupRadius > 0)
            canvas.fillRoundedRect(setting.group, setting.groupRadius, theme::rowPressed);
        else
            canvas.fillRect(boundsOf(*this), theme::rowPressed);
        canvas.restore();
    }
};

class SelectedBackground : public UIView {
public:
    SelectedBackground()
        : UIView(new SelectedBackgroundPeer)
    {
    }
};

void setContentsHighlighted(UIView& view, bool highlighted)
{
    if (auto* label = dynamic_cast<UILabel*>(&view))
        label->setHighlighted(highlighted);
    else if (auto* imageView = dynamic_cast<UIImageView*>(&view))
        imageView->setHighlighted(highlighted);
    for (const auto& subview : view.subviews())
        setContentsHighlighted(*subview, highlighted);
}

double lineHeight(const UILabel& label)
{
    const auto font = label.font();
    return font ? std::ceil(font->pointSize() * lineSpacing) : 0;
}

/// The size in which an image is shown in a row of that height.
CGSize fitted(CGSize image, double height)
{
    const double scale = image.height > height ? height / image.height : 1;
    return { image.width * scale, image.height * scale };
}

} // namespace

CellPeer& peerOf(const UITableViewCell& cell)
{
    return static_cast<CellPeer&>(cell.peer());
}

void CellPeer::setSetting(const RowSetting& newSetting)
{
    if (setting == newSetting)
        return;
    setting = newSetting;
    setNeedsDisplay(*view);
}

void CellPeer::setHighlighted(bool highlighted)
{
    if (isHighlighted == highlighted)
        return;
    isHighlighted = highlighted;
    showState(Animated::No);
}

void CellPeer::prepareForReuse()
{
    isSelected = false;
    isHighlighted = false;
    showState(Animated::No);
}

void CellPeer::showState(Animated animated)
{
    const bool shows = (isSelected || isHighlighted) && selectionStyle != UITableViewCellSelectionStyle::None;
    if (shows == _showsSelected && (shows || animated == Animated::Yes))
        return;
    _showsSelected = shows;
    ++_change;
    if (shows) {
        placeSelectedBackground();
        setContentsHighlighted(*contentView, true);
    } else if (animated == Animated::Yes) {
        fadeSelectedBackground();
    } else {
        if (selectedBackgroundView)
            selectedBackgroundView->removeFromSuperview();
        setContentsHighlighted(*contentView, false);
    }
}

void CellPeer::placeSelectedBackground()
{
    if (!_showsSelected || !selectedBackgroundView)
        return;
    selectedBackgroundView->setFrame(cell().bounds());
    selectedBackgroundView->setAlpha(1);
    insertSubview(cell(), *selectedBackgroundView, backgroundView ? 1 : 0);
}

void CellPeer::fadeSelectedBackground()
{
    const auto fade = [this, kept = brimsound::retain(view), change = _change](double elapsed) {
        if (change != _change)
            return false;
        const double left = std::max(0.0, 1 - elapsed / fadeTime);
        // Halfway both looks of the contents can be read.
        if (left < 0.5)
            setContentsHighlighted(*contentView, false);
        if (selectedBackgroundView && left > 0)
            selectedBackgroundView->setAlpha(left);
        else if (selectedBackgroundView)
            selectedBackgroundView->removeFromSuperview();
        return left > 0;
    };
    Clock::shared().onEveryFrame(fade);
}

void CellPeer::placeContents() const
{
    const auto [width, height] = contentView->bounds().size;
    double left = theme::rowMargin;
    if (const auto* image = imageView ? imageView->image() : nullptr) {
        const auto size = fitted(image->size(), height);
        imageView->setFrame(CGRectMake(left, (height - size.height) / 2, size.width, size.height));
        left += size.width + theme::rowMargin;
    }
    const double free = std::max(0.0, width - left - theme::rowMargin);
    if (!detailTextLabel || detailTextLabel->text().empty()) {
        textLabel->setFrame(CGRectMake(left, 0, free, height));
        return;
    }
    const double textHeight = lineHeight(*textLabel);
    const double detailHeight = lineHeight(*detailTextLabel);
    const double top = std::round((height - textHeight - detailHeight) / 2);
    textLabel->setFrame(CGRectMake(left, top, free, textHeight));
    detailTextLabel->setFrame(CGRectMake(left, top + textHeight, free, detailHeight));
}

void CellPeer::drawAbove(Canvas& canvas) const
{
    if (setting.separator.alpha <= 0)
        return;
    const auto bounds = boundsOf(*this);
    const double hairline = canvas.hairline();
    canvas.fillRect(CGRectMake(theme::rowMargin, bounds.size.height - hairline,
                        bounds.size.width - theme::rowMargin, hairline),
        setting.separator);
}

Accessible CellPeer::accessible() const
{
    if (selectionStyle == UITableViewCellSelectionStyle::None || !textLabel)
        return {};
    Accessible self { .role = AccessibleRole::Button, .name = textLabel->text(), .focusable = true };
    self.selected = isSelected || (accessibilityTraits & UIAccessibilityTraitSelected) != 0;
    if (const auto* table = dynamic_cast<const UITableView*>(superview)) {
        const auto& tablePeer = peerOf(*table);
        if (tablePeer.style == UITableViewStyle::Plain)
            self.role = AccessibleRole::Row;
        const auto row = tablePeer.rowOf(cell());
        self.deletable = row && tablePeer.canDelete(*row);
    }
    return self;
}

void insertSubview(UITableViewCell& cell, UIView& view, std::size_t place)
{
    cell.addSubview(view);
    auto& subviews = peerOf(cell).subviews;
    std::rotate(subviews.begin() + static_cast<std::ptrdiff_t>(place), subviews.end() - 1, subviews.end());
}

RetainPtr<UIView> makeSelectedBackground()
{
    return make<SelectedBackground>();
}

void rowContentsChanged(const UIView& view)
{
    const auto* content = view.superview();
    auto* cell = content ? dynamic_cast<UITableViewCell*>(content->superview()) : nullptr;
    if (!cell)
        return;
    const auto& peer = peerOf(*cell);
    if (peer.textLabel.get() == &view || peer.detailTextLabel.get() == &view || peer.imageView.get() == &view)
        cell->setNeedsLayout();
}

} // namespace brimsound::desktop
