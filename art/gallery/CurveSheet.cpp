#include "art/gallery/CurveSheet.h"

#include "art/gallery/Caption.h"
#include "settings/SBEqualizerBackgroundView.h"
#include "settings/TenGains.h"
#include "settings/store/presets.h"

#include <array>

namespace brimsound::desktop {

namespace {

constexpr double rowHeight = 44;
constexpr double rowGap = 4;
constexpr double nameWidth = 130;
constexpr double curveWidth = 150;
constexpr double columnGap = 12;
constexpr double headerHeight = 30;

struct Look {
    const char* name;
    void (*apply)(SBEqualizerBackgroundView&);
};

const std::array<Look, 4> looks { {
    { "Own saturation", [](SBEqualizerBackgroundView&) {} },
    { "Saturation 0.1", [](SBEqualizerBackgroundView& curve) { curve.setSaturation(0.1f); } },
    { "Saturation 0.3", [](SBEqualizerBackgroundView& curve) { curve.setSaturation(0.3f); } },
    { "Fixed color",
        [](SBEqualizerBackgroundView& curve) { curve.setColor(UIColor::colorWithWhiteAlpha(0.15, 1)); } },
} };

double columnX(std::size_t column)
{
    return nameWidth + static_cast<double>(column) * (curveWidth + columnGap);
}

} // namespace

CurveSheet::CurveSheet()
{
    for (std::size_t column = 0; column < looks.size(); ++column)
        addSubview(*caption(looks[column].name, CGRectMake(columnX(column), 0, curveWidth, headerHeight)));

    double y = headerHeight;
    for (const auto& [name, preset] : builtin_presets()) {
        addSubview(*caption(name, CGRectMake(0, y, nameWidth, rowHeight)));
        const auto gains = tenGains(preset);
        for (std::size_t column = 0; column < looks.size(); ++column) {
            const auto curve = make<SBEqualizerBackgroundView>(
                CGRectMake(columnX(column), y, curveWidth, rowHeight), gains.data());
            curve->setBackgroundColor(UIColor::whiteColor());
            looks[column].apply(*curve);
            curve->setGains(gains.data());
            addSubview(*curve);
        }
        y += rowHeight + rowGap;
    }
    setFrame(CGRectMake(0, 0, columnX(looks.size()) - columnGap, y - rowGap));
}

} // namespace brimsound::desktop
