#pragma once

#include "tests/support/RecordingEffects.h"

namespace brimsound::tests {

/// Records effects, and chooses whether they reach other programs, until it is destroyed.
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
