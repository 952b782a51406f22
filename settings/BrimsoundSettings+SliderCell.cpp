#include "platform/Foundation/NSString.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "settings/BrimsoundSettings.h"
#include "settings/GainColor.h"
#include "settings/GainLimit.h"
#include "settings/SliderRow.h"
#include "settings/tweak.h"

#include <utility>

namespace brimsound {

namespace {

/// The reuse identifier of the slider cell.
constexpr auto sliderCellIdentifier = "slidershit";

constexpr CGFloat otherRowHeight = 44;
constexpr double captionSize = 10;

// How keys and screen readers move a slider, in decibels.
constexpr double gainStep = 0.1;
constexpr double largeGainStep = 1;

std::string gainText(double gain)
{
    return stringWithFormat("%.1f dB", gain);
}

RetainPtr<UILabel> makeCaption(const std::string& text, const CGRect& frame)
{
    auto label = make<UILabel>();
    label->setText(text);
    label->setTextAlignment(NSTextAlignment::Center);
    label->setFont(label->font()->fontWithSize(captionSize));
    label->setTextColor(UIColor::blackColor());
    label->setBackgroundColor(UIColor::clearColor());
    label->setFrame(frame);
    return label;
}

/// The contents of the preferences file. No defaults are filled in.
PropertyList::Dictionary storedPreferences()
{
    auto file = readPropertyListFile(preferencesPath);
    auto* preferences = file ? file->asDictionary() : nullptr;
    return preferences ? std::move(*preferences) : PropertyList::Dictionary();
}

} // namespace

CGFloat BrimsoundSettingsListController::tableViewHeightForRowAtIndexPath(
    UITableView&, const NSIndexPath& indexPath)
{
    return indexPath == sliderRow ? sliderRowHeight : otherRowHeight;
}

RetainPtr<UITableViewCell> BrimsoundSettingsListController::tableViewCellForRowAtIndexPath(
    UITableView& table, const NSIndexPath& indexPath)
{
    if (indexPath != sliderRow)
        return PSListController::tableViewCellForRowAtIndexPath(table, indexPath);

    auto cell = table.dequeueReusableCellWithIdentifier(sliderCellIdentifier);
    if (!cell)
        cell = std::exchange(_cellBuiltAhead, nullptr);
    if (!cell) {
        cell = make<BRSliderCell>(UITableViewCellStyle::Default, sliderCellIdentifier);
        cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    }
    const auto height = tableViewHeightForRowAtIndexPath(table, indexPath);
    if (!_sliders)
        buildSliders(static_cast<BRSliderCell&>(*cell), stripHeightIn(height));
    return cell;
}

void BrimsoundSettingsListController::buildSliders(BRSliderCell& cell, CGFloat stripHeight)
{
    _sliders = std::make_shared<SliderList>();
    _sliders->reserve(stripCount);
    _labels = std::make_shared<LabelList>();
    _labels->reserve(stripCount);
    cell.setSliders(_sliders);
    cell.setLabels(_labels);

    auto& content = cell.contentView();
    // Added first, so that the bar is drawn behind the sliders.
    addBlackBar(content, stripHeight);
    const auto preferences = storedPreferences();
    const auto* gains = arrayForKey(preferences, peakingEqValuesKey);
    addStrip(content, stripHeight, floatForKey(preferences, preampKey));
    for (std::size_t band = 0; band + 1 < stripCount; ++band)
        addStrip(content, stripHeight, gains && band < gains->size() ? (*gains)[band].floatValue() : 0);
    updateBlackBar();
}

void BrimsoundSettingsListController::addBlackBar(UIView& content, CGFloat stripHeight)
{
    _blackBar = make<UIView>(blackBarFrame(stripHeight));
    _blackBar->setBackgroundColor(UIColor::lightGrayColor());
    content.addSubview(*_blackBar);
}

void BrimsoundSettingsListController::addStrip(UIView& content, CGFloat stripHeight, float gain)
{
    const auto index = _sliders->size();
    const auto& caption = *FREQUENCY_STRS[index];
    const auto slider = makeSlider(sliderFrame(index, stripHeight, content.frame().size.width));
    const auto label = makeCaption(caption, captionFrame(index, stripHeight));
    slider->setAccessibilityLabel(caption);
    // It names the slider, and shows the value while the slider is held.
    label->setIsAccessibilityElement(false);
    _sliders->push_back(slider);
    _labels->push_back(label);

    slider->setValue(gain);
    if (index == 0)
        slider->setMinimumTrackTintColor(UIColor::blackColor());
    else
        updateSliderColor(*slider);
    content.addSubview(*slider);
    content.addSubview(*label);
}

RetainPtr<UISlider> BrimsoundSettingsListController::makeSlider(const CGRect& frame)
{
    auto slider = make<UISlider>();
    slider->setMaximumValue(gainLimit);
    slider->setMinimumValue(-gainLimit);
    slider->setAccessibilityAdjustment({ gainStep, largeGainStep, "dB", gainText, 0 });
    slider->addTargetActionForControlEvents(*this, "sliderChanged:",
        UIControlEventTouchDown | UIControlEventTouchDragInside | UIControlEventTouchDragOutside);
    slider->addTargetActionForControlEvents(*this, "sliderStopped:",
        UIControlEventTouchUpInside | UIControlEventTouchUpOutside | UIControlEventTouchCancel
            | UIControlEventEditingDidEnd | UIControlEventEditingDidEndOnExit);
    slider->setFrame(frame);
    return slider;
}

void BrimsoundSettingsListController::updateSliderColor(UISlider& slider)
{
    if (!indexOf(slider))
        return;
    if (&slider == &preamp()) {
        for (const auto& other : *_sliders) {
            if (other != &slider)
                updateSliderColor(*other);
        }
        updateBlackBar();
    } else {
        slider.setMinimumTrackTintColor(uiColor(fadingGainColor(slider.value() + preamp().value())));
    }
}

void BrimsoundSettingsListController::updateBlackBar()
{
    if (!_sliders || _sliders->empty())
        return;
    const auto& slider = preamp();
    const auto* thumb = slider.currentThumbImage();
    const auto thumbWidth = thumb ? thumb->size().width : 0;
    const auto track = slider.frame().size.width - thumbWidth;
    const auto start = slider.frame().origin.x + thumbWidth * 0.5;
    // The preamp's value is negated: the bar shows the band gain that brings the sum to 0 dB.
    const float range = slider.maximumValue() - slider.minimumValue();
    const float fraction = (-slider.value() - slider.minimumValue()) / range;
    auto frame = _blackBar->frame();
    frame.origin.x = start + track * fraction;
    _blackBar->setFrame(frame);
}

} // namespace brimsound
