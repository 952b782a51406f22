// The effects of a test that may reach outside, or may not.
#pragma once

#include "tests/support/RecordingEffects.h"

namespace brimsound::tests {

/// Sets how far the effects reach until it goes.
class OutsideEffects : public RecordingEffects {
public:
    explicit OutsideEffects(desktop::Reach reach)
        : _reachBefore(desktop::reach())
    {
        desktop::setReach(reach);
    }
    OutsideEffects(const OutsideEffects&) = delete;
    OutsideEffects& operator=(const OutsideEffects&) = delete;
    ~OutsideEffects() override { desktop::setReach(_reachBefore); }

private:
    desktop::Reach _reachBefore;
};

} // namespace brimsound::tests
