// The drawing operations that views are painted with.
#pragma once

#include "toolkit/drawing/Color.h"
#include "toolkit/drawing/Font.h"
#include "toolkit/geometry/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace brimsound::toolkit {

enum class Alignment { Left, Center, Right };

/// Somebody's pixels, the top row first: four bytes each, red, green, blue, alpha, premultiplied.
struct Pixels {
    const std::uint8_t* bytes = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    /// From one row to the next.
    std::size_t bytesPerRow = 0;
};

/// Something to draw on, in points. Edges are antialiased.
class Canvas {
public:
    virtual ~Canvas() = default;

    /// Keeps the origin and the clip, to be brought back by restore. Pairs nest.
    virtual void save() = 0;
    virtual void restore() = 0;
    virtual void translate(Point) = 0;
    /// Narrows the clip to the rectangle.
    virtual void clip(const Rect&) = 0;
    /// Whether anything drawn into the rectangle could show.
    virtual bool showsAnythingIn(const Rect&) const = 0;

    /// What is drawn until endGroup appears as one: faded to the alpha, cut to the rectangle with its corners
    /// rounded.
    virtual void beginGroup(const Rect&, double alpha, double cornerRadius) = 0;
    virtual void endGroup() = 0;

    virtual void fillRect(const Rect&, const Color&) = 0;
    /// Fills the device pixels whose centers are in the rectangle: rectangles that touch leave no seam
    /// between them.
    virtual void fillPixels(const Rect&, const Color&) = 0;
    virtual void fillRoundedRect(const Rect&, double radius, const Color&) = 0;
    /// A line around the rectangle, half of it outside.
    virtual void strokeRoundedRect(const Rect&, double radius, double width, const Color&) = 0;
    virtual void fillEllipse(const Rect&, const Color&) = 0;
    /// A line through the points, with round ends and joins.
    virtual void strokeLine(const std::vector<Point>&, double width, const Color&) = 0;

    /// Stretches the pixels over the rectangle, smoothly.
    virtual void drawPixels(const Pixels&, const Rect&) = 0;

    /// One line of text, centered vertically, cut off with an ellipsis where it is too long.
    virtual void drawLine(const std::string& text, const Rect&, const Font&, const Color&, Alignment) = 0;
    /// Text broken into lines at the rectangle's width, from its top.
    virtual void drawParagraph(const std::string& text, const Rect&, const Font&, const Color&, Alignment)
        = 0;

    /// The width in points of the thinnest line that the canvas shows: one device pixel.
    virtual double hairline() const = 0;
};

} // namespace brimsound::toolkit
