// A pane in its own window, and the preset panel over it.
#pragma once

#include "settings/BrimsoundSettings.h"
#include "settings/SBEqualizerBackgroundView.h"
#include "tests/unit/settings/TestPlatform.h"

#include <string>
#include <vector>

namespace brimsound::tests {

/// The row of the preset in the panel's list; one past the last when it is missing.
std::size_t rowOf(const std::string& name, const PlaylistSaver&);

/// Opens a pane in the platform's window with its sliders. Gestures on the panel call its data source and
/// delegate methods, as a table does.
class PresetPane {
public:
    explicit PresetPane(TestPlatform&, CGSize window = { 320, 568 });
    PresetPane(const PresetPane&) = delete;
    PresetPane& operator=(const PresetPane&) = delete;
    ~PresetPane();

    BrimsoundSettingsListController& controller() const { return *_controller; }
    UISlider& slider(std::size_t index) const { return *(*_controller->sliders())[index]; }

    void showPresets() const { _controller->showPresets(); }
    PlaylistSaver& panel() const { return *_controller->saver(); }
    UITableView& list() const { return *panel().tableView(); }
    UIView& root() const { return panel().view(); }
    /// The view that contains the panel.
    UIView& host() const { return *root().superview(); }

    /// The names in the list, in its order.
    std::vector<std::string> names() const;
    std::size_t rowOf(const std::string& name) const { return tests::rowOf(name, panel()); }
    /// A new cell for a row.
    RetainPtr<UITableViewCell> cell(const NSIndexPath&) const;
    RetainPtr<UITableViewCell> cellNamed(const std::string& name) const { return cell({ 1, rowOf(name) }); }

    void choose(const std::string& name) const;
    void remove(const std::string& name) const;
    /// Opens name entry, types, and presses Return.
    void save(const std::string& name) const;

    /// The pane's effects since the last call, without those of opening it.
    std::vector<std::string> trace() const { return _platform.takeTrace(); }

private:
    TestPlatform& _platform;
    RetainPtr<BrimsoundSettingsListController> _controller;
};

} // namespace brimsound::tests
