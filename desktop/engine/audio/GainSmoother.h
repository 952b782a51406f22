#pragma once

#include <cmath>

namespace brimsound::audio {

/// A gain that follows its target, in dB, through two one-pole low-passes in series. With two, the slope
/// starts at zero, so that a jump of the target is not heard as a click.
class GainSmoother {
public:
    /// In dB.
    double value() const { return _second; }
    bool isAt(double target) const { return _first == target && _second == target; }

    void jumpTo(double target) { _first = _second = target; }

    /// One step toward the target. `share` is the fraction of the remaining distance that each pole covers: 1
    /// - exp(-step / time constant). Reaches the target exactly.
    void stepToward(double target, double share)
    {
        // A ten-thousandth of a dB is inaudible.
        constexpr double near = 1e-4;
        _first += share * (target - _first);
        _second += share * (_first - _second);
        if (std::abs(target - _first) < near && std::abs(target - _second) < near)
            jumpTo(target);
    }

private:
    double _first = 0;
    double _second = 0;
};

} // namespace brimsound::audio
