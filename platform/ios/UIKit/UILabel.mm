#include "platform/UIKit/UILabel.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

namespace brimsound {

using ios::retainedObjectOf;

namespace {

::UILabel* nativeOf(const UILabel& label)
{
    return ios::nativeOf(label);
}

} // namespace

UILabel::UILabel(const CGRect& frame)
    : UILabel(ios::peer([[::UILabel alloc] initWithFrame:ios::native(frame)]))
{
}

UILabel::UILabel(Peer* peer)
    : UIView(peer)
{
}

std::string UILabel::text() const
{
    return ios::textOf([nativeOf(*this) text]);
}

void UILabel::setText(const std::string& text)
{
    [nativeOf(*this) setText:ios::nativeText(text)];
}

RetainPtr<UIFont> UILabel::font() const
{
    return retainedObjectOf<UIFont>([nativeOf(*this) font]);
}

void UILabel::setFont(RetainPtr<UIFont> font)
{
    [nativeOf(*this) setFont:ios::nativeOf(font.get())];
}

RetainPtr<UIColor> UILabel::textColor() const
{
    return retainedObjectOf<UIColor>([nativeOf(*this) textColor]);
}

void UILabel::setTextColor(RetainPtr<UIColor> color)
{
    [nativeOf(*this) setTextColor:ios::nativeOf(color.get())];
}

RetainPtr<UIColor> UILabel::highlightedTextColor() const
{
    return retainedObjectOf<UIColor>([nativeOf(*this) highlightedTextColor]);
}

void UILabel::setHighlightedTextColor(RetainPtr<UIColor> color)
{
    [nativeOf(*this) setHighlightedTextColor:ios::nativeOf(color.get())];
}

bool UILabel::isHighlighted() const
{
    return [nativeOf(*this) isHighlighted];
}

void UILabel::setHighlighted(bool highlighted)
{
    [nativeOf(*this) setHighlighted:highlighted];
}

NSTextAlignment UILabel::textAlignment() const
{
    return static_cast<NSTextAlignment>([nativeOf(*this) textAlignment]);
}

void UILabel::setTextAlignment(NSTextAlignment alignment)
{
    [nativeOf(*this) setTextAlignment:static_cast<::NSTextAlignment>(alignment)];
}

} // namespace brimsound
