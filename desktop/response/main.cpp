// Draws the response of a built-in preset.
#include "desktop/response/Chart.h"
#include "settings/TenGains.h"
#include "settings/store/presets.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>

using namespace brimsound;

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: response PRESET FILE.png\n");
        return 2;
    }
    const auto presets = builtin_presets();
    const auto* preset = presets.find(argv[1]);
    if (!preset) {
        std::fprintf(stderr, "response: there is no preset \"%s\"\n", argv[1]);
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    audio::BandGains sliders {};
    std::ranges::copy(tenGains(*preset), sliders.begin());
    if (desktop::responseChart(argv[1], sliders, 2).save(QString::fromLocal8Bit(argv[2])))
        return 0;
    std::fprintf(stderr, "response: the picture \"%s\" cannot be written\n", argv[2]);
    return 1;
}
