#include "settings/SBEqualizerBackgroundView.h"

#include "settings/GainColor.h"
#include "settings/GainLimit.h"
#include "settings/Log.h"

#include <algorithm>
#include <utility>

namespace brimsound {

namespace {

constexpr double animationTime = 0.5;
/// Saturations above this value are applied.
constexpr float noSaturation = -0.5f;

} // namespace

SBEqualizerBackgroundView::SBEqualizerBackgroundView(const CGRect& frame, const float* gains)
    : UIView(frame)
{
    for (auto*& bar : _bars) {
        bar = new UIView;
        addSubview(*bar);
    }
    setGains(gains);
}

void SBEqualizerBackgroundView::setColor(const RetainPtr<UIColor>& color)
{
    if (color == _color)
        return;
    if (_color)
        _color->release();
    _color = color.get();
    if (!_color)
        return;
    _color->retain();
    for (auto* bar : _bars)
        bar->setBackgroundColor(color);
}

void SBEqualizerBackgroundView::setSaturation(float saturation)
{
    if (saturation > noSaturation)
        setColor(nullptr);
    _saturation = saturation;
}

void SBEqualizerBackgroundView::setGains(const float* gains)
{
    setGainsAnimated(gains, Animated::No);
}

void SBEqualizerBackgroundView::setGainsAnimated(const float* gains, Animated animated)
{
    if (animated == Animated::Yes)
        animateWithDurationAnimations(animationTime, [&] { updateBars(gains); });
    else
        updateBars(gains);

    if (!gains) {
        delete[] std::exchange(_gains, nullptr);
        return;
    }
    if (!_gains)
        _gains = new float[_bars.size()];
    if (gains != _gains)
        std::copy_n(gains, _bars.size(), _gains);
}

void SBEqualizerBackgroundView::updateBars(const float* gains) const
{
    for (std::size_t i = 0; i < _bars.size(); ++i) {
        const auto [width, height] = frame().size;
        const double barHeight = gains ? height * (gains[i] + gainLimit) / gainLimit * 0.5 : height * 0.5;
        const double barWidth = width / 10;
        _bars[i]->setFrame(
            CGRectMake(static_cast<double>(i) * width / 10, height - barHeight, barWidth, barHeight));
        if (!_color)
            _bars[i]->setBackgroundColor(
                withSaturation(gains ? uiColor(gainColor(gains[i])) : UIColor::yellowColor()));
    }
}

RetainPtr<UIColor> SBEqualizerBackgroundView::withSaturation(RetainPtr<UIColor> color) const
{
    if (!(_saturation > noSaturation))
        return color;
    CGFloat hue = 0;
    CGFloat saturation = 0;
    CGFloat brightness = 0;
    CGFloat alpha = 0;
    if (!color->getHueSaturationBrightnessAlpha(hue, saturation, brightness, alpha)) {
        logLine("HOLY SHIT AN ERROR WITH THE COLOR");
        return color;
    }
    return UIColor::colorWithHueSaturationBrightnessAlpha(hue, _saturation, brightness, alpha);
}

void SBEqualizerBackgroundView::setFrame(const CGRect& frame)
{
    UIView::setFrame(frame);
    setGains(gains());
}

} // namespace brimsound
