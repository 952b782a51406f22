// The geometry of the slider row: eleven strips of equal height, each with a caption and a slider, and the
// black bar behind the band sliders. Lengths are in points, positions in the coordinates of the cell's
// content view.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

#include <cstddef>

namespace brimsound {

/// The preamp's strip and those of the ten bands.
inline constexpr std::size_t stripCount = 11;
inline constexpr CGFloat sliderRowHeight = 484;

/// Computed in single precision.
inline CGFloat stripHeightIn(CGFloat rowHeight)
{
    return static_cast<float>(rowHeight) / static_cast<float>(stripCount);
}

/// Leaves room for the caption at the left of a slider and a small margin at its right.
inline constexpr CGFloat sliderX = 35;
constexpr CGFloat sliderWidth(CGFloat contentWidth)
{
    return contentWidth - 40;
}

constexpr CGRect sliderFrame(std::size_t strip, CGFloat stripHeight, CGFloat contentWidth)
{
    return CGRectMake(
        sliderX, static_cast<CGFloat>(strip) * stripHeight, sliderWidth(contentWidth), stripHeight);
}

constexpr CGRect captionFrame(std::size_t strip, CGFloat stripHeight)
{
    return CGRectMake(5, static_cast<CGFloat>(strip) * stripHeight, 25, stripHeight);
}

/// At the left edge, over the strips of the bands except for a small margin at the top and bottom.
constexpr CGRect blackBarFrame(CGFloat stripHeight)
{
    constexpr CGFloat space = 10;
    const auto bands = static_cast<CGFloat>(stripCount - 1);
    return CGRectMake(0, stripHeight + space, 1, bands * stripHeight - 2 * space);
}

} // namespace brimsound
