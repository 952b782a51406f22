#include "toolkit/drawing/Font.h"

#include "platform/desktop/Qt/Fonts.h"
#include "platform/desktop/Qt/Paragraph.h"

#include <QFontMetricsF>
#include <QString>

#include <cmath>

namespace brimsound::toolkit {

double widthOfLine(const std::string& text, const Font& font)
{
    return QFontMetricsF(desktop::qFont(font)).horizontalAdvance(QString::fromStdString(text));
}

double heightOfParagraph(const std::string& text, const Font& font, double width)
{
    return std::ceil(desktop::paragraph(text, font, width, Alignment::Left)->boundingRect().height());
}

} // namespace brimsound::toolkit
