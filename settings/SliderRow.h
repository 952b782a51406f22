// The geometry of the slider row: eleven strips of equal height, each a caption and a slider, and the black
// bar behind the band sliders. All lengths are in points, all places in the cell's content view.
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

/// A slider leaves room for the caption at its left and a little space at its right.
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

/// At the left edge, over the bands' strips but for a little space above and below.
constexpr CGRect blackBarFrame(CGFloat stripHeight)
{
    constexpr CGFloat space = 10;
    const auto bands = static_cast<CGFloat>(stripCount - 1);
    return CGRectMake(0, stripHeight + space, 1, bands * stripHeight - 2 * space);
}

} // namespace brimsound
