#pragma once

#include "tests/unit/toolkit/BlankCanvas.h"

#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

/// A text, and where in the window it is drawn.
struct DrawnText {
    std::string text;
    toolkit::Rect place;
    toolkit::Font font;
    toolkit::Alignment alignment = toolkit::Alignment::Left;
    bool isParagraph = false;
};

/// Keeps the texts of a window that is drawn on it.
class DrawnTexts : public BlankCanvas {
public:
    void save() override { _saved.push_back(_origin); }
    void restore() override
    {
        _origin = _saved.back();
        _saved.pop_back();
    }
    void translate(toolkit::Point by) override { _origin = _origin + by; }
    void drawLine(const std::string& text, const toolkit::Rect& rect, const toolkit::Font& font,
        const toolkit::Color&, toolkit::Alignment alignment) override
    {
        add({ text, offset(rect, _origin), font, alignment, false });
    }
    void drawParagraph(const std::string& text, const toolkit::Rect& rect, const toolkit::Font& font,
        const toolkit::Color&, toolkit::Alignment alignment) override
    {
        add({ text, offset(rect, _origin), font, alignment, true });
    }

    std::vector<DrawnText> texts;

private:
    void add(DrawnText drawn)
    {
        if (!drawn.text.empty())
            texts.push_back(std::move(drawn));
    }

    toolkit::Point _origin;
    std::vector<toolkit::Point> _saved;
};

} // namespace brimsound::tests
