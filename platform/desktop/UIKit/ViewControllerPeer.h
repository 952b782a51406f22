// What stands behind a UIViewController.
#pragma once

#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Overlay.h"

namespace brimsound::desktop {

struct ViewControllerPeer : Peer {
    ViewControllerPeer() = default;
    ~ViewControllerPeer() override;

    /// Null until it is asked for.
    RetainPtr<UIView> view;
    /// The view is told whose it is, and the one before that it is nobody's.
    void take(RetainPtr<UIView>, UIViewController*);
    RetainPtr<UIViewController> presented;
    /// Holds the presented controller's view.
    RetainPtr<Overlay> overlay;

    /// Escape was pressed while the controller's view is over everything.
    virtual void escape() { }
};

ViewControllerPeer& peerOf(const UIViewController&);

/// Makes a controller whose view is that one.
RetainPtr<UIViewController> makeViewController(RetainPtr<UIView>);

} // namespace brimsound::desktop
