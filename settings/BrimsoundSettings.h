#pragma once

#include "platform/AppSupport/CPDistributedMessagingCenter.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/MessageUI/MFMailComposeViewControllerDelegate.h"
#include "platform/Preferences/PSListController.h"
#include "platform/UIKit/UIAlertViewDelegate.h"
#include "settings/BRSliderCell.h"
#include "settings/PlaylistSaver.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace brimsound {

class BrimsoundSettingsListController;

// One of each per process, shared by all controllers and never reset: an observer is registered once and must
// find the current controller when a notification arrives.

/// The sliders' captions, the preamp's first. The preamp's is null until the first controller localizes it.
extern std::array<std::optional<std::string>, 11> FREQUENCY_STRS;
/// Whether the observer for the settings-finished notification is registered.
extern bool _addedObserver;
/// Whether the preamp follows the highest band. Read from the "AUTO_PREAMP" setting when a controller starts,
/// and changed by the switch.
extern bool _autoPreamp;
/// How many deliveries of the settings-finished notification are still to be ignored because the pane posted
/// them itself.
extern std::uint32_t _notificationsToSkip;
/// The most recently initialized controller, not retained; null after it is destroyed.
extern BrimsoundSettingsListController* _activeController;

/// The row of the sliders.
inline constexpr NSIndexPath sliderRow { 2, 0 };

/// Called for each settings-finished notification. Ignores those that the pane posted itself; otherwise the
/// active controller reloads its sliders.
void finishSettingsNotification(CFNotificationCenterRef, void* observer, std::string_view name,
    const void* object, const PropertyList::Dictionary* userInfo);

/// The pane: a list of specifiers, with the sliders as row 0 of section 2. It keeps no copy of the settings:
/// each change reads the preferences file and writes it.
///
/// A method without a valid argument does nothing, like a message to nil. This applies to calls before the
/// slider row is built, to sliders of another pane, and to null values, messages and arrays of gains.
class BrimsoundSettingsListController : public PSListController,
                                        public UIAlertViewDelegate,
                                        public MFMailComposeViewControllerDelegate {
public:
    BrimsoundSettingsListController();

    /// The methods that targets and specifiers call by name. Methods that the list controller calls are
    /// overridden instead.
    std::span<const Method> methods() const override;

    /// Returns this controller, or null when the list controller cannot be used.
    BrimsoundSettingsListController* initForContentSize(CGSize) override;
    /// Reloads the sliders from the preferences file. Does not message the media server.
    void gotNotification();
    const Specifiers& specifiers() override;

    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) override;
    /// Colors a band slider's track for the sum of the band's gain and the preamp. For the preamp slider,
    /// colors all bands and moves the black bar. The preamp's own track stays black.
    void updateSliderColor(UISlider&);

    /// Sends all eleven values to the media server and waits for its reply.
    void sendToMediaServer();
    /// Called when a slider is touched or moved. Shows the value, adjusts the preamp if it is automatic, and
    /// sends the values to the media server. Saves nothing.
    void sliderChanged(UISlider& sender);
    /// Called when a slider is released. Shows the caption again, saves, and posts the notification.
    void sliderStopped(UISlider& sender);

    /// Composes a mail with a description of the device and the preferences file.
    void reportIssue(PSSpecifier&);
    /// Closes the mail sheet, whatever the result.
    void mailComposeControllerDidFinishWithResultError(
        MFMailComposeViewController&, MFMailComposeResult, const NSError*) override;

    /// Moves the black bar to where a band slider's thumb would cancel the preamp. Does nothing before the
    /// sliders exist.
    void updateBlackBar();
    /// Does nothing: there is no gesture to assign.
    void showActivator(PSSpecifier&);
    CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath&) override;

    /// Accessors for specifiers that name none of their own. They work on `settings`, which the pane never
    /// fills: such a cell shows its default, and its changes are not saved. Setting null removes the key.
    void setPreferenceValueSpecifier(const PropertyList& value, PSSpecifier&) override;
    PropertyList readPreferenceValue(PSSpecifier&) override;

    void visitWebsite(PSSpecifier&);

    /// Shows the preset panel over the pane. The sender is ignored.
    void showPresets(NSObject* sender = nullptr);

    /// Applies a preset's ten gains (dB) to the band sliders as if each had been dragged and released. Throws
    /// std::out_of_range at the first missing gain.
    void playlistSaverSelectedPreset(PlaylistSaver&, const PropertyList& gains);

    /// Opens the product's profile in the first app that can.
    void visitTwitter(PSSpecifier&);
    /// Restarts nothing, despite its name.
    void respring(PSSpecifier&);
    /// Shows an alert that offers to respring now.
    void showAlertViewWithMessage(const std::string& message);

    // The switches. A getter returns the stored value, of any type, or else the default. A setter writes the
    // file. The setters of the first two then offer a respring, the others notify the running engine.
    PropertyList enabled();
    void setEnabled(const PropertyList&);
    PropertyList enabledCC();
    void setEnabledCC(const PropertyList&);
    PropertyList varDisabled(const std::string& key);
    PropertyList varEnabled(const std::string& key);
    void setVarValue(const std::string& key, const PropertyList& value);
    PropertyList autoPreamp();
    void setAutoPreamp(const PropertyList&);
    PropertyList filterDisabled();
    void setFilterDisabled(const PropertyList&);
    PropertyList checkingDisabled();
    void setCheckingDisabled(const PropertyList&);

    /// Restarts the media server and then the user interface, unless the button is the cancel button.
    void alertViewClickedButtonAtIndex(UIAlertView&, long buttonIndex) override;

    // A pane that keeps its settings in memory would save them here. This pane has nothing to save.
    virtual void writeSettings() { }
    virtual void sendSettings() { }
    void suspend() override;

    PropertyList settings() { return _settings; }
    /// Null releases the settings.
    void setSettings(const PropertyList& settings) { _settings = settings; }

    /// Null until the table first asks for the slider row; then eleven of each: the preamp first, then the
    /// bands from 60 Hz up.
    const SliderList* sliders() const { return _sliders.get(); }
    const LabelList* labels() const { return _labels.get(); }
    UIView* blackBar() const { return _blackBar.get(); }
    /// Null until the presets were first shown.
    PlaylistSaver* saver() const { return _saver.get(); }
    CPDistributedMessagingCenter* center() const { return _center.get(); }

protected:
    ~BrimsoundSettingsListController() override;

private:
    void openCenter();
    void buildSliders(BRSliderCell&, CGFloat stripHeight);
    void addBlackBar(UIView& content, CGFloat stripHeight);
    void addStrip(UIView& content, CGFloat stripHeight, float gain);
    RetainPtr<UISlider> makeSlider(const CGRect& frame);
    /// The position of the slider in the pane's list; nothing for a slider of another pane.
    std::optional<std::size_t> indexOf(const UISlider&) const;
    UISlider& preamp() const { return *_sliders->front(); }

    PropertyList _settings;
    std::shared_ptr<SliderList> _sliders;
    std::shared_ptr<LabelList> _labels;
    RetainPtr<UIView> _blackBar;
    RetainPtr<PlaylistSaver> _saver;
    RetainPtr<CPDistributedMessagingCenter> _center;
    /// The slider row's cell, if it was built before the table asked for it; otherwise null.
    RetainPtr<UITableViewCell> _cellBuiltAhead;
};

} // namespace brimsound
