#include "platform/desktop/CoreGraphics/Blend.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

using std::size_t;
using std::uint16_t;
using std::uint8_t;

constexpr size_t channels = Bitmap::bytesPerPixel;
/// Few enough for what is put aside for them to stay in the fastest memory.
constexpr size_t pixelsAtOnce = 1024;
using Block = std::array<uint8_t, pixelsAtOnce * channels>;

/// Writes every pixel's alpha in place of all its four bytes.
void spreadAlpha(Block& alphas, const uint8_t* pixels, size_t length)
{
    for (size_t i = 0; i < length; i += channels) {
        for (size_t channel = 0; channel < channels; ++channel)
            alphas[i + channel] = pixels[i + channels - 1];
    }
}

/// For a source S and a destination D of alphas Sa and Da, 255·R = S(255 - Da) + D(255 - Sa) + min(S·Da,
/// D·Sa), which is 255·S + D(255 - Sa) less what S·Da is more than D·Sa. As S is not above Sa that fits 16
/// bits, so that eight bytes are done at a time; and for the alphas, where S is Sa and D is Da, it is 255·Ra.
void darken(uint8_t* bytes, const Block& alphas, const Block& colors, uint16_t colorAlpha, size_t length)
{
    const auto rest = static_cast<uint16_t>(255 - colorAlpha);
    for (size_t i = 0; i < length; ++i) {
        const auto byColor = static_cast<uint16_t>(colors[i] * alphas[i]);
        const auto byPixel = static_cast<uint16_t>(bytes[i] * colorAlpha);
        const auto excess = static_cast<uint16_t>(byColor > byPixel ? byColor - byPixel : 0);
        const auto sum = static_cast<uint16_t>(colors[i] * 255 + bytes[i] * rest - excess + 128);
        // Divides by 255 and rounds, exactly for what fits 16 bits.
        bytes[i] = static_cast<uint8_t>(static_cast<uint16_t>(sum + (sum >> 8)) >> 8);
    }
}

} // namespace

void fillDarkening(const Pixels& pixels, const Pixel& color)
{
    Block colors;
    for (size_t i = 0; i < colors.size(); ++i)
        colors[i] = color[i % channels];

    Block alphas;
    const auto rowLength = pixels.width * channels;
    for (size_t y = 0; y < pixels.height; ++y) {
        for (size_t start = 0; start < rowLength; start += alphas.size()) {
            auto* bytes = pixels.row(y) + start;
            const auto length = std::min(alphas.size(), rowLength - start);
            spreadAlpha(alphas, bytes, length);
            darken(bytes, alphas, colors, color.back(), length);
        }
    }
}

void addDarkening(const Pixels& destination, const Pixels& source)
{
    for (size_t y = 0; y < destination.height; ++y) {
        auto* bytes = destination.row(y);
        const auto* added = source.row(y);
        for (size_t i = 0; i < destination.width * channels; ++i)
            bytes[i] = static_cast<uint8_t>(std::max(bytes[i] + added[i] - 255, 0));
    }
}

} // namespace brimsound::desktop
