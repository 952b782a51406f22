#include "platform/UIKit/UILabel.h"

#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/Theme.h"

namespace brimsound {

namespace {

struct LabelPeer : desktop::ViewPeer {
    std::string text;
    RetainPtr<UIFont> font = UIFont::systemFontOfSize(desktop::theme::textSize);
    RetainPtr<UIColor> textColor = UIColor::blackColor();
    RetainPtr<UIColor> highlightedTextColor;
    bool highlighted = false;
    NSTextAlignment alignment = NSTextAlignment::Left;

    desktop::Color shownColor() const
    {
        return desktop::colorOf(highlighted && highlightedTextColor ? highlightedTextColor : textColor);
    }

    void draw(desktop::Canvas& canvas) const override
    {
        if (!text.empty() && font)
            canvas.drawLine(text, desktop::boundsOf(*this), *font, shownColor(), alignment);
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

UILabel::UILabel(Peer* peer)
    : UIView(peer)
{
}

UILabel::UILabel(const CGRect& frame)
    : UILabel(new LabelPeer)
{
    peerOf(*this).frame = frame;
}

std::string UILabel::text() const
{
    return peerOf(*this).text;
}

void UILabel::setText(const std::string& text)
{
    if (peerOf(*this).text == text)
        return;
    peerOf(*this).text = text;
    desktop::setNeedsDisplay(*this);
    desktop::rowContentsChanged(*this);
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
    desktop::rowContentsChanged(*this);
}

RetainPtr<UIColor> UILabel::textColor() const
{
    return peerOf(*this).textColor;
}

void UILabel::setTextColor(RetainPtr<UIColor> color)
{
    auto& peer = peerOf(*this);
    const auto before = peer.shownColor();
    peer.textColor = std::move(color);
    if (peer.shownColor() != before)
        desktop::setNeedsDisplay(*this);
}

RetainPtr<UIColor> UILabel::highlightedTextColor() const
{
    return peerOf(*this).highlightedTextColor;
}

void UILabel::setHighlightedTextColor(RetainPtr<UIColor> color)
{
    auto& peer = peerOf(*this);
    const auto before = peer.shownColor();
    peer.highlightedTextColor = std::move(color);
    if (peer.shownColor() != before)
        desktop::setNeedsDisplay(*this);
}

bool UILabel::isHighlighted() const
{
    return peerOf(*this).highlighted;
}

void UILabel::setHighlighted(bool highlighted)
{
    auto& peer = peerOf(*this);
    const auto before = peer.shownColor();
    peer.highlighted = highlighted;
    if (peer.shownColor() != before)
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
