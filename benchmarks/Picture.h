// The picture for the measurements.
#pragma once

#include "platform/UIKit/UIImage.h"

#include <benchmark/benchmark.h>
#include <cairo.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace brimsound::bench {

struct Free {
    void operator()(std::uint32_t* memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<std::uint32_t[], Free>;

/// Transparent pixels that the system allocates at first use, as for the operations.
Memory transparentPixels(std::size_t count);

/// A picture of discs. A third of it is opaque; most of the rest are soft edges, with transparent gaps.
struct Picture {
    explicit Picture(std::size_t megapixels);

    std::size_t width;
    std::size_t height;
    std::vector<std::uint32_t> pixels;
    /// An image of the same pixels.
    RetainPtr<UIImage> image;

    std::size_t bytesPerRow() const { return width * sizeof(std::uint32_t); }
    std::size_t bytes() const { return pixels.size() * sizeof(std::uint32_t); }
};

/// The picture with as many megapixels as the benchmark's argument says. Made once.
const Picture& pictureFor(benchmark::State&);

/// Measures an operation on that picture, in pixels per second of processor time.
template <typename Operation> void measure(benchmark::State& state, const Operation& operation)
{
    const auto& picture = pictureFor(state);
    for ([[maybe_unused]] auto _ : state) {
        operation(picture);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(picture.pixels.size()));
}

struct Unreference {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};

using CairoSurface = std::unique_ptr<cairo_surface_t, Unreference>;
using Cairo = std::unique_ptr<cairo_t, Unreference>;

/// The picture's own pixels; cairo only reads them.
CairoSurface cairoSurface(const Picture&);

/// Measures a benchmark for pictures of 1, 12 and 48 megapixels.
void forEverySize(benchmark::internal::Benchmark*);

} // namespace brimsound::bench
