#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/control/Control.h"

#include <string>
#include <vector>

namespace brimsound::desktop {

/// The targets of a control, in the order in which they were added. Not retained.
class ControlTargets {
public:
    virtual ~ControlTargets() = default;

    void add(NSObject& target, std::string_view action, UIControlEvents);
    void send(UIControl& sender, UIControlEvents) const;

private:
    struct Target {
        NSObject* object;
        std::string action;
        /// Null when the object has no such method.
        const Method* method;
        UIControlEvents events;
    };

    std::vector<Target> _targets;
};

/// A toolkit control with the targets of its UIControl.
template <typename Native> class HostedControl : public Hosted<Native>, public ControlTargets {
public:
    using Hosted<Native>::Hosted;
};

} // namespace brimsound::desktop
