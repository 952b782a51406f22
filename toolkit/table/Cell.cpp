#include "toolkit/table/Cell.h"

#include "toolkit/drawing/Theme.h"
#include "toolkit/table/Table.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double fadeTime = 0.25;
constexpr double detailTextSize = 12;
/// The height of a line of text, as a multiple of the font's size.
constexpr double lineSpacing = 1.2;

Size sizeOfNewCells { 320, 44 };

/// Gray by default, within the rounded corners of the row's group.
class SelectedBackground : public View {
public:
    using View::View;

    void draw(Canvas& canvas) const override
    {
        const auto* cell = dynamic_cast<const Cell*>(parent());
        if (background() || !cell)
            return;
        const auto& appearance = cell->appearance();
        canvas.save();
        canvas.clip(bounds());
        if (appearance.groupRadius > 0)
            canvas.fillRoundedRect(appearance.group, appearance.groupRadius, theme::rowPressed);
        else
            canvas.fillRect(bounds(), theme::rowPressed);
        canvas.restore();
    }
};

void setContentsHighlighted(View& view, bool highlighted)
{
    if (auto* label = dynamic_cast<Label*>(&view))
        label->setHighlighted(highlighted);
    else if (auto* imageView = dynamic_cast<ImageView*>(&view))
        imageView->setHighlighted(highlighted);
    for (const auto& child : view.children())
        setContentsHighlighted(*child, highlighted);
}

double lineHeight(const Label& label)
{
    return label.font() ? std::ceil(label.font()->size * lineSpacing) : 0;
}

/// The size of an image in a row of this height.
Size fitted(Size image, double height)
{
    const double scale = image.height > height ? height / image.height : 1;
    return { image.width * scale, image.height * scale };
}

} // namespace

void Cell::setSizeOfNewCells(Size size)
{
    sizeOfNewCells = size;
}

Cell::Cell(Style style, std::string reuseIdentifier)
    : View({ {}, sizeOfNewCells })
    , _reuseIdentifier(std::move(reuseIdentifier))
    , _content(make<View>(bounds()))
    , _textLabel(make<Label>())
    , _selectedBackgroundView(make<SelectedBackground>(bounds()))
{
    add(*_content);
    _content->add(*_textLabel);
    _textLabel->onChange = [this] { setNeedsLayout(); };
    if (style == Style::Subtitle) {
        _detailLabel = make<Label>();
        _detailLabel->setFont(Font { {}, detailTextSize });
        _detailLabel->onChange = [this] { setNeedsLayout(); };
        _content->add(*_detailLabel);
    }
}

Cell::~Cell()
{
    // The labels and the image view may exist longer than the cell.
    _textLabel->onChange = nullptr;
    if (_detailLabel)
        _detailLabel->onChange = nullptr;
    if (_imageView)
        _imageView->onChange = nullptr;
}

ImageView& Cell::imageView()
{
    if (!_imageView) {
        _imageView = make<ImageView>();
        _imageView->onChange = [this] { setNeedsLayout(); };
        _content->add(*_imageView);
    }
    return *_imageView;
}

void Cell::setAccessory(Ref<View> view)
{
    if (_accessory)
        _accessory->removeFromParent();
    _accessory = std::move(view);
    if (_accessory)
        add(*_accessory);
    setNeedsLayout();
}

void Cell::setBackgroundView(Ref<View> view)
{
    if (_backgroundView)
        _backgroundView->removeFromParent();
    _backgroundView = std::move(view);
    if (_backgroundView)
        insert(*_backgroundView, 0);
    setNeedsLayout();
}

void Cell::setSelectedBackgroundView(Ref<View> view)
{
    if (_selectedBackgroundView)
        _selectedBackgroundView->removeFromParent();
    _selectedBackgroundView = std::move(view);
    placeSelectedBackground();
}

void Cell::setSelected(bool selected, bool animated)
{
    if (std::exchange(_selected, selected) != selected)
        accessibleChanged(AccessibleChange::StateChanged);
    showState(animated);
}

void Cell::setHighlighted(bool highlighted)
{
    if (std::exchange(_highlighted, highlighted) != highlighted)
        showState(false);
}

void Cell::prepareForReuse()
{
    _selected = false;
    _highlighted = false;
    showState(false);
}

void Cell::setAppearance(const RowAppearance& appearance)
{
    if (_appearance == appearance)
        return;
    _appearance = appearance;
    setNeedsDisplay();
}

