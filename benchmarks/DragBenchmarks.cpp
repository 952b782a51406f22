// A drag: from the touch event to the media server's reply, and to the picture.
#include "benchmarks/Paired.h"
#include "benchmarks/World.h"
#include "platform/desktop/Qt/PaneWidget.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "tests/support/HeldSlider.h"

#include <QImage>
#include <QPainter>

namespace brimsound::bench {

namespace {

constexpr toolkit::Size windowSize { 320, 568 };
constexpr double scale = 2;

double nextValue(double value)
{
    return value >= 11 ? -11 : value + 0.5;
}

/// A move of the finger up to the reply, compared with a call with the same payload.
void draggingABand(benchmark::State& state)
{
    const World world;
    tests::HeldSlider held(windowSize);
    double value = 0;
    const std::vector<double> values(11, 1.5);
    Paired().run(
        state, [&] { held.dragTo(value = nextValue(value)); }, [&] { sendBare(values); });
}
BENCHMARK(draggingABand)->Unit(benchmark::kMicrosecond)->MinTime(3);

void paintingTheWindow(benchmark::State& state)
{
    const World world;
    tests::HeldSlider held(windowSize);
    for (auto _ : state)
        benchmark::DoNotOptimize(desktop::pictureOf(held.window(), scale));
}
BENCHMARK(paintingTheWindow)->Unit(benchmark::kMillisecond);

/// The painting of a widget after a drag event: only the parts that changed.
void paintingADragStep(benchmark::State& state)
{
    const World world;
    tests::HeldSlider held(windowSize);
    desktop::PaneWidget widget(held.window());
    QImage picture(
        QSize(static_cast<int>(windowSize.width * scale), static_cast<int>(windowSize.height * scale)),
        QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    QRegion changed;
    held.window().onInvalidate = [&](const toolkit::Rect& part) {
        changed += QRectF(part.origin.x, part.origin.y, part.size.width, part.size.height).toAlignedRect();
    };
    double value = 0;
    for (auto _ : state) {
        state.PauseTiming();
        changed = {};
        held.dragTo(value = nextValue(value));
        state.ResumeTiming();
        widget.render(&picture, {}, changed, {});
    }
}
BENCHMARK(paintingADragStep)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace brimsound::bench
