#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "platform/desktop/UIKit/SliderPeer.h"

#include <cstddef>

namespace brimsound::tests {

/// A pane scrolled to its sliders, with a finger on the slider of the second band.
class HeldSlider {
public:
    explicit HeldSlider(CGSize windowSize)
        : _host(windowSize)
    {
        _host.window().layOut();
        auto& slider = this->slider();
        _host.window().touchDown({ placeFor(slider.value()), desktop::Pointer::Mouse });
    }

    UISlider& slider() { return *(*_host.controller()->sliders())[2]; }
    desktop::Window& window() { return _host.window(); }

    /// In dB.
    void dragTo(double value) { _host.window().touchMove(placeFor(value)); }

private:
    CGPoint placeFor(double value)
    {
        return desktop::convertToWindow(desktop::peerOf(slider()).thumbCentre(value), slider());
    }

    desktop::PaneHost _host;
};

} // namespace brimsound::tests
