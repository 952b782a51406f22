#pragma once

#include "toolkit/control/Control.h"

#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

/// Records the events of controls. It must exist longer than the controls.
class EventLog {
public:
    void listenTo(toolkit::Control& control)
    {
        control.onEvent = [this](toolkit::ControlEvent event) { _log.emplace_back(nameOf(event)); };
    }

    /// The events since the last call.
    std::vector<std::string> take() { return std::exchange(_log, {}); }

private:
    static const char* nameOf(toolkit::ControlEvent event)
    {
        switch (event) {
        case toolkit::ControlEvent::TouchDown:
            return "down";
        case toolkit::ControlEvent::DragInside:
            return "drag inside";
        case toolkit::ControlEvent::DragOutside:
            return "drag outside";
        case toolkit::ControlEvent::DragEnter:
            return "enter";
        case toolkit::ControlEvent::DragExit:
            return "exit";
        case toolkit::ControlEvent::TouchUpInside:
            return "up inside";
        case toolkit::ControlEvent::TouchUpOutside:
            return "up outside";
        case toolkit::ControlEvent::TouchCancel:
            return "cancel";
        case toolkit::ControlEvent::ValueChanged:
            return "value";
        }
        return "";
    }

    std::vector<std::string> _log;
};

} // namespace brimsound::tests
