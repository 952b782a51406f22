#pragma once

#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/Foundation/Peer.h"
#include "toolkit/view/View.h"

namespace brimsound::toolkit {
class Sheet;
}

namespace brimsound::desktop {

/// The native object of a view controller: its view, and the controller that it presents.
class Controller : public toolkit::Object {
public:
    Controller();

    /// May be null.
    const toolkit::Ref<toolkit::View>& view() const { return _view; }
    /// Null removes the view.
    void setView(toolkit::Ref<toolkit::View>);

    /// The presented controller; may be null.
    UIViewController* presented() const { return _presented.get(); }
    void present(RetainPtr<UIViewController>, bool animated);
    void dismiss(bool animated);

    /// Called for Escape while the controller's view is in front.
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

/// Creates a controller with this view.
RetainPtr<UIViewController> makeViewController(toolkit::View&);

} // namespace brimsound::desktop
