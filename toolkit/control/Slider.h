// Sliders.
#pragma once

#include "toolkit/control/Control.h"
#include "toolkit/image/Image.h"

#include <optional>
#include <string>

namespace brimsound::toolkit {

/// A horizontal slider. A finger takes the thumb along from wherever it touches the slider, so that a touch
/// alone moves nothing; a mouse press beside the thumb brings it there. The arrows move it by a small step,
/// Page Up and Page Down by a large one, Home and End to its ends: a key takes hold, each stroke sets the
/// value, and releasing the key lets go.
class Slider : public Control {
public:
    Slider() = default;

    float value() const { return _value; }
    /// Takes the nearest value in range; a NaN leaves the value as it is. Sends no event.
    void setValue(float);
    /// Sets the value of a slider that is held, as a drag does.
    void set(double value, Side = Side::Inside);
    /// Takes hold, sets and lets go. False when it cannot be taken hold of.
    bool slideTo(double value);
    /// The same by so many small steps.
    bool stepBy(int steps);

    float minimum() const { return _minimum; }
    /// Raises the maximum along when it would be below.
    void setMinimum(float);
    float maximum() const { return _maximum; }
    /// Lowers the minimum along when it would be above.
    void setMaximum(float);

    /// Of the track between its start and the thumb; nothing for the theme's.
    void setTint(std::optional<Color>);
    /// The picture of the thumb.
    static Image& thumb();

    std::optional<Color> tint() const { return _tint; }

    /// How keys and assistive technology change the value, and how the latter says it.
    struct Steps {
        /// What the arrows and assistive technology change the value by.
        double small = 0.01;
        /// What Page Up and Page Down change it by.
        double large = 0.1;
        /// What is said after the number by readers that say the number.
        std::string unit {};
        /// The value in words, with its unit; null for none.
        std::string (*words)(double value) = nullptr;
    };
    void setSteps(Steps);

    /// Where the thumb's center stands for a value, in the slider's own coordinates.
    Point thumbCenter(double value) const;

    void draw(Canvas&) const override;
    double overhang() const override;
    FocusRing focusRing() const override;
    bool keyPressed(Key, KeyStroke) override;
    void keysReleased() override;
    Role role() const override { return Role::Slider; }
    Accessible accessible() const override;

protected:
    void trackingBegan(Point, Pointer) override;
    void trackingMoved(Point) override;

private:
    void takeValueAt(double x);
    void change(double value);
    double moved(double distance) const;
    std::optional<double> target(Key) const;

    float _value = 0;
    float _minimum = 0;
    float _maximum = 1;
    std::optional<Color> _tint;
    Steps _steps;
    /// How far the touch is from the thumb's center while the slider is held, in points.
    double _grip = 0;
    bool _heldByKey = false;
};

} // namespace brimsound::toolkit
