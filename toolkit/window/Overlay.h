#pragma once

#include "toolkit/time/Animation.h"
#include "toolkit/view/View.h"

namespace brimsound::toolkit {

/// Covers the window for a while: dims it and blocks touches and keys for the views below.
class Overlay : public View {
public:
    /// `dimming` is the alpha of the black that covers the window.
    explicit Overlay(double dimming);

    /// Adds the overlay in front of everything in the window.
    void appearIn(View& window, bool animated);
    /// Ignores touches from now on, and removes the overlay after fading out.
    void disappear(bool animated);

    /// Called for Escape while the overlay is in front.
    virtual void escape() { }

    bool takesTouches() const override { return true; }
    bool ignoresTouches() const override { return _leaving; }

private:
    void fade(double from, double to, std::function<void()> completion = nullptr);

    Animation _fade;
    bool _leaving = false;
};

} // namespace brimsound::toolkit
