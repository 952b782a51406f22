#include "platform/desktop/CoreGraphics/Bitmap.h"

#include <cstring>

namespace brimsound::desktop {

Bitmap::Bitmap(Memory memory, std::size_t width, std::size_t height)
    : _memory(std::move(memory))
    , _pixels { _memory.get(), width, height, width * bytesPerPixel }
{
}

std::shared_ptr<Bitmap> Bitmap::make(std::size_t width, std::size_t height)
{
    if (width == 0 || height == 0 || width > longestSide || height > longestSide)
        return nullptr;
    Memory memory(static_cast<std::uint8_t*>(std::calloc(width * height, bytesPerPixel)));
    return memory ? std::shared_ptr<Bitmap>(new Bitmap(std::move(memory), width, height)) : nullptr;
}

std::shared_ptr<Bitmap> Bitmap::copyOf(const Pixels& pixels)
{
    auto copy = make(pixels.width, pixels.height);
    if (!copy)
        return nullptr;
    const auto& own = copy->pixels();
    for (std::size_t y = 0; y < pixels.height; ++y)
        std::memcpy(own.row(y), pixels.row(y), own.bytesPerRow);
    return copy;
}

} // namespace brimsound::desktop
