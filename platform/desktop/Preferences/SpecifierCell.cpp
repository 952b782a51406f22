#include "platform/desktop/Preferences/SpecifierCell.h"

#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Color.h"
#include "toolkit/drawing/Theme.h"
#include "toolkit/table/Cell.h"

#include <array>

namespace brimsound::desktop {

namespace theme = toolkit::theme;

namespace {

/// The chevron of a link row.
class Chevron : public toolkit::View {
public:
    Chevron()
        : View(toolkit::makeRect(0, 0, 8, 13))
    {
    }

    void draw(toolkit::Canvas& canvas) const override
    {
        if (isRightToLeft())
            canvas.strokeLine({ { 7, 1 }, { 1.5, 6.5 }, { 7, 12 } }, 2, theme::chevron);
        else
            canvas.strokeLine({ { 1, 1 }, { 6.5, 6.5 }, { 1, 12 } }, 2, theme::chevron);
    }
};

void storeValue(PSListController& controller, PSSpecifier& specifier, const PropertyList& value)
{
    const auto setter = stringProperty(specifier, "set");
    if (setter.empty()) {
        controller.setPreferenceValueSpecifier(value, specifier);
    } else if (const auto* method = specifier.target().methodForSelector(setter)) {
        const std::array<Argument, 2> arguments { &value, static_cast<NSObject*>(&specifier) };
        method->invoke(specifier.target(), arguments);
    }
}

} // namespace

std::string stringProperty(const PSSpecifier& specifier, std::string_view key)
{
    const auto value = specifier.propertyForKey(key);
    const auto* string = value.asString();
    return string ? *string : std::string();
}

bool isOfType(const PSSpecifier& specifier, std::string_view cellType)
{
    return stringProperty(specifier, "cell") == cellType;
}

PropertyList currentValue(PSListController& controller, PSSpecifier& specifier)
{
    const auto getter = stringProperty(specifier, "get");
    if (getter.empty())
        return controller.readPreferenceValue(specifier);
    const auto* method = specifier.target().methodForSelector(getter);
    if (!method)
        return specifier.propertyForKey("default");
    const Argument argument = static_cast<NSObject*>(&specifier);
    return method->invoke(specifier.target(), { &argument, 1 });
}

SpecifierCell::SpecifierCell(const std::string& cellType, PSListController& controller)
    : UITableViewCell(UITableViewCellStyle::Default, cellType)
    , _controller(controller)
{
    auto& native = nativeOf<toolkit::Cell>(*this);
    if (cellType == switchCellType) {
        _toggle = toolkit::make<toolkit::Switch>();
        _toggle->onEvent = [this](toolkit::ControlEvent event) {
            if (event == toolkit::ControlEvent::ValueChanged)
                storeValue(_controller, *_specifier, _toggle->isOn());
        };
        native.setAccessory(_toggle);
        // A screen reader reads it as the name of the switch.
        textLabel().setIsAccessibilityElement(false);
    } else if (cellType == linkCellType) {
        native.setAccessory(toolkit::make<Chevron>());
    }
    if (cellType == buttonCellType)
        textLabel().setTextColor(uiColor(theme::tint));
    const bool tappable = cellType == buttonCellType || cellType == linkCellType;
    setSelectionStyle(
        tappable ? UITableViewCellSelectionStyle::Default : UITableViewCellSelectionStyle::None);
}

void SpecifierCell::show(PSSpecifier& specifier)
{
    _specifier = brimsound::retain(&specifier);
    textLabel().setText(specifier.name());
    if (!_toggle)
        return;
    _toggle->setLabel(specifier.name());
    _toggle->setOn(currentValue(_controller, specifier).boolValue(), false);
}

} // namespace brimsound::desktop
