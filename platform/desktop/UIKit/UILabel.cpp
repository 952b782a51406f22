#include "platform/UIKit/UILabel.h"

#include "platform/desktop/UIKit/Theme.h"
#include "platform/desktop/UIKit/ViewPeer.h"

namespace brimsound {

namespace {

struct LabelPeer : desktop::ViewPeer {
    std::string text;
    RetainPtr<UIFont> font = UIFont::systemFontOfSize(desktop::theme::textSize);
    RetainPtr<UIColor> textColor = UIColor::blackColor();
    NSTextAlignment alignment = NSTextAlignment::Left;

    void draw(desktop::Canvas& canvas) const override
    {
        if (!text.empty() && font)
            canvas.drawLine(text, desktop::boundsOf(*this), *font, desktop::colorOf(textColor), alignment);
    }

    desktop::Accessible accessible() const override
    {
        if (text.empty() || desktop::namesControl(*view))
            return {};
        return { .role = desktop::AccessibleRole::Label, .name = text };
    }
};

LabelPeer& peerOf(const UILabel& label)
{
    return static_cast<LabelPeer&>(label.peer());
}

} // namespace

UILabel::UILabel(const CGRect& frame)
    : UIView(new LabelPeer)
{
    peerOf(*this).frame = frame;
}

const std::string& UILabel::text() const
{
    return peerOf(*this).text;
}

void UILabel::setText(const std::string& text)
{
    if (peerOf(*this).text == text)
        return;
    peerOf(*this).text = text;
    desktop::setNeedsDisplay(*this);
}

RetainPtr<UIFont> UILabel::font() const
{
    return peerOf(*this).font;
}

void UILabel::setFont(RetainPtr<UIFont> font)
{
    if (peerOf(*this).font == font)
        return;
    peerOf(*this).font = std::move(font);
    desktop::setNeedsDisplay(*this);
}

RetainPtr<UIColor> UILabel::textColor() const
{
    return peerOf(*this).textColor;
}

void UILabel::setTextColor(RetainPtr<UIColor> color)
{
    auto& peer = peerOf(*this);
    const bool looksTheSame = desktop::colorOf(color) == desktop::colorOf(peer.textColor);
    peer.textColor = std::move(color);
    if (!looksTheSame)
        desktop::setNeedsDisplay(*this);
}

NSTextAlignment UILabel::textAlignment() const
{
    return peerOf(*this).alignment;
}

void UILabel::setTextAlignment(NSTextAlignment alignment)
{
    if (peerOf(*this).alignment == alignment)
        return;
    peerOf(*this).alignment = alignment;
    desktop::setNeedsDisplay(*this);
}

} // namespace brimsound
