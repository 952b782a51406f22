#include "platform/UIKit/UIAlertView.h"

#include "platform/desktop/UIKit/HostedView.h"
#include "platform/desktop/effects/Effects.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/window/Window.h"

namespace brimsound {

namespace {

std::vector<std::string> allTitles(const std::string& cancelTitle, std::vector<std::string> otherTitles)
{
    otherTitles.insert(otherTitles.begin(), cancelTitle);
    return otherTitles;
}

} // namespace

UIAlertView::UIAlertView(Peer* peer)
    : UIView(peer)
{
}

UIAlertView::UIAlertView(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
    const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles)
    : UIAlertView(desktop::peer(
        new desktop::Hosted<toolkit::Alert>(title, message, allTitles(cancelButtonTitle, otherButtonTitles))))
{
    auto& alert = desktop::nativeOf<toolkit::Alert>(*this);
    alert.onShown = [&alert] { desktop::effects().alertShown(alert.message(), alert.buttonTitles()); };
    alert.onAnswer = [this, delegate](std::size_t button) {
        if (delegate)
            delegate->alertViewClickedButtonAtIndex(*this, static_cast<long>(button));
    };
}

void UIAlertView::show()
{
    if (auto* window = toolkit::keyWindow())
        window->alerts().add(desktop::nativeOf<toolkit::Alert>(*this));
}

void UIAlertView::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
