// What lies over a whole window for a while.
#pragma once

#include "toolkit/time/Animation.h"
#include "toolkit/view/View.h"

namespace brimsound::toolkit {

/// Dims the window and keeps touches and keys from what lies below.
class Overlay : public View {
public:
    /// `dimming` is the alpha of the black that covers the window.
    explicit Overlay(double dimming);

    /// Appears over everything in the window.
    void appearIn(View& window, bool animated);
    /// Takes no touches from now on, and leaves the window when it has faded.
    void disappear(bool animated);

    /// Escape was pressed while this is in front.
    virtual void escape() { }

    bool takesTouches() const override { return true; }
    bool ignoresTouches() const override { return _leaving; }

private:
    void fade(double from, double to, std::function<void()> completion = nullptr);

    Animation _fade;
    bool _leaving = false;
};

} // namespace brimsound::toolkit
