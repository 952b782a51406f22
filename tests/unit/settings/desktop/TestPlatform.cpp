#include "tests/unit/settings/TestPlatform.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/MessageUI/Composer.h"
#include "platform/desktop/Preferences/RootController.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/MediaServer.h"
#include "tests/support/NoDescriptors.h"
#include "tests/support/PrivateDesktop.h"
#include "tests/support/RecordingEffects.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Overlay.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace brimsound::tests {

namespace {

/// The root controller of the app that shows the pane under test.
UIViewController& appController()
{
    static const auto controller = make<UIViewController>();
    return *controller;
}

desktop::Composer* composer()
{
    auto* sheet
        = dynamic_cast<MFMailComposeViewController*>(desktop::nativeController(appController()).presented());
    return sheet ? &desktop::nativeOf<desktop::Composer>(*sheet) : nullptr;
}

} // namespace

struct TestPlatform::Device {
    ~Device()
    {
        for (const auto& shown : std::vector(appController().view().subviews()))
            shown->removeFromSuperview();
        window->alerts().dismissAll();
        appController().dismissViewControllerAnimatedCompletion(Animated::No, {});
        desktop::setReach(reachBefore);
    }

    TemporaryRoot root;
    TestBus bus;
    std::optional<MediaServer> server;
    std::optional<PrivateDesktop> programs;
    std::optional<EnvironmentVariable> locale;
    std::optional<EnvironmentVariable> languages;
    std::optional<NoDescriptors> noDescriptors;
    toolkit::Ref<toolkit::Window> window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 568 });
    desktop::Reach reachBefore = desktop::reach();
    RecordingEffects effects;
};

const bool TestPlatform::dictionariesKeepTheirOrder = true;

TestPlatform::TestPlatform()
    : _device(std::make_unique<Device>())
{
    desktop::setReach(desktop::Reach::ObserverOnly);
    startMediaServer();
}

TestPlatform::~TestPlatform() = default;

std::vector<std::string> TestPlatform::takeTrace()
{
    return _device->effects.takeTrace();
}

std::vector<PropertyList::Dictionary> TestPlatform::messages() const
{
    std::vector<PropertyList::Dictionary> sent;
    for (const auto& message : _device->effects.messages())
        sent.push_back(message.userInfo);
    return sent;
}

void TestPlatform::deliverNotifications()
{
    desktop::SessionBus::shared().drain();
}

void TestPlatform::postFromAnotherProcess(const std::string& name)
{
    _device->bus.postFromAnotherProcess(name);
}

void TestPlatform::endTurn() { }

void TestPlatform::passTime(double seconds)
{
    toolkit::Clock::shared().advance(seconds);
}

void TestPlatform::showInWindow(UIView& view, CGSize size)
{
    auto& app = appController().view();
    _device->window->add(desktop::nativeView(app));
    for (const auto& shown : std::vector(app.subviews()))
        shown->removeFromSuperview();
    app.addSubview(view);
    resizeWindow(size);
}

void TestPlatform::resizeWindow(CGSize size)
{
    _device->window->setFrame({ {}, desktop::toolkitSize(size) });
    topmostView().setFrame({ {}, size });
    topmostView().subviews().front()->setFrame({ {}, size });
    layOut();
}

UIView& TestPlatform::topmostView() const
{
    return appController().view();
}

void TestPlatform::layOut()
{
    _device->window->layOutAll();
}

void TestPlatform::stopMediaServer()
{
    _device->server.reset();
}

void TestPlatform::startMediaServer()
{
    _device->server.emplace();
}

bool TestPlatform::answerAlert(std::size_t button)
{
    const auto* alert = _device->window->alerts().current();
    if (alert)
        alert->buttons().at(button)->press();
    return alert != nullptr;
}

std::string TestPlatform::alertTitle() const
{
    const auto* alert = _device->window->alerts().current();
    return alert ? alert->title() : "";
}

std::optional<TestPlatform::Mail> TestPlatform::composedMail() const
{
    auto* composing = composer();
    if (!composing)
        return std::nullopt;
    const auto& written = composing->mail();
    Mail mail { written.subject, written.to, {} };
    for (const auto& [fileName, mimeType, data] : written.attachments) {
        mail.attachments.push_back(
            { fileName, mimeType, std::string(reinterpret_cast<const char*>(data.data()), data.size()) });
    }
    return mail;
}

void TestPlatform::sendMail()
{
    composer()->send();
}

void TestPlatform::cancelMail()
{
    composer()->cancel();
}

bool TestPlatform::isSheetMoving() const
{
    return std::ranges::any_of(_device->window->children(), [](const auto& view) {
        return dynamic_cast<const toolkit::Overlay*>(view.get()) && view->alpha() > 0 && view->alpha() < 1;
    });
}

void TestPlatform::carryOutCommands()
{
    desktop::setReach(desktop::Reach::Everything);
}

void TestPlatform::failToStartCommands()
{
    carryOutCommands();
    _device->noDescriptors.emplace();
}

void TestPlatform::startCommandsAgain()
{
    _device->noDescriptors.reset();
}

void TestPlatform::haveProgramsFor(const std::vector<std::string>& schemes)
{
    _device->programs.emplace();
    for (const auto& scheme : schemes)
        _device->programs->addRecordingProgram("x-scheme-handler/" + scheme);
}

void TestPlatform::setPreferredLanguages(const std::vector<std::string>& languages)
{
    std::string list;
    for (const auto& language : languages)
        list += (list.empty() ? "" : ":") + language;
    _device->languages.emplace("LANGUAGE", list.c_str());
    _device->locale.emplace("LC_ALL", languages.empty() ? "C" : languages.front().c_str());
}

void TestPlatform::writePreferencesFile(const std::string& bytes)
{
    _device->root.write(preferencesPath, bytes);
}

void TestPlatform::writePreferencesFile(const PropertyList& value)
{
    const auto data = dataWithPropertyList(value, NSPropertyListFormat::XMLFormat_v1_0, 0);
    writePreferencesFile(std::string(reinterpret_cast<const char*>(data->data()), data->size()));
}

void TestPlatform::makePreferencesFileUnwritable()
{
    const auto path = _device->root.path() / std::string(preferencesPath).substr(1);
    std::filesystem::remove(path);
    std::filesystem::create_directories(path);
}

std::string TestPlatform::preferencesFile() const
{
    return _device->root.read(preferencesPath);
}

CGRect shownFrame(const UIView& view)
{
    return desktop::cgRect(desktop::nativeView(view).shownFrame());
}

std::vector<CGFloat> shownBackground(const UIView& view)
{
    const auto color = desktop::nativeView(view).shownBackground();
    return { color.red, color.green, color.blue, color.alpha };
}

CGFloat shownAlpha(const UIView& view)
{
    return desktop::nativeView(view).shownAlpha();
}

void putIntoAnApp(PSListController& controller)
{
    desktop::setRootController(controller, appController());
}

} // namespace brimsound::tests
