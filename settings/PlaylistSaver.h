// The preset panel.
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

/// Any object may be told of the chosen preset. Its one method is optional: `playlistSaver:selectedPreset:`,
/// with the panel and the preset's gains (an array of dB values, at least ten).
using PlaylistSaverDelegate = NSObject;

/// Lists the presets over the pane, each with its curve; applies the one that is tapped, deletes by swipe,
/// and saves the band sliders under a new name. Every change goes straight to the preferences file and is
/// announced. A row means a position in the dictionary of presets: its order is that of the list.
class PlaylistSaver : public UIViewController,
                      public UITableViewDataSource,
                      public UITableViewDelegate,
                      public UITextFieldDelegate {
public:
    /// initWithDelegate:. The panel is built but not shown; it retains the delegate.
    explicit PlaylistSaver(PlaylistSaverDelegate&);

    std::span<const Method> methods() const override;

    /// The ten band sliders, lowest band first, that a new preset takes its gains from.
    void setSliders(std::vector<RetainPtr<UISlider>> sliders) { _sliders = std::move(sliders); }

    /// Lays the panel out in the root view, with the list as the file has it, and shows it at once.
    void showEverything();
    /// Lets the panel fade. The sender does not matter.
    void hideEverything(NSObject* sender = nullptr);
    /// The cancel bar's looks while it is pressed, and after that; the latter also puts the keyboard away.
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

    /// Saves the sliders under the field's text, unless that is empty or there is no field; closes the panel
    /// and returns false.
    bool textFieldShouldReturn(UITextField*) override;

    /// The value at that position of the dictionary, and its key; null, and no key, beyond its end. `key` may
    /// be null.
    static const PropertyList* getObjectAtIndexForDictKey(
        std::size_t index, const PropertyList::Dictionary&, std::optional<std::string>* key);

    void viewDidUnload() override;
    /// Lays the panel out anew, whatever it shows, when its host has another size than before.
    void viewDidLayoutSubviews() override;

    /// What the list shows, in its order.
    const PropertyList::Dictionary& presetDict() const { return _presetDict; }
    const std::optional<std::string>& selectedPreset() const { return _selectedPreset; }
    std::string cancelText() const { return cancelLabel->text(); }
    /// Where a new preset's name is typed.
    UITextField& nameField() const { return *newPlaylistField; }

    PlaylistSaverDelegate* delegate() const { return _delegate.get(); }
    void setDelegate(RetainPtr<PlaylistSaverDelegate> delegate) { _delegate = std::move(delegate); }
    UIView* mainView() const { return _mainView.get(); }
    void setMainView(RetainPtr<UIView> view) { _mainView = std::move(view); }
    UIView* cancelView() const { return _cancelView.get(); }
    void setCancelView(RetainPtr<UIView> view) { _cancelView = std::move(view); }
    UITableView* tableView() const { return _tableView.get(); }
    void setTableView(RetainPtr<UITableView> tableView) { _tableView = std::move(tableView); }
    /// Nothing in the system asks for these two.
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
    /// The preset last chosen or saved; it may be gone since.
    std::optional<std::string> _selectedPreset;
    std::vector<RetainPtr<UISlider>> _sliders;
    RetainPtr<UIColor> _blackBarColor;
    /// The counterpart for a light look, which no row uses.
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
