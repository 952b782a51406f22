#include "platform/Foundation/PropertyListSerialization.h"
#include "settings/BrimsoundSettings.h"
#include "settings/GainColor.h"
#include "settings/tweak.h"

namespace brimsound {

namespace {

/// The run-time name under which the table keeps the slider cell.
constexpr auto sliderCellIdentifier = "slidershit";

constexpr CGFloat sliderRowHeight = 484;
constexpr CGFloat rowHeight = 44;
constexpr float highestGain = 12;

} // namespace

CGFloat BrimsoundSettingsListController::tableViewHeightForRowAtIndexPath(
    UITableView&, const NSIndexPath& indexPath)
{
    return indexPath == sliderRow ? sliderRowHeight : rowHeight;
}

RetainPtr<UITableViewCell> BrimsoundSettingsListController::tableViewCellForRowAtIndexPath(
    UITableView& table, const NSIndexPath& indexPath)
{
    if (indexPath != sliderRow)
        return PSListController::tableViewCellForRowAtIndexPath(table, indexPath);

    auto cell = table.dequeueReusableCellWithIdentifier(sliderCellIdentifier);
    if (!cell) {
        cell = make<BRSliderCell>(UITableViewCellStyle::Default, sliderCellIdentifier);
        cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    }
    const auto height = static_cast<float>(tableViewHeightForRowAtIndexPath(table, indexPath));
    if (!_sliders)
        buildSliders(static_cast<BRSliderCell&>(*cell), height / static_cast<float>(FREQUENCY_STRS.size()));
    return cell;
}

void BrimsoundSettingsListController::buildSliders(BRSliderCell& cell, CGFloat stripHeight)
{
    const auto count = FREQUENCY_STRS.size();
    auto& content = cell.contentView();

    _sliders = std::make_shared<SliderList>();
    _sliders->reserve(count);
    _labels = std::make_shared<LabelList>();
    _labels->reserve(count);
    cell.setSliders(_sliders);
    cell.setLabels(_labels);

    // Added first, so that the bar lies behind the sliders.
    _blackBar = make<UIView>(CGRectMake(0, stripHeight + 10, 1, 10 * stripHeight - 20));
    _blackBar->setBackgroundColor(UIColor::lightGrayColor());
    content.addSubview(*_blackBar);

    const auto file = readPropertyListFile(preferencesPath);
    const auto* preferences = file ? file->asDictionary() : nullptr;
    const auto* values = preferences ? preferences->find(peakingEqValuesKey) : nullptr;
    const auto* gains = values ? values->asArray() : nullptr;

    for (std::size_t i = 0; i < count; ++i) {
        const auto y = static_cast<CGFloat>(i) * stripHeight;

        auto slider = make<UISlider>();
        slider->setMaximumValue(highestGain);
        slider->setMinimumValue(-highestGain);
        slider->addTargetActionForControlEvents(*this, "sliderChanged:",
            UIControlEventTouchDown | UIControlEventTouchDragInside | UIControlEventTouchDragOutside);
        slider->addTargetActionForControlEvents(*this, "sliderStopped:",
            UIControlEventTouchUpInside | UIControlEventTouchUpOutside | UIControlEventTouchCancel
                | UIControlEventEditingDidEnd | UIControlEventEditingDidEndOnExit);
        slider->setFrame(CGRectMake(
            BRSliderCell::sliderX, y, BRSliderCell::sliderWidth(content.frame().size.width), stripHeight));
        if (i == 0) {
            slider->setValue(preferences ? floatForKey(*preferences, preampKey) : 0);
            slider->setMinimumTrackTintColor(UIColor::blackColor());
        } else {
            slider->setValue(gains && i <= gains->size() ? (*gains)[i - 1].floatValue() : 0);
            updateSliderColor(*slider);
        }

        slider->setAccessibilityLabel(*FREQUENCY_STRS[i]);

        auto label = make<UILabel>();
        label->setText(*FREQUENCY_STRS[i]);
        label->setTextAlignment(NSTextAlignment::Center);
        label->setFont(label->font()->fontWithSize(10));
        label->setTextColor(UIColor::blackColor());
        label->setBackgroundColor(UIColor::clearColor());
        label->setFrame(CGRectMake(5, y, 25, stripHeight));

        _sliders->push_back(slider);
        _labels->push_back(label);
        content.addSubview(*slider);
        content.addSubview(*label);
    }
    updateBlackBar();
}

void BrimsoundSettingsListController::updateSliderColor(UISlider& slider)
{
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
