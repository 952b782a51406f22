#include "toolkit/drawing/Font.h"

#include "platform/desktop/Qt/Fonts.h"

#include <QFontMetricsF>
#include <QRectF>
#include <QString>

#include <cmath>

namespace brimsound::toolkit {

double widthOfLine(const std::string& text, const Font& font)
{
    return QFontMetricsF(desktop::qFont(font)).horizontalAdvance(QString::fromStdString(text));
}

double heightOfParagraph(const std::string& text, const Font& font, double width)
{
    const QFontMetricsF metrics(desktop::qFont(font));
    const QRectF room(0, 0, width, 1e6);
    return std::ceil(metrics.boundingRect(room, Qt::TextWordWrap, QString::fromStdString(text)).height());
}

} // namespace brimsound::toolkit
