// The live path: from a drag event to the media server's reply, and to the picture.
#include "benchmarks/Paired.h"
#include "benchmarks/World.h"
#include "desktop/brimsound/PaneHost.h"
#include "platform/desktop/Qt/PaneWidget.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "settings/store/preferences.h"

#include <QImage>
#include <QPainter>

namespace brimsound::bench {

namespace {

constexpr CGSize windowSize { 320, 568 };
constexpr double scale = 2;

/// A pane scrolled to its sliders, one of which is held.
class HeldSlider {
public:
    HeldSlider()
        : _host(windowSize)
    {
        _host.window().layOut();
        auto& slider = this->slider();
        _host.window().touchDown({ placeFor(slider.value()), desktop::Pointer::Mouse });
    }

    void dragTo(double value) { _host.window().touchMove(placeFor(value)); }
    desktop::Window& window() { return _host.window(); }
    bool isHeld() { return _host.window().isTouched(); }

private:
    UISlider& slider() { return *(*_host.controller()->sliders())[2]; }
    CGPoint placeFor(double value)
    {
        return desktop::convertToWindow(desktop::peerOf(slider()).thumbCentre(value), slider());
    }

    desktop::PaneHost _host;
};

double nextValue(double value)
{
    return value >= 11 ? -11 : value + 0.5;
}

/// A move of the finger until the reply is there, against a call with the same payload.
void draggingABand(benchmark::State& state)
{
    const World world;
    HeldSlider held;
    double value = 0;
    const std::vector<double> values(11, 1.5);
    Paired().run(
        state, [&] { held.dragTo(value = nextValue(value)); }, [&] { sendBare(values); });
}
BENCHMARK(draggingABand)->Unit(benchmark::kMicrosecond)->MinTime(3);

void paintingTheWindow(benchmark::State& state)
{
    const World world;
    HeldSlider held;
    for (auto _ : state)
        benchmark::DoNotOptimize(desktop::pictureOf(held.window(), scale));
}
BENCHMARK(paintingTheWindow)->Unit(benchmark::kMillisecond);

/// What a widget paints again after a drag event: only the parts that changed.
void paintingADragStep(benchmark::State& state)
{
    const World world;
    HeldSlider held;
    desktop::PaneWidget widget(held.window());
    QImage picture(
        QSize(static_cast<int>(windowSize.width * scale), static_cast<int>(windowSize.height * scale)),
        QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    QRegion changed;
    held.window().onInvalidate = [&](const CGRect& part) {
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