void Cell::showState(bool animated)
{
    const bool looksSelected = (_selected || _highlighted) && _selectable;
    if (looksSelected == _looksSelected && (looksSelected || animated))
        return;
    _looksSelected = looksSelected;
    _fade.cancel();
    if (looksSelected) {
        placeSelectedBackground();
        setContentsHighlighted(*_content, true);
    } else if (animated) {
        fadeSelectedBackground();
    } else {
        if (_selectedBackgroundView)
            _selectedBackgroundView->removeFromParent();
        setContentsHighlighted(*_content, false);
    }
}

void Cell::placeSelectedBackground()
{
    if (!_looksSelected || !_selectedBackgroundView)
        return;
    _selectedBackgroundView->setFrame(bounds());
    _selectedBackgroundView->setAlpha(1);
    insert(*_selectedBackgroundView, _backgroundView ? 1 : 0);
}

void Cell::fadeSelectedBackground()
{
    const auto step = [this](double progress) {
        // Halfway, the text is readable in both colors.
        if (progress > 0.5)
            setContentsHighlighted(*_content, false);
        if (_selectedBackgroundView && progress < 1)
            _selectedBackgroundView->setAlpha(1 - progress);
    };
    const auto end = [this] {
        if (_selectedBackgroundView)
            _selectedBackgroundView->removeFromParent();
    };
    _fade.start(fadeTime, linear, step, end);
}

void Cell::layOut()
{
    const auto [width, height] = frame().size;
    double free = width;
    if (_accessory) {
        const auto size = _accessory->frame().size;
        free = width - theme::rowMargin - size.width;
        _accessory->setFrame(
            inLayoutDirection(makeRect(free, (height - size.height) / 2, size.width, size.height)));
    }
    for (const auto& background : { _backgroundView, _selectedBackgroundView }) {
        if (background)
            background->setFrame(bounds());
    }
    _content->setFrame(inLayoutDirection(makeRect(0, 0, free, height)));
    placeContents();
}

void Cell::placeContents()
{
    const auto [width, height] = _content->frame().size;
    const auto place
        = [this](View& view, const Rect& rect) { view.setFrame(_content->inLayoutDirection(rect)); };
    double left = theme::rowMargin;
    if (const auto* image = _imageView ? _imageView->image() : nullptr) {
        const auto size = fitted(image->size(), height);
        place(*_imageView, makeRect(left, (height - size.height) / 2, size.width, size.height));
        left += size.width + theme::rowMargin;
    }
    const double free = std::max(0.0, width - left - theme::rowMargin);
    if (!_detailLabel || _detailLabel->text().empty()) {
        place(*_textLabel, makeRect(left, 0, free, height));
        return;
    }
    const double textHeight = lineHeight(*_textLabel);
    const double detailHeight = lineHeight(*_detailLabel);
    const double top = std::round((height - textHeight - detailHeight) / 2);
    place(*_textLabel, makeRect(left, top, free, textHeight));
    place(*_detailLabel, makeRect(left, top + textHeight, free, detailHeight));
}

void Cell::drawAbove(Canvas& canvas) const
{
    if (_appearance.separator.alpha <= 0)
        return;
    const auto size = frame().size;
    const double hairline = canvas.hairline();
    const auto separator
        = makeRect(theme::rowMargin, size.height - hairline, size.width - theme::rowMargin, hairline);
    canvas.fillRect(inLayoutDirection(separator), _appearance.separator);
}

Table* Cell::table() const
{
    return dynamic_cast<Table*>(parent());
}

std::optional<RowPath> Cell::row() const
{
    const auto* around = table();
    return around ? around->rowOf(*this) : std::nullopt;
}

Role Cell::role() const
{
    if (!_selectable)
        return Role::None;
    const auto* around = table();
    return around && around->style() == Table::Style::List ? Role::Row : Role::Button;
}

Accessible Cell::accessible() const
{
    const auto place = row();
    return { .role = role(),
        .name = _textLabel->text(),
        .selected = _selected || isChosen(),
        .deletable = place && table()->canDelete(*place) };
}

bool Cell::activate()
{
    const auto kept = keep(this);
    const auto place = row();
    if (!place || !comeIntoReach())
        return false;
    table()->press(*place);
    return true;
}

bool Cell::deleteRow()
{
    const auto kept = keep(this);
    const auto place = row();
    return place && comeIntoReach() && table()->deleteRow(*place);
}

} // namespace brimsound::toolkit
