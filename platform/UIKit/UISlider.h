#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIImage.h"

namespace brimsound {

/// A horizontal slider. Its value is clamped to [minimumValue, maximumValue], initially 0 to 1. Setting the
/// value in code sends no actions. The minimum is always at the left, also in languages that are read from
/// right to left.
class UISlider : public UIControl {
public:
    UISlider();

    float value() const;
    /// Clamps the value to the range. NaN leaves the value unchanged.
    void setValue(float);

    float minimumValue() const;
    /// Raises the maximum too when it would be smaller.
    void setMinimumValue(float);
    float maximumValue() const;
    /// Lowers the minimum too when it would be larger.
    void setMaximumValue(float);

    /// The color of the track between its start and the thumb; null for the platform's default.
    RetainPtr<UIColor> minimumTrackTintColor() const;
    void setMinimumTrackTintColor(RetainPtr<UIColor>);

    /// How keys and screen readers operate the slider. Initially they do not know any steps.
    void setAccessibilityAdjustment(const UIAccessibilityAdjustment&);

    /// The image drawn as the thumb, owned by the slider; null on a platform that does not provide it.
    UIImage* currentThumbImage() const;
};

} // namespace brimsound
