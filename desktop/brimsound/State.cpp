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

const char* nameOf(PanelState state)
{
    switch (state) {
    case PanelState::List:
        return "list";
    case PanelState::Naming:
        return "naming";
    case PanelState::Hidden:
        break;
    }
    return "hidden";
}

Json arrayOf(const CGRect& rect)
{
    return { rect.origin.x, rect.origin.y, rect.size.width, rect.size.height };
}

} // namespace

PanelState panelStateOf(const PlaylistSaver* panel)
{
    if (!panel || panel->view().alpha() <= 0)
        return PanelState::Hidden;
    return panel->nameField().superview()->isHidden() ? PanelState::List : PanelState::Naming;
}

Json stateOf(const PaneHost& host)
{
    auto rows = Json::array();
    Json selected;
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
        if (const auto* panel = controller->saver()) {
            for (const auto& preset : panel->presetDict())
                rows.push_back(preset.key);
            if (panel->selectedPreset())
                selected = *panel->selectedPreset();
        }
        switches = switchesOf(*controller);
    }

    return {
        { "sliders", sliders },
        { "labels", labels },
        { "colors", colors },
        { "blackBar", blackBar },
        { "panel", nameOf(panelStateOf(host.controller() ? host.controller()->saver() : nullptr)) },
        { "rows", rows },
        { "selected", selected },
        { "switches", switches },
        { "autoPreamp", _autoPreamp },
        { "notificationsToSkip", _notificationsToSkip },
    };
}

} // namespace brimsound::desktop
