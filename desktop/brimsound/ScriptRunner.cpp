#include "desktop/brimsound/ScriptRunner.h"

#include "desktop/brimsound/State.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/desktop/MessageUI/ComposeView.h"
#include "platform/desktop/Preferences/SpecifierCell.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/UIKit/AlertPeer.h"
#include "platform/desktop/UIKit/Press.h"
#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"
#include "platform/desktop/UIKit/ViewControllerPeer.h"
#include "platform/desktop/bus/DarwinNotifyPost.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

/// How far below a slider a finger is outside, in points. Controls accept touches within a smaller margin.
constexpr double outsideDistance = 200;
constexpr std::size_t lastSlider = 10;
/// How far a swipe moves a row to the left, in points: more than the width of its button.
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
    PaneHost& host, MainLoop& loop, Trace& trace, double scale, std::function<void(CGSize)> resize)
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

UISlider& ScriptRunner::slider(const std::string& word) const
{
    const auto index = indexFrom(word, lastSlider);
    _host.window().layOut();
    const auto* sliders = pane().sliders();
    if (!sliders)
        throw ScriptError("the sliders are not on view");
    return *(*sliders)[index];
}

UISlider& ScriptRunner::heldSlider(const std::string& word) const
{
    auto& named = slider(word);
    if (!_held || &slider(*_held) != &named || !peerOf(named).isTracking)
        throw ScriptError("slider " + word + " is not touched");
    return named;
}

void ScriptRunner::pressAt(CGPoint point)
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
        const CGPoint place { numberFrom(words[1]), numberFrom(words[2]) };
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
    scrollIntoView(touched);
    const auto place = convertToWindow(peerOf(touched).thumbCentre(touched.value()), touched);
    if (hitTest(_host.window(), place) != &touched)
        throw ScriptError("slider " + words[0] + " is covered");
    pressAt(place);
    _held = words[0];
    // A mouse press reaches the slider at once. A finger would wait to see whether the user scrolls.
    _host.window().touchDown({ place, Pointer::Mouse });
}

void ScriptRunner::drag(const Words& words)
{
    if (words.size() == 3 && words[2] != "outside")
        throw ScriptError("it is drag N V [outside]");
    const double value = numberFrom(words[1]);
    auto& dragged = heldSlider(words[0]);
    _finger = convertToWindow(peerOf(dragged).thumbCentre(value), dragged);
    if (words.size() == 3)
        _finger.y += outsideDistance;
    _host.window().touchMove(_finger);
}

void ScriptRunner::lift(const Words& words)
{
    if (words.size() == 2 && words[1] != "outside")
        throw ScriptError("it is lift N [outside]");
    auto& lifted = heldSlider(words[0]);
    _finger = convertToWindow(peerOf(lifted).thumbCentre(lifted.value()), lifted);
    if (words.size() == 2)
        _finger.y += outsideDistance;
    _host.window().touchUp(_finger);
}

void ScriptRunner::cancel(const Words& words)
{
    heldSlider(words[0]);
    _host.window().touchCancel();
}

UITableViewCell& ScriptRunner::rowOf(const PSSpecifier& specifier) const
{
    return cellAt(pane().table(), indexPathOf(pane(), specifier));
}

UITableViewCell& ScriptRunner::cellAt(UITableView& table, const NSIndexPath& path) const
{
    _host.window().layOut();
    scrollPeerOf(table).scrollIntoView(peerOf(table).rowRect(path));
    _host.window().layOut();
    return *table.cellForRowAtIndexPath(path);
}

void ScriptRunner::tap(UIView& view, const std::string& name) const
{
    if (_host.window().isTouched())
        throw ScriptError("a finger is down already");
    if (!desktop::press(view))
        throw ScriptError("\"" + name + "\" is covered");
}

void ScriptRunner::flipSwitch(const Words& words)
{
    if (words[1] != "on" && words[1] != "off")
        throw ScriptError("it is switch KEY on or switch KEY off");
    for (const auto& specifier : pane().specifiers()) {
        if (!isOfType(*specifier, switchCellType) || stringProperty(*specifier, "key") != words[0])
            continue;
        auto& toggle = *static_cast<SpecifierCell&>(rowOf(*specifier)).toggle();
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
        tap(*panel->cancelView(), words[0]);
        return;
    }
    const auto* field = dynamic_cast<UITextField*>(_host.window().focus().view());
    if (field && peerOf(*field).returnKey->title() == words[0]) {
        tap(*peerOf(*field).returnKey, words[0]);
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

UITableViewCell& ScriptRunner::rowInPresetList(const NSIndexPath& path) const
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
    if (!_host.window().keyPressed(Key::Return))
        throw ScriptError("nothing takes Return");
}

void ScriptRunner::swipe(const Words& words)
{
    const auto& cell = rowInPresetList(presetRow(words[0]));
    const auto [width, height] = cell.bounds().size;
    auto& window = _host.window();
    pressAt(convertToWindow({ width - swipeDistance / 8, height / 2 }, cell));
    window.touchDown({ _finger, Pointer::Mouse });
    for (const double part : { 0.25, 0.75 }) {
        _finger.x -= part * swipeDistance;
        window.touchMove(_finger);
    }
    window.touchUp(_finger);
    const auto& swiped = peerOf(*presetList().tableView()).swipedRow;
    if (!swiped)
        throw ScriptError("the row of \"" + words[0] + "\" cannot be swiped");
    tap(*swiped->button, "Delete");
}

void ScriptRunner::dim(const Words&)
{
    const auto* panel = pane().saver();
    if (panelStateOf(panel) == PanelState::Hidden)
        throw ScriptError("the presets are not shown");
    pressAt(convertToWindow({ dimmedMargin, dimmedMargin }, panel->view()));
    _host.window().touchDown({ _finger, Pointer::Mouse });
    // The touch down already closes the panel; the finger is lifted as a user would do.
    _host.window().touchUp(_finger);
}

void ScriptRunner::alert(const Words& words)
{
    const auto* shown = _host.window().alerts().current();
    if (!shown)
        throw ScriptError("no alert is shown");
    for (const auto& button : peerOf(*shown).buttons) {
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
        = dynamic_cast<MFMailComposeViewController*>(peerOf(_host.rootController()).presented.get());
    if (!sheet)
        throw ScriptError("no mail is being composed");
    const auto& view = static_cast<ComposeView&>(sheet->view());
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
    _host.window().layOut();
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
    _host.window().layOut();
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
