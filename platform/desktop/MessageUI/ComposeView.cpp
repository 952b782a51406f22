#include "platform/desktop/MessageUI/ComposeView.h"

#include "platform/Foundation/NSString.h"
#include "toolkit/drawing/Theme.h"
#include "toolkit/window/TitleBar.h"

namespace brimsound::desktop {

using toolkit::Alignment, toolkit::Canvas, toolkit::Font, toolkit::makeRect;
namespace theme = toolkit::theme;

namespace {

constexpr double barHeight = toolkit::TitleBar::height;
constexpr double rowHeight = 44;
constexpr double buttonWidth = 84;
constexpr double captionWidth = 84;

const Font plainFont { {}, theme::textSize };
const Font boldFont { theme::boldFont, theme::textSize };
const Font rowFont { {}, 15 };

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

std::string textOf(const MailAttachment& attachment)
{
    return attachment.fileName + ", " + sizeText(attachment.data.size());
}

} // namespace

ComposeView::ComposeView(const Mail& mail, std::function<void()> onCancel, std::function<void()> onSend)
    : _mail(mail)
    , _cancel(toolkit::make<toolkit::TextButton>("Cancel", plainFont, std::move(onCancel)))
    , _send(toolkit::make<toolkit::TextButton>("Send", boldFont, std::move(onSend)))
{
    add(*_cancel);
    add(*_send);
}

void ComposeView::layOut()
{
    _cancel->setFrame(inLayoutDirection(makeRect(0, 0, buttonWidth, barHeight)));
    _send->setFrame(inLayoutDirection(makeRect(frame().size.width - buttonWidth, 0, buttonWidth, barHeight)));
}

void ComposeView::draw(Canvas& canvas) const
{
    const double width = frame().size.width;
    const double line = canvas.hairline();
    canvas.fillRect(bounds(), theme::rowBackground);
    canvas.fillRect(makeRect(0, 0, width, barHeight), theme::barBackground);
    canvas.fillRect(makeRect(0, barHeight - line, width, line), theme::barSeparator);
    canvas.drawLine("New Message", makeRect(buttonWidth, 0, width - 2 * buttonWidth, barHeight), boldFont,
        theme::text, Alignment::Center);

    double y = barHeight;
    drawRow(canvas, y, "To:", joined(_mail.to));
    drawRow(canvas, y, "Subject:", _mail.subject);
    for (const auto& attachment : _mail.attachments)
        drawRow(canvas, y, "Attached:", textOf(attachment));
}

void ComposeView::drawRow(
    Canvas& canvas, double& y, const std::string& caption, const std::string& text) const
{
    const double left = theme::rowMargin;
    const double width = frame().size.width - 2 * left;
    const auto captionPlace = inLayoutDirection(makeRect(left, y, captionWidth, rowHeight));
    const auto textPlace
        = inLayoutDirection(makeRect(left + captionWidth, y, width - captionWidth, rowHeight));
    canvas.drawLine(caption, captionPlace, rowFont, theme::secondaryText, naturalAlignment());
    canvas.drawLine(text, textPlace, rowFont, theme::text, naturalAlignment());
    y += rowHeight;
    const auto separator = makeRect(left, y - canvas.hairline(), width + left, canvas.hairline());
    canvas.fillRect(inLayoutDirection(separator), theme::separator);
}

toolkit::Accessible ComposeView::accessible() const
{
    std::string texts = "To: " + joined(_mail.to) + "\nSubject: " + _mail.subject;
    for (const auto& attachment : _mail.attachments)
        texts += "\nAttached: " + textOf(attachment);
    return { .role = role(), .name = "New Message", .description = texts };
}

} // namespace brimsound::desktop
