#include "desktop/brimsound/State.h"

#include "platform/desktop/Preferences/SpecifierCell.h"
#include "platform/desktop/UIKit/Color.h"

namespace brimsound::desktop {

namespace {

Json switchesOf(BrimsoundSettingsListController& controller)
{
    auto switches = Json::object();
    for (const auto& specifier : controller.specifiers()) {
        if (isOfType(*specifier, switchCellType))
            switches[stringProperty(*specifier, "key")] = currentValue(controller, *specifier).boolValue();
    }
    return switches;
}

Json arrayOf(const CGRect& rect)
{
    return { rect.origin.x, rect.origin.y, rect.size.width, rect.size.height };
}

} // namespace

Json stateOf(const PaneHost& host)
{
    auto sliders = Json::array();
    auto labels = Json::array();
    auto colors = Json::array();
    auto switches = Json::object();
    Json blackBar;

    if (auto* controller = host.controller()) {
        if (const auto* list = controller->sliders()) {
            for (const auto& slider : *list) {
                sliders.push_back(slider->value());
                const auto tint = colorOf(slider->minimumTrackTintColor());
                colors.push_back({ tint.red, tint.green, tint.blue, tint.alpha });
            }
        }
        if (const auto* list = controller->labels()) {
            for (const auto& label : *list)
                labels.push_back(label->text());
        }
        if (const auto* bar = controller->blackBar())
            blackBar = arrayOf(bar->frame());
        switches = switchesOf(*controller);
    }

    return {
        { "sliders", sliders },
        { "labels", labels },
        { "colors", colors },
        { "blackBar", blackBar },
        { "panel", "hidden" },
        { "rows", Json::array() },
        { "selected", nullptr },
        { "switches", switches },
        { "autoPreamp", _autoPreamp },
        { "notificationsToSkip", _notificationsToSkip },
    };
}

} // namespace brimsound::desktop
