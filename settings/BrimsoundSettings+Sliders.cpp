#include "platform/AppSupport/CPDistributedMessagingCenter.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/NSString.h"
#include "settings/BrimsoundSettings.h"
#include "settings/GainLimit.h"
#include "settings/Log.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"

#include <algorithm>

namespace brimsound {

std::optional<std::size_t> BrimsoundSettingsListController::indexOf(const UISlider& slider) const
{
    if (!_sliders)
        return std::nullopt;
    const auto found = std::find_if(
        _sliders->begin(), _sliders->end(), [&](const auto& candidate) { return candidate == &slider; });
    if (found == _sliders->end())
        return std::nullopt;
    return static_cast<std::size_t>(found - _sliders->begin());
}

void BrimsoundSettingsListController::sliderChanged(UISlider& sender)
{
    const auto index = indexOf(sender);
    if (!index)
        return;
    (*_labels)[*index]->setText(stringWithFormat("%.1f", sender.value()));

    if (*index != 0 && _autoPreamp) {
        float highest = -gainLimit;
        for (std::size_t i = 1; i < _sliders->size(); ++i) {
            // The last of several equal values counts. This makes a difference between 0 and -0.
            if (!((*_sliders)[i]->value() < highest))
                highest = (*_sliders)[i]->value();
        }
        preamp().setValue(-highest);
        // The preamp sends all eleven values once and recolors every band, including this one.
        sliderChanged(preamp());
        return;
    }
    updateSliderColor(sender);
    sendToMediaServer();
}

void BrimsoundSettingsListController::sendToMediaServer()
{
    if (!_sliders)
        return;
    PropertyList::Array values;
    values.reserve(_sliders->size());
    for (const auto& slider : *_sliders)
        values.emplace_back(slider->value());

    PropertyList::Dictionary userInfo;
    userInfo.set(valsKey, std::move(values));

    std::optional<NSError> error;
    _center->sendMessageAndReceiveReplyName(equalizerSendMessage, userInfo, error);
    if (error) {
        logLine("ERROR SENDING TO MEDIA SERVER " + descriptionOf(*error));
        openCenter();
    }
}

void BrimsoundSettingsListController::sliderStopped(UISlider& sender)
{
    const auto index = indexOf(sender);
    if (!index)
        return;
    (*_labels)[*index]->setText(*FREQUENCY_STRS[*index]);
    if (*index != 0)
        _labels->front()->setText(*FREQUENCY_STRS[0]);

    auto preferences = get_preferences();
    if (auto* gains = arrayForKey(preferences, peakingEqValuesKey)) {
        for (std::size_t i = 0; i + 1 < _sliders->size() && i < gains->size(); ++i)
            (*gains)[i] = (*_sliders)[i + 1]->value();
    }
    if (*index != 0)
        preferences.remove(selectedPresetKey);
    preferences.set(preampKey, preamp().value());
    write_preferences(std::move(preferences));

    auto* center = CFNotificationCenterGetDarwinNotifyCenter();
    ++_notificationsToSkip;
    CFNotificationCenterPostNotification(center, settingsFinishedNotification, nullptr, nullptr, true);
}

} // namespace brimsound
