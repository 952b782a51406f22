#include "platform/desktop/UIKit/Text.h"

#include "platform/desktop/Qt/Fonts.h"

#include <QFontMetricsF>
#include <QRectF>
#include <QString>

#include <cmath>

namespace brimsound::desktop {

double widthOfLine(const std::string& text, const UIFont& font)
{
    return QFontMetricsF(qFont(font)).horizontalAdvance(QString::fromStdString(text));
}

double heightOfParagraph(const std::string& text, const UIFont& font, double width)
{
    const QFontMetricsF metrics(qFont(font));
    const QRectF room(0, 0, width, 1e6);
    return std::ceil(metrics.boundingRect(room, Qt::TextWordWrap, QString::fromStdString(text)).height());
}

} // namespace brimsound::desktop
