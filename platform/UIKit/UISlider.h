// Sliders.
#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIImage.h"

namespace brimsound {

/// A horizontal slider. Its value is clamped to [minimumValue, maximumValue], at first 0 to 1; setting a
/// value in code sends no actions.
class UISlider : public UIControl {
public:
    UISlider();

    float value() const;
    /// Takes the nearest value in range; a NaN leaves the value as it is.
    void setValue(float);

    float minimumValue() const;
    /// Raises the maximum along when it would be below.
    void setMinimumValue(float);
    float maximumValue() const;
    /// Lowers the minimum along when it would be above.
    void setMaximumValue(float);

    /// The color of the track between its start and the thumb; null for the platform's own.
    RetainPtr<UIColor> minimumTrackTintColor() const;
    void setMinimumTrackTintColor(RetainPtr<UIColor>);

    /// The image drawn as the thumb, owned by the slider; null on a platform that does not tell.
    UIImage* currentThumbImage() const;
};

} // namespace brimsound
