// Pixels in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace brimsound::desktop {

/// Somebody's pixels, the top row first: four bytes each, red, green, blue, alpha, premultiplied.
struct Pixels {
    std::uint8_t* bytes = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    /// From one row to the next; a multiple of four.
    std::size_t bytesPerRow = 0;

    std::uint8_t* row(std::size_t y) const { return bytes + y * bytesPerRow; }
};

/// The most pixels that a bitmap may have on a side: what the library that draws on them can address.
inline constexpr std::size_t longestSide = 32767;

/// Pixels of its own, in rows without gaps.
class Bitmap {
public:
    static constexpr std::size_t bytesPerPixel = 4;

    /// A transparent one. Null when it would have no pixels, too many on a side, or more than there is memory
    /// for.
    static std::shared_ptr<Bitmap> make(std::size_t width, std::size_t height);
    /// Null when there is no memory for it.
    static std::shared_ptr<Bitmap> copyOf(const Pixels&);

    const Pixels& pixels() const { return _pixels; }
    std::size_t width() const { return _pixels.width; }
    std::size_t height() const { return _pixels.height; }

private:
    struct Free {
        void operator()(std::uint8_t* bytes) const { std::free(bytes); }
    };
    using Memory = std::unique_ptr<std::uint8_t[], Free>;

    Bitmap(Memory, std::size_t width, std::size_t height);

    /// Fresh from the system, which hands out zeros without anybody writing them.
    const Memory _memory;
    const Pixels _pixels;
};

} // namespace brimsound::desktop
