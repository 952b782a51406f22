#include "platform/desktop/MessageUI/ComposeView.h"

#include "platform/Foundation/NSString.h"
#include "platform/desktop/UIKit/NavigationBar.h"
#include "platform/desktop/UIKit/Theme.h"
#include "platform/desktop/UIKit/ViewPeer.h"

namespace brimsound::desktop {

namespace {

constexpr double barHeight = NavigationBar::height;
constexpr double rowHeight = 44;
constexpr double buttonWidth = 84;
constexpr double captionWidth = 84;

std::string sizeText(std::size_t bytes)
{
    const auto count = static_cast<double>(bytes);
    if (bytes < 1000)
        return stringWithFormat("%.0f bytes", count);
    return bytes < 1'000'000 ? stringWithFormat("%.1f kB", count / 1e3)
                             : stringWithFormat("%.1f MB", count / 1e6);
}

std::string joined(const std::vector<std::string>& addresses)
{
    std::string text;
    for (const auto& address : addresses)
        text += (text.empty() ? "" : ", ") + address;
    return text;
}

struct ComposePeer : ViewPeer {
    explicit ComposePeer(const Mail& shown)
        : mail(shown)
    {
    }

    const Mail& mail;

    void draw(Canvas& canvas) const override
    {
        const double width = frame.size.width;
        const double line = canvas.hairline();
        canvas.fillRect(boundsOf(*this), theme::rowBackground);
        canvas.fillRect(CGRectMake(0, 0, width, barHeight), theme::barBackground);
        canvas.fillRect(CGRectMake(0, barHeight - line, width, line), theme::barSeparator);
        const auto bold = UIFont::fontWithNameSize("HelveticaNeue-SemiBold", theme::textSize);
        canvas.drawLine("New Message", CGRectMake(buttonWidth, 0, width - 2 * buttonWidth, barHeight), *bold,
            theme::text, NSTextAlignment::Center);

        double y = barHeight;
        drawRow(canvas, y, "To:", joined(mail.to));
        drawRow(canvas, y, "Subject:", mail.subject);
        for (const auto& attachment : mail.attachments)
            drawRow(canvas, y, "Attached:", attachment.fileName + ", " + sizeText(attachment.data.size()));
    }

    Accessible accessible() const override
    {
        std::string texts = "To: " + joined(mail.to) + "\nSubject: " + mail.subject;
        for (const auto& attachment : mail.attachments)
            texts += "\nAttached: " + attachment.fileName + ", " + sizeText(attachment.data.size());
        return { .role = AccessibleRole::Dialog, .name = "New Message", .description = texts };
    }

    void drawRow(Canvas& canvas, double& y, const std::string& caption, const std::string& text) const
    {
        static const auto font = UIFont::systemFontOfSize(15);
        const double left = theme::rowMargin;
        const double width = frame.size.width - 2 * left;
        canvas.drawLine(caption, CGRectMake(left, y, captionWidth, rowHeight), *font, theme::secondaryText,
            NSTextAlignment::Left);
        canvas.drawLine(text, CGRectMake(left + captionWidth, y, width - captionWidth, rowHeight), *font,
            theme::text, NSTextAlignment::Left);
        y += rowHeight;
        canvas.fillRect(
            CGRectMake(left, y - canvas.hairline(), width + left, canvas.hairline()), theme::separator);
    }
};

} // namespace

ComposeView::ComposeView(const Mail& mail, std::function<void()> onCancel, std::function<void()> onSend)
    : UIView(new ComposePeer(mail))
    , _cancel(make<TextButton>("Cancel", UIFont::systemFontOfSize(theme::textSize), std::move(onCancel)))
    , _send(make<TextButton>(
          "Send", UIFont::fontWithNameSize("HelveticaNeue-SemiBold", theme::textSize), std::move(onSend)))
{
    addSubview(*_cancel);
    addSubview(*_send);
}

void ComposeView::layoutSubviews()
{
    _cancel->setFrame(CGRectMake(0, 0, buttonWidth, barHeight));
    _send->setFrame(CGRectMake(bounds().size.width - buttonWidth, 0, buttonWidth, barHeight));
}

} // namespace brimsound::desktop
