#pragma once

#include "toolkit/drawing/Canvas.h"

namespace brimsound::tests {

/// A canvas that draws nothing. Tests override the operations that they check.
class BlankCanvas : public toolkit::Canvas {
public:
    void save() override { }
    void restore() override { }
    void translate(toolkit::Point) override { }
    void clip(const toolkit::Rect&) override { }
    bool showsAnythingIn(const toolkit::Rect&) const override { return true; }
    void beginGroup(const toolkit::Rect&, double, double) override { }
    void endGroup() override { }
    void fillRect(const toolkit::Rect&, const toolkit::Color&) override { }
    void fillPixels(const toolkit::Rect&, const toolkit::Color&) override { }
    void fillRoundedRect(const toolkit::Rect&, double, const toolkit::Color&) override { }
    void strokeRoundedRect(const toolkit::Rect&, double, double, const toolkit::Color&) override { }
    void fillEllipse(const toolkit::Rect&, const toolkit::Color&) override { }
    void strokeLine(const std::vector<toolkit::Point>&, double, const toolkit::Color&) override { }
    void drawPixels(const toolkit::Pixels&, const toolkit::Rect&) override { }
    void drawLine(const std::string&, const toolkit::Rect&, const toolkit::Font&, const toolkit::Color&,
        toolkit::Alignment) override
    {
    }
    void drawParagraph(const std::string&, const toolkit::Rect&, const toolkit::Font&, const toolkit::Color&,
        toolkit::Alignment) override
    {
    }
    double hairline() const override { return 1; }
};

} // namespace brimsound::tests
