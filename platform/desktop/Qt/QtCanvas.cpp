#include "platform/desktop/Qt/QtCanvas.h"

#include "platform/desktop/Qt/Fonts.h"
#include "platform/desktop/Qt/Paragraph.h"
#include "platform/desktop/Qt/Raster.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace brimsound::desktop {

using toolkit::Alignment, toolkit::Color, toolkit::Font, toolkit::Point, toolkit::Rect;

namespace {

QRectF qRect(const Rect& rect)
{
    return { rect.origin.x, rect.origin.y, rect.size.width, rect.size.height };
}

/// Clamps to 0 to 1; 0 for NaN.
float shownComponent(double component)
{
    return component > 0 ? static_cast<float>(std::min(component, 1.0)) : 0.0f;
}

double fittingRadius(double radius, const Rect& rect)
{
    return std::min({ radius, rect.size.width / 2, rect.size.height / 2 });
}

} // namespace

QColor qColor(const Color& color)
{
    return QColor::fromRgbF(shownComponent(color.red), shownComponent(color.green),
        shownComponent(color.blue), shownComponent(color.alpha));
}

QtCanvas::QtCanvas(QPainter& painter, double scale)
    : _base(painter)
    , _scale(scale)
{
    _base.setRenderHints(
        QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
}

void QtCanvas::save()
{
    painter().save();
}

void QtCanvas::restore()
{
    painter().restore();
}

void QtCanvas::translate(Point by)
{
    painter().translate(by.x, by.y);
}

void QtCanvas::clip(const Rect& rect)
{
    painter().setClipRect(qRect(rect), Qt::IntersectClip);
}

bool QtCanvas::showsAnythingIn(const Rect& rect) const
{
    return painter().clipBoundingRect().intersects(qRect(rect));
}

void QtCanvas::beginGroup(const Rect& rect, double alpha, double cornerRadius)
{
    auto group = std::make_unique<Group>();
    group->rect = qRect(rect);
    group->alpha = alpha;
    group->cornerRadius = cornerRadius;
    // The picture covers whole device pixels, so that its contents are as sharp as outside of a group.
    const auto toDevice = painter().combinedTransform();
    const auto visible = toDevice.mapRect(group->rect & painter().clipBoundingRect()).toAlignedRect();
    group->image = QImage(visible.size().expandedTo({ 1, 1 }), QImage::Format_ARGB32_Premultiplied);
    group->image.fill(Qt::transparent);
    group->image.setOffset(visible.topLeft());
    group->painter.begin(&group->image);
    group->painter.setRenderHints(painter().renderHints());
    group->painter.setTransform(toDevice * QTransform::fromTranslate(-visible.x(), -visible.y()));
    group->painter.setClipRect(group->rect);
    _groups.push_back(std::move(group));
}

void QtCanvas::endGroup()
{
    const auto group = std::move(_groups.back());
    _groups.pop_back();
    if (group->cornerRadius > 0) {
        QPainterPath shape;
        shape.addRoundedRect(group->rect, group->cornerRadius, group->cornerRadius);
        QPainterPath outside;
        outside.addRect(group->rect.adjusted(-1, -1, 1, 1));
        group->painter.setClipping(false);
        group->painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        group->painter.fillPath(outside - shape, Qt::black);
    }
    group->painter.end();

    painter().save();
    painter().setOpacity(group->alpha);
    const auto toLogical = painter().combinedTransform().inverted();
    painter().drawImage(toLogical.mapRect(QRectF(group->image.offset(), group->image.size())), group->image,
        group->image.rect());
    painter().restore();
}

void QtCanvas::fillRect(const Rect& rect, const Color& color)
{
    painter().fillRect(qRect(rect), qColor(color));
}

void QtCanvas::fillPixels(const Rect& rect, const Color& color)
{
    painter().setRenderHint(QPainter::Antialiasing, false);
    fillRect(rect, color);
    painter().setRenderHint(QPainter::Antialiasing);
}

void QtCanvas::fillRoundedRect(const Rect& rect, double radius, const Color& color)
{
    if (radius <= 0) {
        fillRect(rect, color);
        return;
    }
    const double fitting = fittingRadius(radius, rect);
    painter().setPen(Qt::NoPen);
    painter().setBrush(qColor(color));
    painter().drawRoundedRect(qRect(rect), fitting, fitting);
}

void QtCanvas::strokeRoundedRect(const Rect& rect, double radius, double width, const Color& color)
{
    const double fitting = fittingRadius(radius, rect);
    painter().setPen(QPen(qColor(color), width));
    painter().setBrush(Qt::NoBrush);
    painter().drawRoundedRect(qRect(rect), fitting, fitting);
}

void QtCanvas::fillEllipse(const Rect& rect, const Color& color)
{
    painter().setPen(Qt::NoPen);
    painter().setBrush(qColor(color));
    painter().drawEllipse(qRect(rect));
}

void QtCanvas::strokeLine(const std::vector<Point>& points, double width, const Color& color)
{
    QPolygonF line;
    for (const auto& point : points)
        line << QPointF(point.x, point.y);
    painter().setPen(QPen(qColor(color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter().drawPolyline(line);
}

void QtCanvas::drawPixels(const toolkit::Pixels& pixels, const Rect& rect)
{
    painter().drawImage(qRect(rect), qImage(pixels));
}

void QtCanvas::drawLine(
    const std::string& text, const Rect& rect, const Font& font, const Color& color, Alignment alignment)
{
    const auto face = qFont(font);
    const auto fitting
        = QFontMetricsF(face).elidedText(QString::fromStdString(text), Qt::ElideRight, rect.size.width);
    painter().setFont(face);
    painter().setPen(qColor(color));
    painter().drawText(qRect(rect),
        static_cast<int>(Qt::AlignVCenter | qAlignment(alignment)) | Qt::TextSingleLine | Qt::TextDontClip,
        fitting);
}

void QtCanvas::drawParagraph(
    const std::string& text, const Rect& rect, const Font& font, const Color& color, Alignment alignment)
{
    painter().setPen(qColor(color));
    paragraph(text, font, rect.size.width, alignment)->draw(&painter(), { rect.left(), rect.top() });
}

} // namespace brimsound::desktop
