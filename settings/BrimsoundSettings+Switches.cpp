#include "platform/CoreFoundation/CFBase.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/System/process.h"
#include "platform/UIKit/UIAlertView.h"
#include "settings/BrimsoundSettings.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"

namespace brimsound {

namespace {

/// From this Core Foundation version on, backboardd is restarted to restart the user interface.
constexpr double firstWithBackboard = 792.0;

/// The stored value of the key, of any type; the default when the key is missing.
PropertyList storedValue(const std::string& key, bool defaultValue)
{
    const auto preferences = get_preferences();
    const auto* value = preferences.find(key);
    return value ? *value : PropertyList(defaultValue);
}

void store(const std::string& key, const PropertyList& value)
{
    auto preferences = get_preferences();
    preferences.set(key, value);
    write_preferences(std::move(preferences));
}

} // namespace

void BrimsoundSettingsListController::showActivator(PSSpecifier&) { }

void BrimsoundSettingsListController::respring(PSSpecifier&)
{
    // The switch's view is read but not used, and both functions below are empty: every setting is already in
    // the file. Subclasses can override them.
    if (const auto* cell = table().cellForRowAtIndexPath({ 0, 0 }))
        static_cast<void>(cell->accessoryView());
    writeSettings();
    sendSettings();
}

void BrimsoundSettingsListController::showAlertViewWithMessage(const std::string& message)
{
    make<UIAlertView>("", message, this, "Not now", std::vector<std::string> { "Respring" })->show();
}

PropertyList BrimsoundSettingsListController::enabled()
{
    return storedValue(enabledKey, true);
}

void BrimsoundSettingsListController::setEnabled(const PropertyList& value)
{
    if (value.isNull())
        return;
    store(enabledKey, value);
    showAlertViewWithMessage(value.boolValue()
            ? "In order to enable the equalizer, you will need to respring."
            : "In order to disable the equalizer, you will need to respring.");
}

PropertyList BrimsoundSettingsListController::enabledCC()
{
    return storedValue(enabledCCKey, true);
}

void BrimsoundSettingsListController::setEnabledCC(const PropertyList& value)
{
    if (value.isNull())
        return;
    store(enabledCCKey, value);
    showAlertViewWithMessage(value.boolValue()
            ? "In order to add the equalizer to the control center, you will need to respring."
            : "In order to remove the equalizer from the control center, you will need to respring.");
}

PropertyList BrimsoundSettingsListController::varDisabled(const std::string& key)
{
    return storedValue(key, false);
}

PropertyList BrimsoundSettingsListController::varEnabled(const std::string& key)
{
    return storedValue(key, true);
}

void BrimsoundSettingsListController::setVarValue(const std::string& key, const PropertyList& value)
{
    if (value.isNull())
        return;
    store(key, value);
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDarwinNotifyCenter(), settingsChangedNotification, nullptr, nullptr, true);
}

PropertyList BrimsoundSettingsListController::autoPreamp()
{
    return varEnabled(autoPreampKey);
}

void BrimsoundSettingsListController::setAutoPreamp(const PropertyList& value)
{
    if (value.isNull())
        return;
    _autoPreamp = value.boolValue();
    setVarValue(autoPreampKey, value);
}

PropertyList BrimsoundSettingsListController::filterDisabled()
{
    return varDisabled(filterDisabledKey);
}

void BrimsoundSettingsListController::setFilterDisabled(const PropertyList& value)
{
    setVarValue(filterDisabledKey, value);
}

PropertyList BrimsoundSettingsListController::checkingDisabled()
{
    return varDisabled(checkingDisabledKey);
}

void BrimsoundSettingsListController::setCheckingDisabled(const PropertyList& value)
{
    setVarValue(checkingDisabledKey, value);
}

void BrimsoundSettingsListController::alertViewClickedButtonAtIndex(UIAlertView&, long buttonIndex)
{
    if (buttonIndex == 0)
        return;
    brimsound::system("killall mediaserverd");
    brimsound::system(
        kCFCoreFoundationVersionNumber >= firstWithBackboard ? "killall backboardd" : "killall SpringBoard");
}

} // namespace brimsound
