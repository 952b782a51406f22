// The settings pane's controller.
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

// Process-wide, shared by all controllers and never reset: an observer that is registered once has to find
// whichever controller is there when a notification comes.

/// The sliders' captions, the preamp's first; that one is localized by the first controller and null until
/// then.
extern std::array<std::optional<std::string>, 11> FREQUENCY_STRS;
/// Whether the observer for the settings-finished notification is registered.
extern bool _addedObserver;
/// Whether the preamp follows the highest band; the "AUTO_PREAMP" setting at the last controller's start, or
/// as switched since.
extern bool _autoPreamp;
/// How many deliveries of the settings-finished notification are still to be ignored, because the pane posted
/// them.
extern std::uint32_t _notificationsToSkip;
/// The controller initialized last, not retained; null when it is gone.
extern BrimsoundSettingsListController* _activeController;

/// Where the sliders are.
inline constexpr NSIndexPath sliderRow { 2, 0 };

/// The observer: ignores a delivery that the pane caused itself, else has the active controller reload its
/// sliders.
void finishSettingsNotification(CFNotificationCenterRef, void* observer, std::string_view name,
    const void* object, const PropertyList::Dictionary* userInfo);

/// The pane: a list of specifiers with the sliders as row 0 of section 2. It keeps no model of the settings;
/// the preferences file is read for every change and written with it.
///
/// A method that lacks what it works on does nothing, as a message to nil would. This holds for the sliders
/// before the slider row is built, for a slider that is not this pane's, and for a value, message or array of
/// gains that is null.
class BrimsoundSettingsListController : public PSListController,
                                        public UIAlertViewDelegate,
                                        public MFMailComposeViewControllerDelegate {
public:
    BrimsoundSettingsListController();

    /// The methods that targets and specifiers name. What the list controller itself calls is overridden
    /// instead.
    std::span<const Method> methods() const override;

    /// Returns this controller, or null when the list controller cannot be used.
    BrimsoundSettingsListController* initForContentSize(CGSize) override;
    /// Reloads the sliders from the preferences file. Sends nothing.
    void gotNotification();
    const Specifiers& specifiers() override;

    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) override;
    /// Gives a band slider's track the color of the gain that band and preamp add up to; given the preamp
    /// slider, does so for every band and moves the black bar. The preamp's own track stays black.
    void updateSliderColor(UISlider&);

    /// Sends all eleven values to the media server and waits for it to take them.
    void sendToMediaServer();
    /// A slider was touched or moved: shows its value, follows with the preamp if that is automatic, and lets
    /// the media server play it. Nothing is saved.
    void sliderChanged(UISlider& sender);
    /// A slider was let go: shows the caption again, saves and announces.
    void sliderStopped(UISlider& sender);

    /// Composes a mail with a description of the device and the preferences file.
    void reportIssue(PSSpecifier&);
    /// Takes the composed mail's sheet away, whatever became of it.
    void mailComposeControllerDidFinishWithResultError(
        MFMailComposeViewController&, MFMailComposeResult, const NSError*) override;

    /// Puts the black bar where a band slider's thumb would cancel the preamp. Nothing before the sliders
    /// exist.
    void updateBlackBar();
    /// Nothing: there is no gesture to assign.
    void showActivator(PSSpecifier&);
    CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath&) override;

    /// The bridge for specifiers without accessors of their own. It works on `settings`, which nothing fills:
    /// such a cell shows its default and forgets its changes. Setting null removes the key.
    void setPreferenceValueSpecifier(const PropertyList& value, PSSpecifier&) override;
    PropertyList readPreferenceValue(PSSpecifier&) override;

    void visitWebsite(PSSpecifier&);

    /// Lays the preset panel over the pane. The sender does not matter.
    void showPresets(NSObject* sender = nullptr);

    /// Plays a preset's ten gains (dB) onto the band sliders as if each had been dragged and let go. Throws
    /// std::out_of_range at the first gain that is missing.
    void playlistSaverSelectedPreset(PlaylistSaver&, const PropertyList& gains);

    /// Opens the product's profile in the first app that can.
    void visitTwitter(PSSpecifier&);
    /// Restarts nothing, whatever its name says.
    void respring(PSSpecifier&);
    /// Offers to respring at once.
    void showAlertViewWithMessage(const std::string& message);

    // The switches. Getters return what is stored, of whatever type, and else a default that is not stored;
    // setters write the file. The first two then offer a respring, the others tell the running engine.
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

    // Called where a pane with a model of its own would save it; this one has nothing left to save.
    virtual void writeSettings() { }
    virtual void sendSettings() { }
    void suspend() override;

    PropertyList settings() { return _settings; }
    /// Null lets go of the settings.
    void setSettings(const PropertyList& settings) { _settings = settings; }

    /// Null until the slider row was first asked for; then eleven each, the preamp first, then the bands from
    /// 60 Hz.
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
    /// Where the slider is among the pane's own; nothing when it is not.
    std::optional<std::size_t> indexOf(const UISlider&) const;
    UISlider& preamp() const { return *_sliders->front(); }

    PropertyList _settings;
    std::shared_ptr<SliderList> _sliders;
    std::shared_ptr<LabelList> _labels;
    RetainPtr<UIView> _blackBar;
    RetainPtr<PlaylistSaver> _saver;
    RetainPtr<CPDistributedMessagingCenter> _center;
    /// The slider row's cell while it was built before the table asked for it; else null.
    RetainPtr<UITableViewCell> _cellBuiltAhead;
};

} // namespace brimsound
