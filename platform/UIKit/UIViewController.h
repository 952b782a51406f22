// View controllers: what fills the screen, or a sheet over it.
#pragma once

#include "platform/UIKit/UISwitch.h"
#include "platform/UIKit/UIView.h"

#include <functional>

namespace brimsound {

/// Owns a view, and the controller that it presents over that view, if any.
class UIViewController : public NSObject {
public:
    UIViewController();

    UIView& view() const;

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
