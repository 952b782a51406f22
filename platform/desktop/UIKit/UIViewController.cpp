#include "platform/UIKit/UIViewController.h"

#include "platform/desktop/UIKit/ViewControllerPeer.h"
#include "platform/desktop/UIKit/ViewPeer.h"
#include "platform/desktop/UIKit/Window.h"

namespace brimsound {

using desktop::peerOf;
using desktop::ViewControllerPeer;

namespace {

constexpr double dimming = 0.4;

/// A presented controller's view, as large as the window.
class Sheet : public desktop::Overlay {
public:
    explicit Sheet(UIViewController& controller)
        : Overlay(dimming)
        , _controller(brimsound::retain(&controller))
    {
        addSubview(controller.view());
    }

    void layoutSubviews() override { _controller->view().setFrame(bounds()); }
    void escape() override { peerOf(*_controller).escape(); }

private:
    RetainPtr<UIViewController> _controller;
};

} // namespace

UIViewController::UIViewController()
    : UIViewController(new ViewControllerPeer)
{
}

UIViewController::UIViewController(Peer* peer)
    : NSObject(peer)
{
}

UIView& UIViewController::view() const
{
    auto& peer = peerOf(*this);
    if (!peer.view)
        peer.take(make<UIView>(), const_cast<UIViewController*>(this));
    return *peer.view;
}

void UIViewController::setView(RetainPtr<UIView> view)
{
    peerOf(*this).take(std::move(view), this);
}

void UIViewController::presentViewControllerAnimatedCompletion(
    RetainPtr<UIViewController> controller, Animated animated, const std::function<void()>& completion)
{
    auto& peer = peerOf(*this);
    auto* window = desktop::keyWindow();
    if (peer.presented || !controller || !window)
        return;
    peer.presented = std::move(controller);
    peer.overlay = make<Sheet>(*peer.presented);
    peer.overlay->appearIn(*window, animated);
    if (completion)
        completion();
}

void UIViewController::dismissViewControllerAnimatedCompletion(
    Animated animated, const std::function<void()>& completion)
{
    auto& peer = peerOf(*this);
    if (!peer.presented)
        return;
    std::exchange(peer.overlay, nullptr)->disappear(animated);
    peer.presented = nullptr;
    if (completion)
        completion();
}

namespace desktop {

ViewControllerPeer::~ViewControllerPeer()
{
    take(nullptr, nullptr);
}

void ViewControllerPeer::take(RetainPtr<UIView> taken, UIViewController* controller)
{
    if (view)
        peerOf(*view).controller = nullptr;
    view = std::move(taken);
    if (view)
        peerOf(*view).controller = controller;
}

ViewControllerPeer& peerOf(const UIViewController& controller)
{
    return static_cast<ViewControllerPeer&>(controller.peer());
}

RetainPtr<UIViewController> makeViewController(RetainPtr<UIView> view)
{
    struct Controller : UIViewController {
        explicit Controller(Peer* peer)
            : UIViewController(peer)
        {
        }
    };
    auto controller = make<Controller>(new ViewControllerPeer);
    controller->setView(std::move(view));
    return controller;
}

} // namespace desktop

} // namespace brimsound
