#include "platform/UIKit/UIAlertView.h"

#include "platform/desktop/UIKit/AlertPeer.h"
#include "platform/desktop/UIKit/Text.h"
#include "platform/desktop/UIKit/Theme.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>

namespace brimsound {

namespace desktop {

namespace {

constexpr double widestCard = 270;
/// What stays free at each side of a card in a narrow window.
constexpr double windowMargin = 8;
constexpr double cardRadius = 13;
constexpr double textMargin = 16;
constexpr double textPadding = 20;
constexpr double gapBelowTitle = 4;
constexpr double buttonHeight = 44;
constexpr double messageSize = 15;

RetainPtr<UIFont> boldFont()
{
    return UIFont::fontWithNameSize("HelveticaNeue-SemiBold", theme::textSize);
}

const UIFont& titleFont()
{
    static const auto font = boldFont();
    return *font;
}

const UIFont& messageFont()
{
    static const auto font = UIFont::systemFontOfSize(messageSize);
    return *font;
}

double heightOf(const std::string& text, const UIFont& font, double cardWidth)
{
    return text.empty() ? 0 : heightOfParagraph(text, font, cardWidth - 2 * textMargin);
}

double bottomOf(const CGRect& rect)
{
    return rect.origin.y + rect.size.height;
}

} // namespace

AlertPeer& peerOf(const UIAlertView& alert)
{
    return static_cast<AlertPeer&>(alert.peer());
}

AlertPeer::AlertPeer()
{
    cornerRadius = cardRadius;
    clipsToBounds = true;
}

CGRect AlertPeer::titleRect(double width) const
{
    return CGRectMake(textMargin, textPadding, width - 2 * textMargin, heightOf(title, titleFont(), width));
}

CGRect AlertPeer::messageRect(double width) const
{
    const double top = title.empty() ? textPadding : bottomOf(titleRect(width)) + gapBelowTitle;
    return CGRectMake(textMargin, top, width - 2 * textMargin, heightOf(message, messageFont(), width));
}

CGSize sizeOf(const UIAlertView& alert, CGSize window)
{
    const auto& peer = peerOf(alert);
    const auto rows = peer.hasButtonsSideBySide() ? 1 : peer.buttons.size();
    const double width = std::max(0.0, std::min(widestCard, window.width - 2 * windowMargin));
    const double height
        = bottomOf(peer.messageRect(width)) + textPadding + buttonHeight * static_cast<double>(rows);
    return { width, std::min(height, window.height) };
}

std::vector<std::string> buttonTitlesOf(const UIAlertView& alert)
{
    std::vector<std::string> titles;
    for (const auto& button : peerOf(alert).buttons)
        titles.push_back(button->title());
    return titles;
}

double AlertPeer::topOfButtons() const
{
    double top = frame.size.height;
    for (const auto& button : buttons)
        top = std::min(top, button->frame().origin.y);
    return top;
}

void AlertPeer::draw(Canvas& canvas) const
{
    const auto bounds = boundsOf(*this);
    const double width = bounds.size.width;
    const double line = canvas.hairline();
    canvas.fillRect(bounds, theme::rowBackground);
    canvas.save();
    canvas.clip(CGRectMake(0, 0, width, topOfButtons()));
    if (!title.empty())
        canvas.drawParagraph(title, titleRect(width), titleFont(), theme::text, NSTextAlignment::Center);
    canvas.drawParagraph(message, messageRect(width), messageFont(), theme::text, NSTextAlignment::Center);
    canvas.restore();
    for (const auto& button : buttons) {
        const auto place = button->frame();
        canvas.fillRect(CGRectMake(0, place.origin.y - line, bounds.size.width, line), theme::separator);
        if (place.origin.x > 0)
            canvas.fillRect(
                CGRectMake(place.origin.x - line, place.origin.y, line, place.size.height), theme::separator);
    }
}

Accessible AlertPeer::accessible() const
{
    return { .role = AccessibleRole::Alert, .name = message, .description = title };
}

void AlertPeer::answer(std::size_t buttonIndex)
{
    const auto kept = brimsound::retain(&alert());
    // An alert that is on its way out has been answered.
    auto* window = keyWindow();
    if (!window || window->alerts().current() != kept.get())
        return;
    window->alerts().dismissCurrent();
    if (delegate)
        delegate->alertViewClickedButtonAtIndex(*kept, static_cast<long>(buttonIndex));
}

} // namespace desktop

using desktop::AlertPeer;
using desktop::peerOf;
using desktop::TextButton;

UIAlertView::UIAlertView(Peer* peer)
    : UIView(peer)
{
}

UIAlertView::UIAlertView(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
    const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles)
    : UIAlertView(new AlertPeer)
{
    auto& peer = peerOf(*this);
    peer.title = title;
    peer.message = message;
    peer.delegate = delegate;

    const auto addButton = [&](const std::string& text, RetainPtr<UIFont> font) {
        const auto button = make<TextButton>(
            text, std::move(font), [&peer, index = peer.buttons.size()] { peer.answer(index); });
        peer.buttons.push_back(button);
        addSubview(*button);
    };
    addButton(cancelButtonTitle, desktop::boldFont());
    for (const auto& text : otherButtonTitles)
        addButton(text, UIFont::systemFontOfSize(desktop::theme::textSize));
}

void UIAlertView::show()
{
    if (auto* window = desktop::keyWindow())
        window->alerts().add(*this);
}

void UIAlertView::layoutSubviews()
{
    const auto& peer = peerOf(*this);
    const auto [width, height] = bounds().size;
    const auto count = peer.buttons.size();
    for (std::size_t i = 0; i < count; ++i) {
        const auto place = static_cast<double>(i);
        if (peer.hasButtonsSideBySide()) {
            peer.buttons[i]->setFrame(CGRectMake(
                place * width / 2, height - desktop::buttonHeight, width / 2, desktop::buttonHeight));
        } else {
            // The cancel button, which is the first, stands at the bottom.
            const double row = i == 0 ? 1 : static_cast<double>(count - i) + 1;
            peer.buttons[i]->setFrame(
                CGRectMake(0, height - row * desktop::buttonHeight, width, desktop::buttonHeight));
        }
    }
}

} // namespace brimsound
