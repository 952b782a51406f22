#include "tests/unit/settings/PresetPane.h"

#include "tests/unit/settings/Pane.h"

#include <algorithm>

namespace brimsound::tests {

std::size_t rowOf(const std::string& name, const PlaylistSaver& panel)
{
    const auto names = keysOf(panel.presetDict());
    return static_cast<std::size_t>(std::ranges::find(names, name) - names.begin());
}

PresetPane::PresetPane(TestPlatform& platform, CGSize window)
    : _platform(platform)
    , _controller(openController(window.width))
{
    platform.showInWindow(_controller->table(), window);
    platform.takeTrace();
}

PresetPane::~PresetPane()
{
    // The pane and the panel retain each other.
    if (_controller->saver())
        _controller->saver()->setDelegate(nullptr);
}

RetainPtr<UITableViewCell> PresetPane::cell(const NSIndexPath& indexPath) const
{
    return panel().tableViewCellForRowAtIndexPath(list(), indexPath);
}

std::vector<std::string> PresetPane::names() const
{
    return keysOf(panel().presetDict());
}

void PresetPane::choose(const std::string& name) const
{
    panel().tableViewDidSelectRowAtIndexPath(list(), { 1, rowOf(name) });
}

void PresetPane::remove(const std::string& name) const
{
    panel().tableViewCommitEditingStyleForRowAtIndexPath(
        list(), UITableViewCellEditingStyle::Delete, { 1, rowOf(name) });
}

void PresetPane::save(const std::string& name) const
{
    panel().tableViewDidSelectRowAtIndexPath(list(), { 0, 0 });
    panel().nameField().setText(name);
    panel().textFieldShouldReturn(&panel().nameField());
}

} // namespace brimsound::tests
