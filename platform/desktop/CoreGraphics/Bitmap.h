#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace brimsound::desktop {

/// Pixels in memory that it does not own, the top row first. A pixel is four bytes: red, green, blue, alpha,
/// with premultiplied colors.
struct Pixels {
    std::uint8_t* bytes = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    /// A multiple of four.
    std::size_t bytesPerRow = 0;

    std::uint8_t* row(std::size_t y) const { return bytes + y * bytesPerRow; }
};

/// The largest width and height of a bitmap: the limit of the library that draws on it.
inline constexpr std::size_t longestSide = 32767;

/// Owns its pixels, in rows without gaps.
class Bitmap {
public:
    static constexpr std::size_t bytesPerPixel = 4;

    /// A transparent bitmap. Null when a side is 0 or larger than `longestSide`, and without enough memory.
    static std::shared_ptr<Bitmap> make(std::size_t width, std::size_t height);
    /// Null without enough memory.
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

    /// From calloc: the system provides large blocks of zeros without writing them.
    const Memory _memory;
    const Pixels _pixels;
};

} // namespace brimsound::desktop
