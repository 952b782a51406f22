// View controllers: what fills the screen, or a sheet over it.
#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIView.h"

#include <functional>

namespace brimsound {

/// Owns a view, and the controller that it presents over that view, if any.
class UIViewController : public NSObject {
public:
    UIViewController();

    /// Made when it is first asked for.
    UIView& view() const;
    /// Null lets go of the view; the next one that asks for it has a new one made.
    void setView(RetainPtr<UIView>);
    /// Told by a platform that lets go of the view to save memory; here it does nothing.
    virtual void viewDidUnload() { }
    /// Told when the view was laid out: when its size has changed or its subviews have, and whenever else a
    /// layout was asked for. Here it does nothing.
    virtual void viewDidLayoutSubviews() { }

    /// Shows another controller's view over everything, and retains the controller until it is dismissed.
    /// Nothing when one is presented already. `completion`, which may be empty, is called when it stands.
    void presentViewControllerAnimatedCompletion(
        RetainPtr<UIViewController>, Animated, const std::function<void()>& completion);
    /// Takes the presented controller away again. Nothing when there is none.
    void dismissViewControllerAnimatedCompletion(Animated, const std::function<void()>& completion);

protected:
    explicit UIViewController(Peer*);
};

} // namespace brimsound
