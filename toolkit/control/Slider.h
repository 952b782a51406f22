#pragma once

#include "toolkit/control/Control.h"
#include "toolkit/image/Image.h"

#include <optional>
#include <string>

namespace brimsound::toolkit {

/// A horizontal slider. A finger moves the thumb from wherever it touches the slider, so a touch without a
/// movement changes nothing. A mouse press next to the thumb moves the thumb there. The arrow keys change the
/// value by a small step, Page Up and Page Down by a large one, Home and End set the minimum and the maximum.
/// A double click on the thumb and the key 0 set the neutral value. The first stroke of a key calls begin,
/// each stroke sets the value, and releasing the key calls commit.
class Slider : public Control {
public:
    Slider() = default;

    float value() const { return _value; }
    /// Sets the nearest value in range; NaN changes nothing. Sends no event.
    void setValue(float);
    /// Sets the value between begin and commit, with the events of a drag.
    void set(double value, Side = Side::Inside);
    /// Calls begin, sets the value, and calls commit. Returns false when begin does.
    bool slideTo(double value);
    /// The same with a change by this many small steps.
    bool stepBy(int steps);

    float minimum() const { return _minimum; }
    /// Raises the maximum when it would be lower.
    void setMinimum(float);
    float maximum() const { return _maximum; }
    /// Lowers the minimum when it would be higher.
    void setMaximum(float);

    /// The color of the track between its start and the thumb; nothing for the theme's color.
    void setTint(std::optional<Color>);
    /// All sliders share it.
    static Image& thumb();

    std::optional<Color> tint() const { return _tint; }

    /// How keys and assistive technology change the value, and how a screen reader says it.
    struct Steps {
        /// The change by the arrow keys and by assistive technology.
        double small = 0.01;
        /// The change by Page Up and Page Down.
        double large = 0.1;
        /// Said after the number by screen readers that say the number.
        std::string unit {};
        /// The value in words, with its unit; may be null.
        std::string (*words)(double value) = nullptr;
        /// What a double click on the thumb and the key 0 set; nothing when they do nothing.
        std::optional<double> neutral = std::nullopt;
    };
    void setSteps(Steps);

    /// The center of the thumb for a value, in the slider's own coordinates.
    Point thumbCenter(double value) const;

    void touchBegan(const Touch&) override;
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
    /// The horizontal distance from the thumb's center to the touch, in points; nothing when the touch does
    /// not move the thumb.
    std::optional<double> _grip;
    /// Whether the last touch began on the thumb.
    bool _thumbTouched = false;
    bool _heldByKey = false;
};

} // namespace brimsound::toolkit
