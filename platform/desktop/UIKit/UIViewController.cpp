#include "platform/UIKit/UIViewController.h"

#include "platform/desktop/UIKit/ViewControllerPeer.h"
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
    auto& view = peerOf(*this).view;
    if (!view)
        view = make<UIView>();
    return *view;
}

void UIViewController::setView(RetainPtr<UIView> view)
{
    peerOf(*this).view = std::move(view);
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
    return make<Controller>(new ViewControllerPeer(std::move(view)));
}

} // namespace desktop

} // namespace brimsound
