// A gain that moves without steps.
#pragma once

#include <cmath>

namespace brimsound::audio {

/// Follows a target in dB through two one-pole low-passes, one after the other. Two, because the slope then
/// starts at zero: no corner is heard when the target jumps.
class GainSmoother {
public:
    /// In dB.
    double value() const { return _second; }
    bool isAt(double target) const { return _first == target && _second == target; }

    void jumpTo(double target) { _first = _second = target; }

    /// One step toward the target; `share` is what each pole covers of its distance, 1 - exp(-step / time
    /// constant). Ends on the target exactly.
    void stepToward(double target, double share)
    {
        // A ten-thousandth of a dB is beyond hearing.
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
