// The shape of an equalizer setting.
#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIView.h"

#include <array>

namespace brimsound {

/// Ten bars side by side, one a band, the lowest at the left. They stand on the view's bottom edge: empty at
/// -12 dB, half the view's height at 0 dB, all of it at +12 dB. Their color is that of their gain, unless a
/// fixed one is set. Gains are arrays of ten, in dB; null means that there are none, which shows as ten
/// yellow bars of half the height.
///
/// Nothing is taken down with the view: it lives as long as the list that it is in, and a buffer of gains
/// that it handed out may be in use for longer.
class SBEqualizerBackgroundView : public UIView {
public:
    /// initWithFrame:gains:, initWithFrame: and init.
    explicit SBEqualizerBackgroundView(const CGRect& frame = {}, const float* gains = nullptr);

    /// Gives all bars one color at once, which they keep whatever the gains. Null brings back the colors of
    /// the gains at the next setGains.
    void setColor(const RetainPtr<UIColor>&);
    /// From the next setGains on, colors have this saturation (0 to 1) in place of their own, and a fixed
    /// color is dropped. -0.5 or less means that they keep their own.
    void setSaturation(float);

    /// Copies the gains, which need to be there no longer than the call.
    void setGains(const float* gains);
    /// Animated, the bars move to their new places and colors over half a second.
    void setGainsAnimated(const float* gains, Animated);
    /// The view's own copy, null when there is none. It is the same buffer until gains are set to null, which
    /// frees it.
    float* gains() const { return _gains; }

    /// Lays the bars out for the new size, with the gains that there are.
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
