#include "platform/desktop/CoreGraphics/Shrink.h"

#include <algorithm>
#include <array>
#include <vector>

namespace brimsound::desktop {

namespace {

constexpr std::size_t channels = Bitmap::bytesPerPixel;

/// An old column or row, and its share in a new one.
struct Part {
    std::size_t index;
    float share;
};

/// The parts of each new column or row. The shares of one add up to 1.
std::vector<std::vector<Part>> partsAlong(std::size_t oldLength, std::size_t newLength)
{
    const double ratio = static_cast<double>(oldLength) / static_cast<double>(newLength);
    std::vector<std::vector<Part>> parts(newLength);
    for (std::size_t i = 0; i < newLength; ++i) {
        // Divided last, so that edges between pixels are whole numbers.
        const double begin = static_cast<double>(i * oldLength) / static_cast<double>(newLength);
        const double end = static_cast<double>((i + 1) * oldLength) / static_cast<double>(newLength);
        for (auto old = static_cast<std::size_t>(begin); static_cast<double>(old) < end; ++old) {
            const double covered
                = std::min(end, static_cast<double>(old + 1)) - std::max(begin, static_cast<double>(old));
            parts[i].push_back({ old, static_cast<float>(covered / ratio) });
        }
    }
    return parts;
}

} // namespace

std::shared_ptr<Bitmap> shrunk(const Pixels& from, std::size_t width, std::size_t height)
{
    auto smaller = Bitmap::make(width, height);
    if (!smaller)
        return nullptr;
    const auto& to = smaller->pixels();
    const auto columns = partsAlong(from.width, width);
    const auto rows = partsAlong(from.height, height);
    std::vector<std::array<float, channels>> sums(width);
    for (std::size_t y = 0; y < height; ++y) {
        std::ranges::fill(sums, std::array { 0.5f, 0.5f, 0.5f, 0.5f });
        for (const auto& [oldY, rowShare] : rows[y]) {
            const auto* oldRow = from.row(oldY);
            for (std::size_t x = 0; x < width; ++x) {
                auto sum = sums[x];
                for (const auto& [oldX, columnShare] : columns[x]) {
                    for (std::size_t channel = 0; channel < channels; ++channel)
                        sum[channel]
                            += rowShare * columnShare * static_cast<float>(oldRow[oldX * channels + channel]);
                }
                sums[x] = sum;
            }
        }
        auto* row = to.row(y);
        for (std::size_t x = 0; x < width; ++x) {
            for (std::size_t channel = 0; channel < channels; ++channel)
                row[x * channels + channel] = static_cast<std::uint8_t>(sums[x][channel]);
        }
    }
    return smaller;
}

} // namespace brimsound::desktop
