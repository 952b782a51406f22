#pragma once

#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISlider.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/TenGains.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound {

/// Any object can be told which preset was chosen. Its method is optional: `playlistSaver:selectedPreset:`,
/// called with the panel and the preset's gains (an array of at least ten values in dB).
using PlaylistSaverDelegate = NSObject;

/// The preset panel. It lists the presets over the pane, each with its curve, applies the one that is tapped,
/// deletes by swipe, and saves the band sliders under a new name. Every change is written to the preferences
/// file at once and announced by a notification. A row's index is the preset's position in the dictionary.
class PlaylistSaver : public UIViewController,
                      public UITableViewDataSource,
                      public UITableViewDelegate,
                      public UITextFieldDelegate {
public:
    /// initWithDelegate:. Builds the panel without showing it. The panel retains the delegate.
    explicit PlaylistSaver(PlaylistSaverDelegate&);

    std::span<const Method> methods() const override;

    /// The ten band sliders, lowest band first. A new preset takes its gains from them.
    void setSliders(std::vector<RetainPtr<UISlider>> sliders) { _sliders = std::move(sliders); }

    /// Reads the list from the file, places the panel in the root view, and shows it at once.
    void showEverything();
    /// Fades the panel out. The sender is ignored.
    void hideEverything(NSObject* sender = nullptr);
    /// Set the cancel bar's appearance while it is pressed and after it is released. The second also hides
    /// the keyboard.
    void touchDownCancel(NSObject* sender = nullptr);
    void touchUpCancel(NSObject* sender = nullptr);

    std::size_t numberOfSectionsInTableView(UITableView&) override { return 2; }
    std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t section) override;
    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) override;
    void tableViewWillDisplayCellForRowAtIndexPath(
        UITableView&, UITableViewCell&, const NSIndexPath&) override;
    bool tableViewCanEditRowAtIndexPath(UITableView&, const NSIndexPath&) override;
    void tableViewCommitEditingStyleForRowAtIndexPath(
        UITableView&, UITableViewCellEditingStyle, const NSIndexPath&) override;
    void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath&) override;

    /// Saves the sliders' gains under the text in the field. Saves nothing when the text is empty or the
    /// field is null. Closes the panel and returns false.
    bool textFieldShouldReturn(UITextField*) override;

    /// The value at that position of the dictionary, and its key; null and no key past the end. `key` may be
    /// null.
    static const PropertyList* getObjectAtIndexForDictKey(
        std::size_t index, const PropertyList::Dictionary&, std::optional<std::string>* key);

    void viewDidUnload() override;
    /// Lays the panel out again when its host's size has changed.
    void viewDidLayoutSubviews() override;

    /// The presets in the order of the list.
    const PropertyList::Dictionary& presetDict() const { return _presetDict; }
    const std::optional<std::string>& selectedPreset() const { return _selectedPreset; }
    std::string cancelText() const { return cancelLabel->text(); }
    /// The field for a new preset's name.
    UITextField& nameField() const { return *newPlaylistField; }

    PlaylistSaverDelegate* delegate() const { return _delegate.get(); }
    void setDelegate(RetainPtr<PlaylistSaverDelegate> delegate) { _delegate = std::move(delegate); }
    UIView* mainView() const { return _mainView.get(); }
    void setMainView(RetainPtr<UIView> view) { _mainView = std::move(view); }
    UIView* cancelView() const { return _cancelView.get(); }
    void setCancelView(RetainPtr<UIView> view) { _cancelView = std::move(view); }
    UITableView* tableView() const { return _tableView.get(); }
    void setTableView(RetainPtr<UITableView> tableView) { _tableView = std::move(tableView); }
    /// No part of the system reads these two.
    CGPoint buttonPosition() const { return _buttonPosition; }
    void setButtonPosition(CGPoint position) { _buttonPosition = position; }
    CGSize buttonSize() const { return _buttonSize; }
    void setButtonSize(CGSize size) { _buttonSize = size; }

protected:
    ~PlaylistSaver() override;

private:
    void buildCancelBar();
    void buildNameStrip();
    void detachTable() const;
    void layOutForRootView();
    void collapseForNameEntry();
    void setCancelBarColors(RetainPtr<UIColor> bar, RetainPtr<UIColor> text);
    void loadPresets();
    void beginNameEntry();
    void choosePreset(std::size_t row);
    void saveUnderName(const std::string& name);

    void showSaveRow(UITableViewCell&);
    void showPreset(UITableViewCell&, std::size_t row) const;
    void showCurves(UITableViewCell&, const TenGains&, bool isSelected) const;

    RetainPtr<UILabel> cancelLabel;
    RetainPtr<UIButton> _cancelButton;
    RetainPtr<UIView> newPlaylistBackdrop;
    RetainPtr<UITextField> newPlaylistField;
    /// Null until the Save row is first shown.
    RetainPtr<UIImage> _plusImage;
    PropertyList::Dictionary _presetDict;
    /// The preset last chosen or saved. It may have been deleted since.
    std::optional<std::string> _selectedPreset;
    std::vector<RetainPtr<UISlider>> _sliders;
    RetainPtr<UIColor> _blackBarColor;
    /// The bar color for a light appearance. No row uses it.
    RetainPtr<UIColor> _whiteBarColor;
    RetainPtr<UIButton> _hideAllButton;
    RetainPtr<UIView> _cancelView;
    RetainPtr<UITableView> _tableView;
    RetainPtr<UIView> _mainView;
    RetainPtr<PlaylistSaverDelegate> _delegate;
    CGPoint _buttonPosition;
    CGSize _buttonSize;
};

} // namespace brimsound
