#include "desktop/brimsound/ScriptRunner.h"

#include "desktop/brimsound/State.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/desktop/MessageUI/ComposeView.h"
#include "platform/desktop/Preferences/SpecifierCell.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/UIKit/Controller.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "platform/desktop/bus/DarwinNotifyPost.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/table/Table.h"
#include "toolkit/text/TextField.h"

#include <algorithm>

namespace brimsound::desktop {

using toolkit::Cell, toolkit::Control, toolkit::Point, toolkit::Pointer, toolkit::Slider;

namespace {

constexpr std::size_t lastSlider = 10;
/// How far a swipe moves a row aside, in points: more than the width of its button.
constexpr double swipeDistance = 120;
/// Where a script taps the dimmed area next to the panel, in points from the window's corner.
constexpr double dimmedMargin = 22;
constexpr double largestWindow = 10000;
/// A day.
constexpr double longestWait = 86400;

double lengthFrom(const std::string& word)
{
    const double length = numberFrom(word);
    if (length < 1 || length > largestWindow)
        throw ScriptError("\"" + word + "\" is not a length in points");
    return length;
}

/// The first element for screen readers in the bar; the bar itself when there is none.
toolkit::View& buttonIn(toolkit::View& bar)
{
    const auto found = bar.accessibleChildren();
    return found.empty() ? bar : *found.front();
}

Control::Side sideFrom(const std::vector<std::string>& words, std::size_t place, const char* usage)
{
    if (words.size() <= place)
        return Control::Side::Inside;
    if (words[place] != "outside")
        throw ScriptError(std::string("it is ") + usage);
    return Control::Side::Outside;
}

} // namespace

struct ScriptRunner::Command {
    std::string_view name;
    std::size_t fewestArguments;
    std::size_t mostArguments;
    /// The syntax of the command, for error messages.
    std::string_view usage;
    void (ScriptRunner::*carryOut)(const Words& arguments);
};

const std::vector<ScriptRunner::Command>& ScriptRunner::commands()
{
    static const std::vector<Command> table {
        { "finger", 1, 3, "finger down X Y, finger move X Y, finger up or finger cancel",
            &ScriptRunner::finger },
        { "touch", 1, 1, "touch N", &ScriptRunner::touch },
        { "drag", 2, 3, "drag N V [outside]", &ScriptRunner::drag },
        { "lift", 1, 2, "lift N [outside]", &ScriptRunner::lift },
        { "cancel", 1, 1, "cancel N", &ScriptRunner::cancel },
        { "switch", 2, 2, "switch KEY on or switch KEY off", &ScriptRunner::flipSwitch },
        { "press", 1, 1, "press \"LABEL\" or press SELECTOR", &ScriptRunner::press },
        { "row", 1, 1, "row \"NAME\"", &ScriptRunner::row },
        { "saverow", 0, 0, "saverow", &ScriptRunner::saveRow },
        { "type", 1, 1, "type \"TEXT\"", &ScriptRunner::type },
        { "return", 0, 0, "return", &ScriptRunner::pressReturn },
        { "swipe", 1, 1, "swipe \"NAME\"", &ScriptRunner::swipe },
        { "dim", 0, 0, "dim", &ScriptRunner::dim },
        { "alert", 1, 1, "alert \"BUTTON\"", &ScriptRunner::alert },
        { "mail", 1, 1, "mail send or mail cancel", &ScriptRunner::mail },
        { "post", 1, 1, "post NAME", &ScriptRunner::post },
        { "wait", 1, 1, "wait SECONDS", &ScriptRunner::wait },
        { "resize", 2, 2, "resize W H", &ScriptRunner::resize },
        { "close", 0, 0, "close", &ScriptRunner::close },
        { "open", 0, 0, "open", &ScriptRunner::open },
        { "state", 0, 0, "state", &ScriptRunner::state },
        { "snapshot", 1, 2, "snapshot FILE [SCALE]", &ScriptRunner::snapshot },
    };
    return table;
}

ScriptRunner::ScriptRunner(
    PaneHost& host, MainLoop& loop, Trace& trace, double scale, std::function<void(toolkit::Size)> resize)
    : _host(host)
    , _loop(loop)
    , _trace(trace)
    , _scale(scale)
    , _resize(std::move(resize))
{
}

void ScriptRunner::run(std::string_view line)
{
    auto words = wordsOf(line);
    if (words.empty())
        return;
    const auto name = words.front();
    words.erase(words.begin());
    for (const auto& command : commands()) {
        if (command.name != name)
            continue;
        if (words.size() < command.fewestArguments || words.size() > command.mostArguments)
            throw ScriptError("it is " + std::string(command.usage));
        (this->*command.carryOut)(words);
        return;
    }
    throw ScriptError("there is no command \"" + name + "\"");
}

BrimsoundSettingsListController& ScriptRunner::pane() const
{
    if (!_host.controller())
        throw ScriptError("the pane is closed");
    return *_host.controller();
}

Slider& ScriptRunner::slider(const std::string& word) const
{
    const auto index = indexFrom(word, lastSlider);
    _host.window().layOutAll();
    const auto* sliders = pane().sliders();
    if (!sliders)
        throw ScriptError("the sliders are not on view");
    return nativeOf<Slider>(*(*sliders)[index]);
}

Slider& ScriptRunner::heldSlider(const std::string& word) const
{
    auto& named = slider(word);
    if (!_held || &slider(*_held) != &named || !named.isHeld())
        throw ScriptError("slider " + word + " is not touched");
    return named;
}

void ScriptRunner::pressAt(Point point)
{
    if (_host.window().isTouched())
        throw ScriptError("a finger is down already");
    _finger = point;
    _held.reset();
}

void ScriptRunner::finger(const Words& words)
{
    const auto& action = words.front();
    const bool hasPlace = action == "down" || action == "move";
    if (words.size() != (hasPlace ? 3u : 1u) || !(hasPlace || action == "up" || action == "cancel"))
        throw ScriptError("it is finger down X Y, finger move X Y, finger up or finger cancel");
    auto& window = _host.window();
    if (action == "down") {
        const Point place { numberFrom(words[1]), numberFrom(words[2]) };
        pressAt(place);
        window.touchDown({ place, Pointer::Finger });
        return;
    }
    if (!window.isTouched())
        throw ScriptError("no finger is down");
    if (action == "move") {
        _finger = { numberFrom(words[1]), numberFrom(words[2]) };
        window.touchMove(_finger);
    } else if (action == "up") {
        window.touchUp(_finger);
    } else {
        window.touchCancel();
    }
}

void ScriptRunner::touch(const Words& words)
{
    auto& touched = slider(words[0]);
    if (_host.window().isTouched())
        throw ScriptError("a finger is down already");
    if (!touched.begin())
        throw ScriptError("slider " + words[0] + " is covered");
    _held = words[0];
}

void ScriptRunner::drag(const Words& words)
{
    const auto side = sideFrom(words, 2, "drag N V [outside]");
    const double value = numberFrom(words[1]);
    heldSlider(words[0]).set(value, side);
}

void ScriptRunner::lift(const Words& words)
{
    const auto side = sideFrom(words, 1, "lift N [outside]");
    heldSlider(words[0]).commit(side);
}

void ScriptRunner::cancel(const Words& words)
{
    heldSlider(words[0]);
    _host.window().touchCancel();
}

Cell& ScriptRunner::rowOf(const PSSpecifier& specifier) const
{
    return cellAt(pane().table(), indexPathOf(pane(), specifier));
}

Cell& ScriptRunner::cellAt(UITableView& view, const NSIndexPath& path) const
{
    auto& table = nativeOf<toolkit::Table>(view);
    const toolkit::RowPath row { path.section, path.row };
    _host.window().layOutAll();
    table.scrollToRow(row);
    return *table.cellOf(row);
}

void ScriptRunner::tap(toolkit::View& view, const std::string& name) const
{
    if (_host.window().isTouched())
        throw ScriptError("a finger is down already");
    if (!view.activate())
        throw ScriptError("\"" + name + "\" is covered");
}

void ScriptRunner::flipSwitch(const Words& words)
{
    if (words[1] != "on" && words[1] != "off")
        throw ScriptError("it is switch KEY on or switch KEY off");
    for (const auto& specifier : pane().specifiers()) {
        if (!isOfType(*specifier, switchCellType) || stringProperty(*specifier, "key") != words[0])
            continue;
        auto& toggle = *static_cast<SpecifierCell&>(objectOf<UITableViewCell>(rowOf(*specifier))).toggle();
        if (toggle.isOn() != (words[1] == "on"))
            tap(toggle, words[0]);
        return;
    }
    throw ScriptError("there is no switch \"" + words[0] + "\"");
}

void ScriptRunner::press(const Words& words)
{
    const auto* panel = pane().saver();
    if (panel && panelStateOf(panel) != PanelState::Hidden && panel->cancelText() == words[0]) {
        tap(buttonIn(nativeView(*panel->cancelView())), words[0]);
        return;
    }
    const auto* field = dynamic_cast<toolkit::TextField*>(_host.window().focus().view());
    if (field && field->returnKey().title() == words[0]) {
        tap(field->returnKey(), words[0]);
        return;
    }
    for (const auto& specifier : pane().specifiers()) {
        const bool isButton = isOfType(*specifier, buttonCellType) || isOfType(*specifier, linkCellType);
        if (!isButton || (specifier->name() != words[0] && stringProperty(*specifier, "action") != words[0]))
            continue;
        tap(rowOf(*specifier), words[0]);
        return;
    }
    throw ScriptError("there is no button \"" + words[0] + "\"");
}

PlaylistSaver& ScriptRunner::presetList() const
{
    auto* panel = pane().saver();
    if (panelStateOf(panel) != PanelState::List)
        throw ScriptError("the presets are not shown");
    return *panel;
}

NSIndexPath ScriptRunner::presetRow(const std::string& name) const
{
    const auto& presets = presetList().presetDict();
    const auto* found = std::ranges::find(presets, name, &PropertyListDictionary::Entry::key);
    if (found == presets.end())
        throw ScriptError("there is no preset \"" + name + "\"");
    return { 1, static_cast<std::size_t>(found - presets.begin()) };
}

Cell& ScriptRunner::rowInPresetList(const NSIndexPath& path) const
{
    return cellAt(*presetList().tableView(), path);
}

void ScriptRunner::row(const Words& words)
{
    tap(rowInPresetList(presetRow(words[0])), words[0]);
}

void ScriptRunner::saveRow(const Words&)
{
    tap(rowInPresetList({ 0, 0 }), "saverow");
}

void ScriptRunner::type(const Words& words)
{
    if (!_host.window().typeText(words[0]))
        throw ScriptError("nothing takes text");
}

void ScriptRunner::pressReturn(const Words&)
{
    if (!_host.window().keyPressed(toolkit::Key::Return, toolkit::KeyStroke::First))
        throw ScriptError("nothing takes Return");
}

void ScriptRunner::swipe(const Words& words)
{
    const auto& cell = rowInPresetList(presetRow(words[0]));
    const auto [width, height] = cell.frame().size;
    auto& window = _host.window();
    const bool rightToLeft = window.layoutDirection() == toolkit::LayoutDirection::RightToLeft;
    const double start = swipeDistance / 8;
    pressAt(cell.toWindow({ rightToLeft ? start : width - start, height / 2 }));
    window.touchDown({ _finger, Pointer::Mouse });
    for (const double part : { 0.25, 0.75 }) {
        _finger.x += (rightToLeft ? part : -part) * swipeDistance;
        window.touchMove(_finger);
    }
    window.touchUp(_finger);
    auto* button = nativeOf<toolkit::Table>(*presetList().tableView()).swipe().button();
    if (!button)
        throw ScriptError("the row of \"" + words[0] + "\" cannot be swiped");
    tap(*button, "Delete");
}

void ScriptRunner::dim(const Words&)
{
    const auto* panel = pane().saver();
    if (panelStateOf(panel) == PanelState::Hidden)
        throw ScriptError("the presets are not shown");
    pressAt(nativeView(panel->view()).toWindow({ dimmedMargin, dimmedMargin }));
    _host.window().touchDown({ _finger, Pointer::Mouse });
    // The touch down already closes the panel; the finger is lifted as a user would do.
    _host.window().touchUp(_finger);
}

void ScriptRunner::alert(const Words& words)
{
    const auto* shown = _host.window().alerts().current();
    if (!shown)
        throw ScriptError("no alert is shown");
    for (const auto& button : shown->buttons()) {
        if (button->title() != words[0])
            continue;
        tap(*button, words[0]);
        return;
    }
    throw ScriptError("the alert has no button \"" + words[0] + "\"");
}

void ScriptRunner::mail(const Words& words)
{
    if (words[0] != "send" && words[0] != "cancel")
        throw ScriptError("it is mail send or mail cancel");
    const auto* sheet
        = dynamic_cast<MFMailComposeViewController*>(nativeController(_host.rootController()).presented());
    if (!sheet)
        throw ScriptError("no mail is being composed");
    const auto& view = static_cast<ComposeView&>(*nativeController(*sheet).view());
    tap(words[0] == "send" ? view.sendButton() : view.cancelButton(), words[0]);
}

void ScriptRunner::post(const Words& words)
{
    if (!darwinNotifyPost(words[0]))
        throw ScriptError("the session bus cannot be reached");
}

void ScriptRunner::wait(const Words& words)
{
    const double seconds = numberFrom(words[0]);
    if (seconds < 0 || seconds > longestWait)
        throw ScriptError("\"" + words[0] + "\" is not a time");
    _loop.wait(seconds);
}

void ScriptRunner::resize(const Words& words)
{
    _resize({ lengthFrom(words[0]), lengthFrom(words[1]) });
    _host.window().layOutAll();
}

void ScriptRunner::close(const Words&)
{
    pane();
    _host.close();
}

void ScriptRunner::open(const Words&)
{
    if (_host.controller())
        throw ScriptError("the pane is open already");
    _host.open();
}

void ScriptRunner::state(const Words&)
{
    _host.window().layOutAll();
    _trace.stateAsked(stateOf(_host));
}

void ScriptRunner::snapshot(const Words& words)
{
    const double scale = words.size() == 2 ? numberFrom(words[1]) : _scale;
    if (!(scale > 0) || scale > 8)
        throw ScriptError("a picture's scale is above 0 and up to 8");
    if (!writeSnapshot(_host.window(), scale, QString::fromStdString(words[0])))
        throw ScriptError("the picture \"" + words[0] + "\" cannot be written");
}

} // namespace brimsound::desktop
