// View controllers' views, and what they present.
#pragma once

#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/Foundation/Peer.h"
#include "toolkit/view/View.h"

namespace brimsound::toolkit {
class Sheet;
}

namespace brimsound::desktop {

/// The native object of a view controller.
class Controller : public toolkit::Object {
public:
    Controller();

    /// Null when there is none.
    const toolkit::Ref<toolkit::View>& view() const { return _view; }
    /// Null lets go of it.
    void setView(toolkit::Ref<toolkit::View>);

    /// The controller that is shown over the window; null for none.
    UIViewController* presented() const { return _presented.get(); }
    void present(RetainPtr<UIViewController>, bool animated);
    void dismiss(bool animated);

    /// Escape was pressed while the controller's view is over everything.
    virtual void escape() { }

protected:
    ~Controller() override;

private:
    void tellView(UIViewController*) const;

    toolkit::Ref<toolkit::View> _view;
    RetainPtr<UIViewController> _presented;
    toolkit::Ref<toolkit::Sheet> _sheet;
};

inline Controller& nativeController(const UIViewController& controller)
{
    return nativeOf<Controller>(controller);
}

/// Makes a controller whose view is that one.
RetainPtr<UIViewController> makeViewController(toolkit::View&);

} // namespace brimsound::desktop
