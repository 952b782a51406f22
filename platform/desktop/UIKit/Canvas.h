// The drawing operations that views are painted with.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UILabel.h"
#include "platform/desktop/CoreGraphics/Bitmap.h"
#include "platform/desktop/UIKit/Color.h"

#include <string>
#include <vector>

namespace brimsound::desktop {

/// Something to draw on, in points. Edges are antialiased.
class Canvas {
public:
    virtual ~Canvas() = default;

    /// Keeps the origin and the clip, to be brought back by restore. Pairs nest.
    virtual void save() = 0;
    virtual void restore() = 0;
    virtual void translate(double dx, double dy) = 0;
    /// Narrows the clip to the rectangle.
    virtual void clip(const CGRect&) = 0;
    /// Whether anything drawn into the rectangle could show.
    virtual bool showsAnythingIn(const CGRect&) const = 0;

    /// What is drawn until endGroup appears as one: faded to the alpha, cut to the rectangle with its corners
    /// rounded.
    virtual void beginGroup(const CGRect&, double alpha, double cornerRadius) = 0;
    virtual void endGroup() = 0;

    virtual void fillRect(const CGRect&, const Color&) = 0;
    /// Fills the device pixels whose centres are in the rectangle: rectangles that touch leave no seam
    /// between them.
    virtual void fillPixels(const CGRect&, const Color&) = 0;
    virtual void fillRoundedRect(const CGRect&, double radius, const Color&) = 0;
    /// A line around the rectangle, half of it outside.
    virtual void strokeRoundedRect(const CGRect&, double radius, double width, const Color&) = 0;
    virtual void fillEllipse(const CGRect&, const Color&) = 0;
    /// A line through the points, with round ends and joins.
    virtual void strokeLine(const std::vector<CGPoint>&, double width, const Color&) = 0;

    /// Stretches the bitmap over the rectangle, smoothly.
    virtual void drawBitmap(const Bitmap&, const CGRect&) = 0;

    /// One line of text, centred vertically, cut off with an ellipsis where it is too long.
    virtual void drawLine(
        const std::string& text, const CGRect&, const UIFont&, const Color&, NSTextAlignment)
        = 0;
    /// Text broken into lines at the rectangle's width, from its top.
    virtual void drawParagraph(
        const std::string& text, const CGRect&, const UIFont&, const Color&, NSTextAlignment)
        = 0;

    /// The width in points of the thinnest line that the canvas shows: one device pixel.
    virtual double hairline() const = 0;
};

} // namespace brimsound::desktop
