#pragma once

#include <string>

namespace brimsound::toolkit {

struct Font {
    /// The PostScript name; empty for the desktop's own text font.
    std::string name;
    /// In points.
    double size = 17;

    bool operator==(const Font&) const = default;
};

// Defined by the implementation of the canvas, so that text is measured as it is drawn.

/// The width in points of one line of text.
double widthOfLine(const std::string& text, const Font&);
/// The height in points of a paragraph that is wrapped at the width.
double heightOfParagraph(const std::string& text, const Font&, double width);

} // namespace brimsound::toolkit
