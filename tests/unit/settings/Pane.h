// A pane under test and the user's gestures on it.
#pragma once

#include "settings/BrimsoundSettings.h"
#include "tests/unit/settings/TestPlatform.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

/// Lines of the trace for the pane's own effects.
extern const std::string equalizerSend;
extern const std::string writesFile;
extern const std::string postsFinished;
extern const std::string deliversFinished;
extern const std::string logsReload;

/// An open pane with its sliders built. Gestures go to the sliders as control events.
class Pane {
public:
    /// `contentWidth` in points.
    explicit Pane(TestPlatform&, CGFloat contentWidth = 320);
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;

    BrimsoundSettingsListController& controller() const { return *_controller; }
    UISlider& slider(std::size_t index) const { return *(*_controller->sliders())[index]; }
    UILabel& label(std::size_t index) const { return *(*_controller->labels())[index]; }
    /// The slider row's cell.
    UITableViewCell& cell() const { return *_cell; }
    /// The values of all eleven sliders.
    std::vector<float> values() const;
    std::vector<std::string> captions() const;
    /// Red, green, blue, alpha of a slider's minimum track.
    std::vector<CGFloat> color(std::size_t index) const;

    void touch(std::size_t index) const;
    void drag(std::size_t index, float value) const;
    void dragOutside(std::size_t index, float value) const;
    void lift(std::size_t index) const;
    void liftOutside(std::size_t index) const;
    void cancel(std::size_t index) const;

    /// The pane's effects since the last call, without those of opening it.
    std::vector<std::string> trace() const { return _platform.takeTrace(); }
    /// The "vals" of every message since the start.
    std::vector<std::vector<float>> sent() const;

private:
    TestPlatform& _platform;
    RetainPtr<BrimsoundSettingsListController> _controller;
    RetainPtr<UITableViewCell> _cell;
};

/// An open controller whose slider row is not built yet.
RetainPtr<BrimsoundSettingsListController> openController(CGFloat contentWidth = 320);

/// Preferences with those band gains.
PropertyList::Dictionary preferencesWith(std::vector<float> gains);

/// The contents of the preferences file.
PropertyList::Dictionary storedPreferences();
/// The gains array under the key; empty when there is none.
std::vector<float> floatsIn(const PropertyList::Dictionary&, const std::string& key);
std::vector<std::string> keysOf(const PropertyList::Dictionary&);
/// Matches a dictionary's keys, in that order on platforms that keep it.
testing::Matcher<std::vector<std::string>> areKeys(const std::vector<std::string>&);

} // namespace brimsound::tests
