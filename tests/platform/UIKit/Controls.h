// Controls under test and what they send.
#pragma once

#include "platform/desktop/UIKit/ControlPeer.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

/// A control that does nothing but send its events.
class Button : public UIControl {
public:
    explicit Button(const CGRect& frame)
        : UIControl(new desktop::ControlPeer)
    {
        setFrame(frame);
    }
};

/// Writes down every event of the controls that it listens to, by the name of its own method for it.
class EventLog : public NSObject {
public:
    void listenTo(UIControl& control)
    {
        for (const auto& [selector, event] : events)
            control.addTargetActionForControlEvents(*this, selector, event);
    }

    /// The events since the last call.
    std::vector<std::string> take() { return std::exchange(_log, {}); }

    std::span<const Method> methods() const override
    {
        return table(std::make_index_sequence<events.size()>());
    }

private:
    static constexpr std::array<std::pair<const char*, UIControlEvents>, 9> events { {
        { "down", UIControlEventTouchDown },
        { "drag inside", UIControlEventTouchDragInside },
        { "drag outside", UIControlEventTouchDragOutside },
        { "enter", UIControlEventTouchDragEnter },
        { "exit", UIControlEventTouchDragExit },
        { "up inside", UIControlEventTouchUpInside },
        { "up outside", UIControlEventTouchUpOutside },
        { "cancel", UIControlEventTouchCancel },
        { "value", UIControlEventValueChanged },
    } };

    template <std::size_t event> void happened(UIControl&) { _log.emplace_back(events[event].first); }

    template <std::size_t... indices> static std::span<const Method> table(std::index_sequence<indices...>)
    {
        static const std::array methods { method<&EventLog::happened<indices>>(events[indices].first)... };
        return methods;
    }

    std::vector<std::string> _log;
};

} // namespace brimsound::tests
