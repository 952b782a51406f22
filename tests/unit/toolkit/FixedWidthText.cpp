// The width of every character is half of the font's size, so that layouts are the same on all machines.
#include "toolkit/drawing/Font.h"

#include <algorithm>
#include <cmath>

namespace brimsound::toolkit {

double widthOfLine(const std::string& text, const Font& font)
{
    return static_cast<double>(text.size()) * font.size / 2;
}

double heightOfParagraph(const std::string& text, const Font& font, double width)
{
    const double perLine = std::max(1.0, std::floor(width / (font.size / 2)));
    return std::ceil(static_cast<double>(text.size()) / perLine) * std::ceil(font.size * 1.2);
}

} // namespace brimsound::toolkit
