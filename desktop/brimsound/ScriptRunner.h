// Carries a gesture script out.
#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "desktop/brimsound/Script.h"
#include "desktop/brimsound/Trace.h"
#include "platform/desktop/Qt/MainLoop.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Drives a pane through the same path as a finger.
class ScriptRunner {
public:
    /// All three outlive the runner. `scale` is that of snapshots which name none; `resize` gives the window
    /// a size in points.
    ScriptRunner(PaneHost&, MainLoop&, Trace&, double scale, std::function<void(CGSize)> resize);

    /// Carries one line out. Throws ScriptError when it is unknown or impossible; then nothing was done, but
    /// the table may have been scrolled to where a touch was to go.
    void run(std::string_view line);

private:
    using Words = std::vector<std::string>;
    struct Command;

    static const std::vector<Command>& commands();

    void finger(const Words&);
    void touch(const Words&);
    void drag(const Words&);
    void lift(const Words&);
    void cancel(const Words&);
    void flipSwitch(const Words&);
    void press(const Words&);
    void row(const Words&);
    void saveRow(const Words&);
    void type(const Words&);
    void pressReturn(const Words&);
    void swipe(const Words&);
    void dim(const Words&);
    void alert(const Words&);
    void mail(const Words&);
    void post(const Words&);
    void wait(const Words&);
    void resize(const Words&);
    void close(const Words&);
    void open(const Words&);
    void state(const Words&);
    void snapshot(const Words&);

    void pressAt(CGPoint);
    /// Touches the middle of the view and lets go.
    void tap(UIView&, const std::string& name) const;
    /// The row of that specifier, scrolled into view.
    UITableViewCell& rowOf(const PSSpecifier&) const;
    /// A row's cell, scrolled into view.
    UITableViewCell& cellAt(UITableView&, const NSIndexPath&) const;
    BrimsoundSettingsListController& pane() const;
    /// The preset panel with its list shown.
    PlaylistSaver& presetList() const;
    /// Where that preset's row stands.
    NSIndexPath presetRow(const std::string& name) const;
    /// A row of the preset list, scrolled into view.
    UITableViewCell& rowInPresetList(const NSIndexPath&) const;
    UISlider& slider(const std::string& word) const;
    /// The held slider, which must be the one that the word names.
    UISlider& heldSlider(const std::string& word) const;

    PaneHost& _host;
    MainLoop& _loop;
    Trace& _trace;
    const double _scale;
    const std::function<void(CGSize)> _resize;
    CGPoint _finger;
    /// The word that `touch` named its slider by.
    std::optional<std::string> _held;
};

} // namespace brimsound::desktop
