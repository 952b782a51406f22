#include "platform/UIKit/UIViewController.h"

#include "platform/desktop/UIKit/Controller.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/window/Sheet.h"
#include "toolkit/window/Window.h"

#include <utility>

namespace brimsound {

using desktop::nativeController;

UIViewController::UIViewController()
    : UIViewController(desktop::peer(new desktop::Controller))
{
}

UIViewController::UIViewController(Peer* peer)
    : NSObject(peer)
{
}

UIView& UIViewController::view() const
{
    auto& controller = nativeController(*this);
    if (!controller.view())
        controller.setView(desktop::nativeOf<toolkit::View>(make<UIView>().get()));
    return *desktop::viewOf(controller.view().get());
}

void UIViewController::setView(RetainPtr<UIView> view)
{
    nativeController(*this).setView(desktop::nativeOf<toolkit::View>(view.get()));
}

void UIViewController::presentViewControllerAnimatedCompletion(
    RetainPtr<UIViewController> controller, Animated animated, const std::function<void()>& completion)
{
    auto& self = nativeController(*this);
    if (self.presented() || !controller || !toolkit::keyWindow())
        return;
    self.present(std::move(controller), animated == Animated::Yes);
    if (completion)
        completion();
}

void UIViewController::dismissViewControllerAnimatedCompletion(
    Animated animated, const std::function<void()>& completion)
{
    auto& self = nativeController(*this);
    if (!self.presented())
        return;
    self.dismiss(animated == Animated::Yes);
    if (completion)
        completion();
}

namespace desktop {

Controller::Controller() = default;

Controller::~Controller()
{
    tellView(nullptr);
}

void Controller::setView(toolkit::Ref<toolkit::View> view)
{
    tellView(nullptr);
    _view = std::move(view);
    tellView(static_cast<UIViewController*>(existingObjectOf(*this)));
}

void Controller::tellView(UIViewController* controller) const
{
    if (auto* hosted = dynamic_cast<HostedView*>(_view.get()))
        hosted->setController(controller);
}

void Controller::present(RetainPtr<UIViewController> controller, bool animated)
{
    _presented = std::move(controller);
    // The sheet may exist longer than this object while it fades out.
    const auto escape = [kept = _presented] { nativeController(*kept).escape(); };
    _sheet = toolkit::make<toolkit::Sheet>(nativeView(_presented->view()), escape);
    _sheet->appearIn(*toolkit::keyWindow(), animated);
}

void Controller::dismiss(bool animated)
{
    std::exchange(_sheet, nullptr)->disappear(animated);
    _presented = nullptr;
}

RetainPtr<UIViewController> makeViewController(toolkit::View& view)
{
    auto* controller = new Controller;
    auto object = adopt(&objectOf<UIViewController>(*controller));
    controller->setView(toolkit::keep(&view));
    return object;
}

} // namespace desktop

} // namespace brimsound
