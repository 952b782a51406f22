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

/// Pixels in memory that it does not own, the top row first. A pixel is four bytes: red, green, blue, alpha,
/// with premultiplied colors.
struct Pixels {
    const std::uint8_t* bytes = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t bytesPerRow = 0;
};

/// The drawing operations of views. Lengths are points. Edges are antialiased.
class Canvas {
public:
    virtual ~Canvas() = default;

    /// Saves the origin and the clip until the matching restore. Pairs may be nested.
    virtual void save() = 0;
    virtual void restore() = 0;
    virtual void translate(Point) = 0;
    /// Intersects the clip with the rectangle.
    virtual void clip(const Rect&) = 0;
    /// Whether something drawn in the rectangle could be visible.
    virtual bool showsAnythingIn(const Rect&) const = 0;

    /// Everything drawn until endGroup is blended as one picture with this alpha, clipped to the rectangle
    /// with rounded corners.
    virtual void beginGroup(const Rect&, double alpha, double cornerRadius) = 0;
    virtual void endGroup() = 0;

    virtual void fillRect(const Rect&, const Color&) = 0;
    /// Fills the device pixels whose centers are in the rectangle, so that adjacent rectangles have no seam.
    virtual void fillPixels(const Rect&, const Color&) = 0;
    virtual void fillRoundedRect(const Rect&, double radius, const Color&) = 0;
    /// A line around the rectangle, half of it outside.
    virtual void strokeRoundedRect(const Rect&, double radius, double width, const Color&) = 0;
    virtual void fillEllipse(const Rect&, const Color&) = 0;
    /// A line through the points, with round ends and joins.
    virtual void strokeLine(const std::vector<Point>&, double width, const Color&) = 0;

    /// Stretches the pixels over the rectangle, with interpolation.
    virtual void drawPixels(const Pixels&, const Rect&) = 0;

    /// One line of text, centered vertically, truncated with an ellipsis.
    virtual void drawLine(const std::string& text, const Rect&, const Font&, const Color&, Alignment) = 0;
    /// Text wrapped at the rectangle's width, from its top.
    virtual void drawParagraph(const std::string& text, const Rect&, const Font&, const Color&, Alignment)
        = 0;

    /// The width of one device pixel, in points.
    virtual double hairline() const = 0;
};

} // namespace brimsound::toolkit
