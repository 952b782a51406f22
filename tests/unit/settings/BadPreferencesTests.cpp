// A pane with preferences of unexpected types.
#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/Alike.h"
#include "tests/unit/settings/Pane.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brimsound::tests {
namespace {

using Limits = std::numeric_limits<double>;

const std::vector<std::string> keys { peakingEqValuesKey, preampKey, presetsKey, selectedPresetKey,
    enabledKey, enabledCCKey, autoPreampKey, filterDisabledKey, checkingDisabledKey };

std::vector<PropertyList> valuesOfAllTypes()
{
    std::vector<PropertyList> values { true, 7, -7, 2.5, Limits::quiet_NaN(), Limits::infinity(),
        -Limits::infinity(), Limits::max(), std::numeric_limits<std::int64_t>::min(), "", "loud", "1e999",
        PropertyList::Data { std::byte { 0xff } }, PropertyList::Date { 700'000'000 }, PropertyList::Array {},
        PropertyList::Array(11, 99.0), PropertyList::Array(3, -99.0), PropertyList::Dictionary() };
    const auto scalars = values;
    values.emplace_back(PropertyList::Array(scalars.begin(), scalars.end()));
    PropertyList::Dictionary mixed;
    for (const auto& scalar : scalars)
        mixed.set("preset " + std::to_string(mixed.size()), scalar);
    values.emplace_back(std::move(mixed));
    return values;
}

void useThePane(TestPlatform& platform)
{
    const Pane pane(platform);
    pane.touch(3);
    pane.drag(3, 4.5f);
    pane.lift(3);
    pane.touch(0);
    pane.drag(0, -2);
    pane.lift(0);
    platform.deliverNotifications();
    platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    for (const float value : pane.values())
        EXPECT_TRUE(value >= -12 && value <= 12) << value;
    auto& controller = pane.controller();
    controller.setEnabled(!controller.enabled().boolValue());
    controller.setEnabledCC(controller.enabledCC());
    controller.setAutoPreamp(controller.autoPreamp());
    controller.setFilterDisabled(controller.filterDisabled());
    controller.setCheckingDisabled(controller.checkingDisabled());
}

TEST(APreferenceOfAnyType, LeavesThePaneUsable)
{
    TestPlatform platform;
    for (const auto& key : keys) {
        for (const auto& value : valuesOfAllTypes()) {
            auto preferences = preferencesWith(std::vector<float>(10, 1.5f));
            preferences.set(key, value);
            write_preferences(preferences);
            useThePane(platform);
            const auto stored = storedPreferences();
            ASSERT_TRUE(stored.find(preampKey)) << key;
            EXPECT_TRUE(std::isfinite(floatForKey(stored, preampKey))) << key;
            EXPECT_TRUE(stored.find(enabledKey)) << key;
        }
    }
}

} // namespace
} // namespace brimsound::tests
