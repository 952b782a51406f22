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

/// A view that turns touches into control events. It sends an action to each target that registered for the
/// event.
class UIControl : public UIView {
public:
    /// Calls the target's method of that name for each of the events, with this control as the argument. The
    /// target is not retained and must outlive the control. A repeated call adds its events to the earlier
    /// ones.
    void addTargetActionForControlEvents(NSObject& target, std::string_view action, UIControlEvents);

    /// Sends the actions of every target that registered for one of the events, in the order of registration.
    void sendActionsForControlEvents(UIControlEvents);

protected:
    explicit UIControl(Peer*);
};

} // namespace brimsound
