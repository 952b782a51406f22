#include "platform/UIKit/UISlider.h"

#include "platform/UIKit/UIScreen.h"
#include "platform/desktop/CoreGraphics/ImageBitmap.h"
#include "platform/desktop/UIKit/BitmapImage.h"
#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/ControlTargets.h"
#include "platform/desktop/UIKit/Raster.h"
#include "toolkit/control/Slider.h"

namespace brimsound {

namespace {

toolkit::Slider& native(const UISlider& slider)
{
    return desktop::nativeOf<toolkit::Slider>(slider);
}

} // namespace

UISlider::UISlider()
    : UIControl(desktop::peer(new desktop::HostedControl<toolkit::Slider>))
{
}

float UISlider::value() const
{
    return native(*this).value();
}

void UISlider::setValue(float value)
{
    native(*this).setValue(value);
}

float UISlider::minimumValue() const
{
    return native(*this).minimum();
}

void UISlider::setMinimumValue(float minimum)
{
    native(*this).setMinimum(minimum);
}

float UISlider::maximumValue() const
{
    return native(*this).maximum();
}

void UISlider::setMaximumValue(float maximum)
{
    native(*this).setMaximum(maximum);
}

RetainPtr<UIColor> UISlider::minimumTrackTintColor() const
{
    return desktop::uiColor(native(*this).tint());
}

void UISlider::setMinimumTrackTintColor(RetainPtr<UIColor> color)
{
    native(*this).setTint(desktop::toolkitColor(color));
}

void UISlider::setAccessibilityAdjustment(const UIAccessibilityAdjustment& adjustment)
{
    native(*this).setSteps({ adjustment.step, adjustment.largeStep, adjustment.unit, adjustment.valueText,
        adjustment.neutralValue });
}

UIImage* UISlider::currentThumbImage() const
{
    // All sliders share the image.
    static const auto image = [] {
        const double scale = UIScreen::mainScreen().scale();
        const auto& thumb = toolkit::Slider::thumb();
        return desktop::makeImage(desktop::makeCGImage(desktop::rasterized(thumb, scale)), scale);
    }();
    return image.get();
}

} // namespace brimsound
