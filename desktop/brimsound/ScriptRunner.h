// Executes gesture scripts.
#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "desktop/brimsound/Script.h"
#include "desktop/brimsound/Trace.h"
#include "platform/desktop/Qt/MainLoop.h"
#include "toolkit/control/Slider.h"
#include "toolkit/table/Cell.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Operates a pane through the same touch events as a finger.
class ScriptRunner {
public:
    /// All three arguments must outlive the runner. `scale` is for snapshots without a scale of their own.
    /// `resize` sets the window's size in points.
    ScriptRunner(PaneHost&, MainLoop&, Trace&, double scale, std::function<void(toolkit::Size)> resize);

    /// Executes one line. Throws ScriptError when the line is unknown or cannot be executed. Then nothing was
    /// changed, except that the table may have been scrolled to the touched row.
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

    void pressAt(toolkit::Point);
    /// Does what a tap on the view does.
    void tap(toolkit::View&, const std::string& name) const;
    /// The row of that specifier, scrolled into view.
    toolkit::Cell& rowOf(const PSSpecifier&) const;
    /// A row's cell, scrolled into view.
    toolkit::Cell& cellAt(UITableView&, const NSIndexPath&) const;
    BrimsoundSettingsListController& pane() const;
    /// The preset panel, with its list visible.
    PlaylistSaver& presetList() const;
    /// The position of that preset's row.
    NSIndexPath presetRow(const std::string& name) const;
    /// A row of the preset list, scrolled into view.
    toolkit::Cell& rowInPresetList(const NSIndexPath&) const;
    toolkit::Slider& slider(const std::string& word) const;
    /// The touched slider. Throws ScriptError unless the word names it.
    toolkit::Slider& heldSlider(const std::string& word) const;

    PaneHost& _host;
    MainLoop& _loop;
    Trace& _trace;
    const double _scale;
    const std::function<void(toolkit::Size)> _resize;
    toolkit::Point _finger;
    /// The word that named the slider in `touch`.
    std::optional<std::string> _held;
};

} // namespace brimsound::desktop
