#include "settings/BrimsoundSettings.h"

#include "platform/AppSupport/rocketbootstrap.h"
#include "settings/Bundle.h"
#include "settings/Localized.h"
#include "settings/Log.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"

namespace brimsound {

namespace {

bool isNegated(const PSSpecifier& specifier)
{
    return specifier.propertyForKey("negate").boolValue();
}

std::string keyOf(const PSSpecifier& specifier)
{
    const auto key = specifier.propertyForKey("key");
    return key.asString() ? *key.asString() : std::string();
}

} // namespace

std::array<std::optional<std::string>, 11> FREQUENCY_STRS {
    std::nullopt,
    "60",
    "170",
    "310",
    "600",
    "1K",
    "3K",
    "6K",
    "12K",
    "14K",
    "16K",
};
bool _addedObserver = false;
bool _autoPreamp = false;
std::uint32_t _notificationsToSkip = 0;
BrimsoundSettingsListController* _activeController = nullptr;

void finishSettingsNotification(
    CFNotificationCenterRef, void*, std::string_view, const void*, const PropertyList::Dictionary*)
{
    if (_notificationsToSkip > 0) {
        --_notificationsToSkip;
        return;
    }
    if (_activeController)
        _activeController->gotNotification();
}

BrimsoundSettingsListController::BrimsoundSettingsListController()
    : PSListController(controllerClassName)
{
}

std::span<const Method> BrimsoundSettingsListController::methods() const
{
    using Self = BrimsoundSettingsListController;
    static const std::array table {
        method<&Self::gotNotification>("gotNotification"),
        method<&Self::updateSliderColor>("updateSliderColor:"),
        method<&Self::sendToMediaServer>("sendToMediaServer"),
        method<&Self::sliderChanged>("sliderChanged:"),
        method<&Self::sliderStopped>("sliderStopped:"),
        method<&Self::reportIssue>("reportIssue:"),
        method<&Self::updateBlackBar>("updateBlackBar"),
        method<&Self::showActivator>("showActivator:"),
        method<&Self::setPreferenceValueSpecifier>("setPreferenceValue:specifier:"),
        method<&Self::readPreferenceValue>("readPreferenceValue:"),
        method<&Self::visitWebsite>("visitWebsite:"),
        method<&Self::showPresets>("showPresets:"),
        method<&Self::playlistSaverSelectedPreset>("playlistSaver:selectedPreset:"),
        method<&Self::visitTwitter>("visitTwitter:"),
        method<&Self::respring>("respring:"),
        method<&Self::showAlertViewWithMessage>("showAlertViewWithMessage:"),
        method<&Self::enabled>("enabled"),
        method<&Self::setEnabled>("setEnabled:"),
        method<&Self::enabledCC>("enabledCC"),
        method<&Self::setEnabledCC>("setEnabledCC:"),
        method<&Self::varDisabled>("varDisabled:"),
        method<&Self::varEnabled>("varEnabled:"),
        method<&Self::setVarValue>("setVar:value:"),
        method<&Self::autoPreamp>("autoPreamp"),
        method<&Self::setAutoPreamp>("setAutoPreamp:"),
        method<&Self::filterDisabled>("filterDisabled"),
        method<&Self::setFilterDisabled>("setFilterDisabled:"),
        method<&Self::checkingDisabled>("checkingDisabled"),
        method<&Self::setCheckingDisabled>("setCheckingDisabled:"),
        method<&Self::writeSettings>("writeSettings"),
        method<&Self::sendSettings>("sendSettings"),
        method<&Self::settings>("settings"),
        method<&Self::setSettings>("setSettings:"),
    };
    return table;
}

BrimsoundSettingsListController* BrimsoundSettingsListController::initForContentSize(CGSize size)
{
    if (!FREQUENCY_STRS[0]) {
        FREQUENCY_STRS[0] = localized("PRE", "Pre");
    }
    if (!PSListController::initForContentSize(size))
        return nullptr;

    openCenter();
    if (!_addedObserver) {
        CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr,
            finishSettingsNotification, settingsFinishedNotification, nullptr, 0);
        _addedObserver = true;
    }
    _autoPreamp = autoPreamp().boolValue();
    _activeController = this;
    return this;
}

BrimsoundSettingsListController::~BrimsoundSettingsListController()
{
    _cellBuiltAhead = nullptr;
    BrimsoundSettingsListController::writeSettings();
    setSettings({});
    _sliders = nullptr;
    _labels = nullptr;
    _blackBar = nullptr;
    _saver = nullptr;
    _center = nullptr;
    if (_activeController == this)
        _activeController = nullptr;
}

const PSListController::Specifiers& BrimsoundSettingsListController::specifiers()
{
    if (!_specifiers)
        _specifiers = loadSpecifiersFromPlistNameTarget(resourceName, *this);
    return *_specifiers;
}

void BrimsoundSettingsListController::openCenter()
{
    _center = CPDistributedMessagingCenter::centerNamed(messagingCenterName);
    rocketbootstrap_distributedmessagingcenter_apply(*_center);
}

void BrimsoundSettingsListController::gotNotification()
{
    const auto preferences = get_preferences();
    if (const auto* gains = arrayForKey(preferences, peakingEqValuesKey); gains && _sliders) {
        for (std::size_t i = 1; i < _sliders->size() && i <= gains->size(); ++i)
            (*_sliders)[i]->setValue((*gains)[i - 1].floatValue());
    }
    if (_sliders) {
        preamp().setValue(floatForKey(preferences, preampKey));
        updateSliderColor(preamp());
    }
    logLine("got notification in settings");
}

PropertyList BrimsoundSettingsListController::readPreferenceValue(PSSpecifier& specifier)
{
    const auto* settings = _settings.asDictionary();
    const auto* value = settings ? settings->find(keyOf(specifier)) : nullptr;
    if (!value)
        return specifier.propertyForKey("default");
    return isNegated(specifier) ? PropertyList(!value->boolValue()) : *value;
}

void BrimsoundSettingsListController::setPreferenceValueSpecifier(
    const PropertyList& value, PSSpecifier& specifier)
{
    auto* settings = _settings.asDictionary();
    if (!settings)
        return;
    const auto stored = isNegated(specifier) ? PropertyList(!value.boolValue()) : value;
    if (stored.isNull())
        settings->remove(keyOf(specifier));
    else
        settings->set(keyOf(specifier), stored);
}

void BrimsoundSettingsListController::suspend()
{
    writeSettings();
}

} // namespace brimsound
