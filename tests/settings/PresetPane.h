// A pane in a window of its own, and the preset panel over it.
#pragma once

#include "settings/BrimsoundSettings.h"
#include "settings/SBEqualizerBackgroundView.h"
#include "tests/settings/TestPlatform.h"

#include <string>
#include <vector>

namespace brimsound::tests {

/// Where the preset is in the panel's list; behind all others where it is not.
std::size_t rowOf(const std::string& name, const PlaylistSaver&);

/// Opens a pane in the platform's window, sliders and all. Gestures on the panel go through its data source
/// and delegate methods, as a table calls them.
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
    /// What the panel lies in.
    UIView& host() const { return *root().superview(); }

    /// The names in the list, in its order.
    std::vector<std::string> names() const;
    std::size_t rowOf(const std::string& name) const { return tests::rowOf(name, panel()); }
    /// A row's cell, asked for anew.
    RetainPtr<UITableViewCell> cell(const NSIndexPath&) const;
    RetainPtr<UITableViewCell> cellNamed(const std::string& name) const { return cell({ 1, rowOf(name) }); }

    void choose(const std::string& name) const;
    void remove(const std::string& name) const;
    /// Opens name entry, types, and presses Return.
    void save(const std::string& name) const;

    /// What the pane did since the last call; what opening it did is not part of it.
    std::vector<std::string> trace() const { return _platform.takeTrace(); }

private:
    TestPlatform& _platform;
    RetainPtr<BrimsoundSettingsListController> _controller;
};

} // namespace brimsound::tests
