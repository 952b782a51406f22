#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/control/Slider.h"

#include <cstddef>

namespace brimsound::tests {

/// A pane scrolled to its sliders, with a finger on the slider of the second band.
class HeldSlider {
public:
    explicit HeldSlider(toolkit::Size windowSize)
        : _host(windowSize)
    {
        _host.window().layOutAll();
        _host.window().touchDown({ placeFor(slider().value()), toolkit::Pointer::Mouse });
    }

    toolkit::Slider& slider()
    {
        return desktop::nativeOf<toolkit::Slider>(*(*_host.controller()->sliders())[2]);
    }
    toolkit::Window& window() { return _host.window(); }

    /// In dB.
    void dragTo(double value) { _host.window().touchMove(placeFor(value)); }

private:
    toolkit::Point placeFor(double value) { return slider().toWindow(slider().thumbCenter(value)); }

    desktop::PaneHost _host;
};

} // namespace brimsound::tests
