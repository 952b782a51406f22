#include "platform/UIKit/UILabel.h"

#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/Font.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/text/Label.h"

namespace brimsound {

namespace {

toolkit::Label& native(const UILabel& label)
{
    return desktop::nativeOf<toolkit::Label>(label);
}

} // namespace

UILabel::UILabel(Peer* peer)
    : UIView(peer)
{
}

UILabel::UILabel(const CGRect& frame)
    : UILabel(desktop::peer(new desktop::Hosted<toolkit::Label>(desktop::toolkitRect(frame))))
{
}

std::string UILabel::text() const
{
    return native(*this).text();
}

void UILabel::setText(const std::string& text)
{
    native(*this).setText(text);
}

RetainPtr<UIFont> UILabel::font() const
{
    return desktop::uiFont(native(*this).font());
}

void UILabel::setFont(RetainPtr<UIFont> font)
{
    native(*this).setFont(desktop::toolkitFont(font));
}

RetainPtr<UIColor> UILabel::textColor() const
{
    return desktop::uiColor(native(*this).color());
}

void UILabel::setTextColor(RetainPtr<UIColor> color)
{
    native(*this).setColor(desktop::colorOf(color));
}

RetainPtr<UIColor> UILabel::highlightedTextColor() const
{
    return desktop::uiColor(native(*this).highlightedColor());
}

void UILabel::setHighlightedTextColor(RetainPtr<UIColor> color)
{
    native(*this).setHighlightedColor(desktop::toolkitColor(color));
}

bool UILabel::isHighlighted() const
{
    return native(*this).isHighlighted();
}

void UILabel::setHighlighted(bool highlighted)
{
    native(*this).setHighlighted(highlighted);
}

NSTextAlignment UILabel::textAlignment() const
{
    const auto alignment = native(*this).alignment();
    if (!alignment)
        return NSTextAlignment::Natural;
    switch (*alignment) {
    case toolkit::Alignment::Center:
        return NSTextAlignment::Center;
    case toolkit::Alignment::Right:
        return NSTextAlignment::Right;
    case toolkit::Alignment::Left:
        break;
    }
    return NSTextAlignment::Left;
}

void UILabel::setTextAlignment(NSTextAlignment alignment)
{
    switch (alignment) {
    case NSTextAlignment::Left:
        native(*this).setAlignment(toolkit::Alignment::Left);
        break;
    case NSTextAlignment::Center:
        native(*this).setAlignment(toolkit::Alignment::Center);
        break;
    case NSTextAlignment::Right:
        native(*this).setAlignment(toolkit::Alignment::Right);
        break;
    case NSTextAlignment::Natural:
        native(*this).setAlignment(std::nullopt);
        break;
    }
}

} // namespace brimsound
