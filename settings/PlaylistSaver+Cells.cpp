// The appearance of the panel's rows.
#include "settings/Localized.h"
#include "settings/PlaylistSaver.h"
#include "settings/SBEqualizerBackgroundView.h"
#include "settings/UIImage+Equalizer.h"

namespace brimsound {

namespace {

constexpr auto cellIdentifier = "PlaylistSaver";
constexpr auto plusImagePath = "/Library/PreferenceBundles/BrimsoundSettings.bundle/plus@2x.png";

// A pressed row shows its curve in black on a black backdrop.
constexpr long pressedBackdropTag = 59304;
constexpr long pressedCurveTag = 23894;

constexpr float paleSaturation = 0.1f;
/// Added to the saturation of the selected preset's row.
constexpr float addedSaturation = 0.2f;

UIView* pressedBackdropOf(UITableViewCell& cell)
{
    auto* selectedBackground = cell.selectedBackgroundView();
    return selectedBackground ? selectedBackground->viewWithTag(pressedBackdropTag) : nullptr;
}

SBEqualizerBackgroundView* pressedCurveOf(UITableViewCell& cell)
{
    auto* backdrop = pressedBackdropOf(cell);
    return backdrop ? static_cast<SBEqualizerBackgroundView*>(backdrop->viewWithTag(pressedCurveTag))
                    : nullptr;
}

RetainPtr<UITableViewCell> makeCell()
{
    auto cell = make<UITableViewCell>(UITableViewCellStyle::Subtitle, cellIdentifier);
    cell->setBackgroundColor(UIColor::clearColor());
    // Bars of gains beyond the limit are taller than the row.
    cell->setClipsToBounds(true);
    const auto* former = cell->backgroundView();
    cell->setBackgroundView(make<SBEqualizerBackgroundView>(former ? former->frame() : CGRect()));
    cell->detailTextLabel()->setText("");
    cell->contentView().setBackgroundColor(UIColor::clearColor());

    auto& label = cell->textLabel();
    label.setTextColor(UIColor::blackColor());
    label.setHighlightedTextColor(UIColor::whiteColor());
    label.setBackgroundColor(UIColor::clearColor());
    label.setFont(UIFont::fontWithNameSize("HelveticaNeue-Bold", 18));

    const auto backdrop = make<UIView>(cell->bounds());
    backdrop->setBackgroundColor(UIColor::blackColor());
    backdrop->setTag(pressedBackdropTag);
    const auto curve = make<SBEqualizerBackgroundView>(cell->bounds());
    curve->setTag(pressedCurveTag);
    backdrop->addSubview(*curve);
    if (auto* selectedBackground = cell->selectedBackgroundView()) {
        selectedBackground->addSubview(*backdrop);
        selectedBackground->setBackgroundColor(UIColor::blackColor());
        selectedBackground->setAlpha(1);
    }
    return cell;
}

} // namespace

RetainPtr<UITableViewCell> PlaylistSaver::tableViewCellForRowAtIndexPath(
    UITableView& table, const NSIndexPath& indexPath)
{
    auto cell = table.dequeueReusableCellWithIdentifier(cellIdentifier);
    if (!cell)
        cell = makeCell();
    cell->backgroundView()->setFrame(cell->bounds());
    cell->setSelected(false, Animated::No);

    if (indexPath.section == 0)
        showSaveRow(*cell);
    else
        showPreset(*cell, indexPath.row);
    return cell;
}

void PlaylistSaver::showSaveRow(UITableViewCell& cell)
{
    if (!_plusImage)
        _plusImage = UIImage::imageWithContentsOfFile(plusImagePath);
    cell.imageView().setImage(_plusImage);
    cell.imageView().setHighlightedImage(
        _plusImage ? fillWithColor(*_plusImage, *UIColor::whiteColor()) : nullptr);
    cell.textLabel().setText(localized("SAVE", "Save"));

    TenGains gains {};
    for (std::size_t i = 0; i < gains.size() && i < _sliders.size(); ++i)
        gains[i] = _sliders[i]->value();
    showCurves(cell, gains, false);
}

void PlaylistSaver::showPreset(UITableViewCell& cell, std::size_t row) const
{
    cell.imageView().setImage(nullptr);
    cell.imageView().setHighlightedImage(nullptr);
    std::optional<std::string> name;
    const auto* preset = getObjectAtIndexForDictKey(row, _presetDict, &name);
    if (!preset)
        return;
    cell.textLabel().setText(*name);
    showCurves(cell, tenGains(*preset), name == _selectedPreset);
}

void PlaylistSaver::showCurves(UITableViewCell& cell, const TenGains& gains, bool isSelected) const
{
    auto& background = static_cast<SBEqualizerBackgroundView&>(*cell.backgroundView());
    // A screen reader is told what the stronger colors show.
    cell.setAccessibilityTraits(isSelected ? UIAccessibilityTraitSelected : UIAccessibilityTraitNone);
    background.setSaturation(paleSaturation + addedSaturation * static_cast<float>(isSelected));
    if (auto* pressedCurve = pressedCurveOf(cell)) {
        pressedCurve->setColor(_blackBarColor);
        pressedCurve->setGains(gains.data());
    }
    background.setGains(gains.data());
}

void PlaylistSaver::tableViewWillDisplayCellForRowAtIndexPath(
    UITableView&, UITableViewCell& cell, const NSIndexPath&)
{
    if (auto* backdrop = pressedBackdropOf(cell))
        backdrop->setFrame(cell.bounds());
    if (auto* curve = pressedCurveOf(cell))
        curve->setFrame(cell.bounds());
}

} // namespace brimsound
