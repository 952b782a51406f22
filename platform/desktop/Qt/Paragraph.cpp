#include "platform/desktop/Qt/Paragraph.h"

#include "platform/desktop/Qt/Fonts.h"

#include <QTextOption>

namespace brimsound::desktop {

using toolkit::Alignment;

Qt::Alignment qAlignment(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Center:
        return Qt::AlignHCenter;
    case Alignment::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case Alignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignAbsolute;
}

std::unique_ptr<QTextLayout> paragraph(
    const std::string& text, const toolkit::Font& font, double width, Alignment alignment)
{
    const auto lines = QString::fromStdString(text).replace('\n', QChar::LineSeparator);
    auto layout = std::make_unique<QTextLayout>(lines, qFont(font));
    QTextOption option(qAlignment(alignment));
    option.setTextDirection(lines.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WordWrap);
    layout->setTextOption(option);
    double top = 0;
    layout->beginLayout();
    for (auto line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        line.setPosition({ 0, top });
        top += line.height();
    }
    layout->endLayout();
    return layout;
}

} // namespace brimsound::desktop
