// What stands behind a UIControl.
#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <string>
#include <vector>

namespace brimsound::desktop {

/// Turns touches into control events. A control keeps a touch that it has, wherever the finger goes.
struct ControlPeer : ViewPeer {
    struct Target {
        NSObject* object;
        std::string action;
        /// Null when the object does not answer the action.
        const Method* method;
        UIControlEvents events;
    };

    std::vector<Target> targets;
    bool isTracking = false;
    bool isTouchInside = false;

    bool takesTouches() const override { return true; }
    bool yieldsToScrolling() const override { return false; }
    void touchBegan(const Touch&) override;
    void touchMoved(const Touch&) override;
    void touchEnded(const Touch&) override;
    void touchCancelled() override;

    /// Told of the touch, in the control's own coordinates, before the events are sent.
    virtual void beginTracking(CGPoint, Pointer) { }
    virtual void continueTracking(CGPoint) { }
    virtual void endTracking(CGPoint, bool /*inside*/) { }
    virtual void cancelTracking() { }

    void send(UIControlEvents);
};

} // namespace brimsound::desktop
