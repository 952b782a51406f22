// A canvas that draws with QPainter.
#pragma once

#include "platform/desktop/UIKit/Canvas.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <memory>
#include <vector>

namespace brimsound::desktop {

/// The same colour; components outside of their range are brought into it.
QColor qColor(const Color&);

class QtCanvas : public Canvas {
public:
    /// Draws with the painter, which has a clip set and outlives the canvas. `scale` is device pixels a
    /// point.
    QtCanvas(QPainter&, double scale);

    void save() override;
    void restore() override;
    void translate(double dx, double dy) override;
    void clip(const CGRect&) override;
    bool showsAnythingIn(const CGRect&) const override;
    void beginGroup(const CGRect&, double alpha, double cornerRadius) override;
    void endGroup() override;
    void fillRect(const CGRect&, const Color&) override;
    void fillPixels(const CGRect&, const Color&) override;
    void fillRoundedRect(const CGRect&, double radius, const Color&) override;
    void strokeRoundedRect(const CGRect&, double radius, double width, const Color&) override;
    void fillEllipse(const CGRect&, const Color&) override;
    void strokeLine(const std::vector<CGPoint>&, double width, const Color&) override;
    void drawBitmap(const Bitmap&, const CGRect&) override;
    void drawLine(
        const std::string& text, const CGRect&, const UIFont&, const Color&, NSTextAlignment) override;
    void drawParagraph(
        const std::string& text, const CGRect&, const UIFont&, const Color&, NSTextAlignment) override;
    double hairline() const override { return 1 / _scale; }

private:
    /// A picture that a group is drawn into before it goes onto what lies below.
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
    /// By pointer, as a picture must stay where it is while it is painted.
    std::vector<std::unique_ptr<Group>> _groups;
};

} // namespace brimsound::desktop
