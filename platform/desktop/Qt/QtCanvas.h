#pragma once

#include "toolkit/drawing/Canvas.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <memory>
#include <vector>

namespace brimsound::desktop {

/// Components out of range are clamped.
QColor qColor(const toolkit::Color&);

class QtCanvas : public toolkit::Canvas {
public:
    /// The painter must have a clip and outlive the canvas. `scale` is the number of device pixels per point.
    QtCanvas(QPainter&, double scale);

    void save() override;
    void restore() override;
    void translate(toolkit::Point) override;
    void clip(const toolkit::Rect&) override;
    bool showsAnythingIn(const toolkit::Rect&) const override;
    void beginGroup(const toolkit::Rect&, double alpha, double cornerRadius) override;
    void endGroup() override;
    void fillRect(const toolkit::Rect&, const toolkit::Color&) override;
    void fillPixels(const toolkit::Rect&, const toolkit::Color&) override;
    void fillRoundedRect(const toolkit::Rect&, double radius, const toolkit::Color&) override;
    void strokeRoundedRect(const toolkit::Rect&, double radius, double width, const toolkit::Color&) override;
    void fillEllipse(const toolkit::Rect&, const toolkit::Color&) override;
    void strokeLine(const std::vector<toolkit::Point>&, double width, const toolkit::Color&) override;
    void drawPixels(const toolkit::Pixels&, const toolkit::Rect&) override;
    void drawLine(const std::string& text, const toolkit::Rect&, const toolkit::Font&, const toolkit::Color&,
        toolkit::Alignment) override;
    void drawParagraph(const std::string& text, const toolkit::Rect&, const toolkit::Font&,
        const toolkit::Color&, toolkit::Alignment) override;
    double hairline() const override { return 1 / _scale; }

private:
    /// The picture that a group is drawn on before it is blended.
    struct Group {
        QRectF rect;
        double alpha = 1;
        double cornerRadius = 0;
        QImage image;
        QPainter painter;
    };

    QPainter& painter() const { return _groups.empty() ? _base : _groups.back()->painter; }

    QPainter& _base;
    const double _scale;
    /// Pointers, because a picture must not move in memory while it is painted.
    std::vector<std::unique_ptr<Group>> _groups;
};

} // namespace brimsound::desktop
