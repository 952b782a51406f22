// Controls: views that turn touches into actions.
#pragma once

#include "platform/UIKit/UIView.h"

#include <cstdint>
#include <string_view>

namespace brimsound {

/// A set of control events, with the platform's numbers.
using UIControlEvents = std::uint32_t;

inline constexpr UIControlEvents UIControlEventTouchDown = 1u << 0;
inline constexpr UIControlEvents UIControlEventTouchDragInside = 1u << 2;
inline constexpr UIControlEvents UIControlEventTouchDragOutside = 1u << 3;
inline constexpr UIControlEvents UIControlEventTouchDragEnter = 1u << 4;
inline constexpr UIControlEvents UIControlEventTouchDragExit = 1u << 5;
inline constexpr UIControlEvents UIControlEventTouchUpInside = 1u << 6;
inline constexpr UIControlEvents UIControlEventTouchUpOutside = 1u << 7;
inline constexpr UIControlEvents UIControlEventTouchCancel = 1u << 8;
inline constexpr UIControlEvents UIControlEventValueChanged = 1u << 12;
inline constexpr UIControlEvents UIControlEventEditingDidEnd = 1u << 18;
inline constexpr UIControlEvents UIControlEventEditingDidEndOnExit = 1u << 19;

/// A view that sends an action to each of its targets when one of the events that the target asked for
/// happens.
class UIControl : public UIView {
public:
    /// Calls the target's method of that name, with this control as the argument, on each of the events. The
    /// target is not retained and must outlive the control. Asking again adds the events to those asked for
    /// before.
    void addTargetActionForControlEvents(NSObject& target, std::string_view action, UIControlEvents);

    /// Sends the actions of every target that asked for one of the events, in the order in which they were
    /// added.
    void sendActionsForControlEvents(UIControlEvents);

protected:
    explicit UIControl(Peer*);
};

} // namespace brimsound
