#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIView.h"

#include <array>

namespace brimsound {

/// Draws the curve of an equalizer setting: ten bars side by side, one per band, the lowest band at the left.
/// The bars stand on the view's bottom edge: height 0 at -12 dB, half the view's height at 0 dB, its full
/// height at +12 dB. Each bar has the color of its gain unless a fixed color is set. Gains are arrays of ten
/// values in dB; null stands for no gains, shown as ten yellow bars of half the height.
///
/// The view frees nothing when it is destroyed: it lives as long as its list, and a buffer returned by
/// gains() may be in use for longer.
class SBEqualizerBackgroundView : public UIView {
public:
    /// initWithFrame:gains:, initWithFrame: and init.
    explicit SBEqualizerBackgroundView(const CGRect& frame = {}, const float* gains = nullptr);

    /// Gives all bars one color at once, which they keep when the gains change. After null, the next setGains
    /// restores the colors of the gains.
    void setColor(const RetainPtr<UIColor>&);
    /// The next setGains, and those after it, use this saturation (0 to 1) for the colors and drop a fixed
    /// color. -0.5 or less keeps the colors' own saturation.
    void setSaturation(float);

    /// Copies the gains. The array need not outlive the call.
    void setGains(const float* gains);
    /// When animated, the bars move to their new heights and colors in half a second.
    void setGainsAnimated(const float* gains, Animated);
    /// The view's own copy; null when there are no gains. The buffer stays the same until gains are set to
    /// null, which frees it.
    float* gains() const { return _gains; }

    /// Lays the bars out for the new size with the current gains.
    void setFrame(const CGRect&) override;

protected:
    ~SBEqualizerBackgroundView() override = default;

private:
    void updateBars(const float* gains) const;
    RetainPtr<UIColor> withSaturation(RetainPtr<UIColor>) const;

    float* _gains = nullptr;
    // Never released.
    std::array<UIView*, 10> _bars {};
    UIColor* _color = nullptr;
    float _saturation = -1;
};

} // namespace brimsound
