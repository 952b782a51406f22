#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIView.h"

#include <functional>

namespace brimsound {

/// Manages a view and, optionally, another controller that it presents over that view.
class UIViewController : public NSObject {
public:
    UIViewController();

    /// Created when it is first used.
    UIView& view() const;
    /// Null releases the view; the next use creates a new one.
    void setView(RetainPtr<UIView>);
    /// Called by a platform that releases the view to save memory. The base class does nothing.
    virtual void viewDidUnload() { }
    /// Called after each layout of the view: when its size or its subviews have changed, or a layout was
    /// requested. The base class does nothing.
    virtual void viewDidLayoutSubviews() { }

    /// Shows another controller's view over everything and retains the controller until it is dismissed. Does
    /// nothing when a controller is already presented. `completion`, which may be empty, is called when the
    /// presentation is finished.
    void presentViewControllerAnimatedCompletion(
        RetainPtr<UIViewController>, Animated, const std::function<void()>& completion);
    /// Dismisses the presented controller. Does nothing when there is none.
    void dismissViewControllerAnimatedCompletion(Animated, const std::function<void()>& completion);

protected:
    explicit UIViewController(Peer*);
};

} // namespace brimsound
