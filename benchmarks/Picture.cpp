#include "benchmarks/Picture.h"

#include "platform/CoreGraphics/CGContext.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace brimsound::bench {

namespace {

constexpr double discDistance = 50;
constexpr double discRadius = 27;
constexpr double edgeWidth = 11;

/// From 0 to 255.
std::uint32_t alphaAt(std::size_t x, std::size_t y)
{
    const auto fromCenter
        = [](std::size_t at) { return std::fmod(static_cast<double>(at), discDistance) - discDistance / 2; };
    const double distance = std::hypot(fromCenter(x), fromCenter(y));
    const double inside = std::clamp((discRadius - distance) / edgeWidth, 0.0, 1.0);
    return static_cast<std::uint32_t>(std::lround(inside * 255));
}

std::uint32_t pixelAt(std::size_t x, std::size_t y)
{
    const auto alpha = alphaAt(x, y);
    const auto color
        = [&](std::size_t level) { return static_cast<std::uint32_t>(level % 256) * alpha / 255; };
    return color(x + y) | color(x * 3) << 8 | color(y * 7) << 16 | alpha << 24;
}

} // namespace

Memory transparentPixels(std::size_t count)
{
    return Memory(static_cast<std::uint32_t*>(std::calloc(count, sizeof(std::uint32_t))));
}

Picture::Picture(std::size_t megapixels)
    : width(megapixels == 1    ? 1000
            : megapixels == 12 ? 4000
                               : 8000)
    , height(megapixels * 1'000'000 / width)
{
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x)
            pixels.push_back(pixelAt(x, y));
    }
    const auto context = CGBitmapContextCreate(pixels.data(), width, height, bytesPerRow());
    image = UIImage::imageWithCGImage(CGBitmapContextCreateImage(context.get()).get());
}

const Picture& pictureFor(benchmark::State& state)
{
    static std::map<std::size_t, Picture> pictures;
    const auto megapixels = static_cast<std::size_t>(state.range(0));
    return pictures.try_emplace(megapixels, megapixels).first->second;
}

CairoSurface cairoSurface(const Picture& picture)
{
    auto* pixels = const_cast<std::uint32_t*>(picture.pixels.data());
    return CairoSurface(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(pixels),
        CAIRO_FORMAT_ARGB32, static_cast<int>(picture.width), static_cast<int>(picture.height),
        static_cast<int>(picture.bytesPerRow())));
}

void forEverySize(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("MP")->Arg(1)->Arg(12)->Arg(48)->Unit(benchmark::kMillisecond);
}

} // namespace brimsound::bench
