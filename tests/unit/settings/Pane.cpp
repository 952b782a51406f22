#include "tests/unit/settings/Pane.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "settings/tweak.h"

namespace brimsound::tests {

const std::string equalizerSend = "message equalizer_send";
const std::string writesFile = "write /var/mobile/Library/Preferences/com.quorvix.brimsound.plist";
const std::string postsFinished = "post com.quorvix.brimsound.settingsfinishnotify";
const std::string deliversFinished = "deliver com.quorvix.brimsound.settingsfinishnotify";
const std::string logsReload = "log Brimsound: got notification in settings";

Pane::Pane(TestPlatform& platform, CGFloat contentWidth)
    : _platform(platform)
    , _controller(openController(contentWidth))
    , _cell(_controller->tableViewCellForRowAtIndexPath(_controller->table(), { 2, 0 }))
{
    _platform.takeTrace();
}

std::vector<float> Pane::values() const
{
    std::vector<float> values;
    for (const auto& slider : *_controller->sliders())
        values.push_back(slider->value());
    return values;
}

std::vector<std::string> Pane::captions() const
{
    std::vector<std::string> captions;
    for (const auto& label : *_controller->labels())
        captions.push_back(label->text());
    return captions;
}

std::vector<CGFloat> Pane::color(std::size_t index) const
{
    std::vector<CGFloat> components(4);
    slider(index).minimumTrackTintColor()->getRedGreenBlueAlpha(
        components[0], components[1], components[2], components[3]);
    return components;
}

void Pane::touch(std::size_t index) const
{
    slider(index).sendActionsForControlEvents(UIControlEventTouchDown);
}

void Pane::drag(std::size_t index, float value) const
{
    slider(index).setValue(value);
    slider(index).sendActionsForControlEvents(UIControlEventTouchDragInside);
}

void Pane::dragOutside(std::size_t index, float value) const
{
    slider(index).setValue(value);
    slider(index).sendActionsForControlEvents(UIControlEventTouchDragOutside);
}

void Pane::lift(std::size_t index) const
{
    slider(index).sendActionsForControlEvents(UIControlEventTouchUpInside);
}

void Pane::liftOutside(std::size_t index) const
{
    slider(index).sendActionsForControlEvents(UIControlEventTouchUpOutside);
}

void Pane::cancel(std::size_t index) const
{
    slider(index).sendActionsForControlEvents(UIControlEventTouchCancel);
}

std::vector<std::vector<float>> Pane::sent() const
{
    std::vector<std::vector<float>> all;
    for (const auto& userInfo : _platform.messages())
        all.push_back(floatsIn(userInfo, valsKey));
    return all;
}

RetainPtr<BrimsoundSettingsListController> openController(CGFloat contentWidth)
{
    auto controller = make<BrimsoundSettingsListController>();
    controller->initForContentSize({ contentWidth, 568 });
    putIntoAnApp(*controller);
    return controller;
}

PropertyList::Dictionary preferencesWith(std::vector<float> gains)
{
    return { { peakingEqValuesKey, PropertyList::Array(gains.begin(), gains.end()) } };
}

PropertyList::Dictionary storedPreferences()
{
    const auto file = readPropertyListFile(preferencesPath);
    const auto* preferences = file ? file->asDictionary() : nullptr;
    return preferences ? *preferences : PropertyList::Dictionary();
}

std::vector<float> floatsIn(const PropertyList::Dictionary& dictionary, const std::string& key)
{
    std::vector<float> floats;
    if (const auto* array = arrayForKey(dictionary, key)) {
        for (const auto& element : *array)
            floats.push_back(element.floatValue());
    }
    return floats;
}

std::vector<std::string> keysOf(const PropertyList::Dictionary& dictionary)
{
    std::vector<std::string> keys;
    for (const auto& entry : dictionary)
        keys.push_back(entry.key);
    return keys;
}

testing::Matcher<std::vector<std::string>> areKeys(const std::vector<std::string>& keys)
{
    if (TestPlatform::dictionariesKeepTheirOrder)
        return testing::ElementsAreArray(keys);
    return testing::UnorderedElementsAreArray(keys);
}

} // namespace brimsound::tests
