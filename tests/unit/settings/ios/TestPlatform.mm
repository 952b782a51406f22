#include "tests/unit/settings/TestPlatform.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"
#include "platform/ios/UIKit/NativeView.h"
#include "settings/tweak.h"
#include "tests/doubles/AppSupport/MediaServer.h"
#include "tests/doubles/CoreFoundation/NotificationCenter.h"
#include "tests/doubles/Doubles.h"
#include "tests/doubles/Foundation/DeviceFiles.h"
#include "tests/doubles/Foundation/Languages.h"
#include "tests/doubles/MessageUI/ComposedMail.h"
#include "tests/doubles/System/Commands.h"
#include "tests/doubles/Trace.h"
#include "tests/support/TemporaryFolder.h"

#import <Preferences/PSListController.h>

#include <algorithm>
#include <filesystem>
#include <optional>

namespace brimsound::tests {

using ios::nativeOf;
using ios::nativeView;

namespace {

/// The root controller of the app that shows the pane under test.
UIViewController& appController()
{
    static const auto controller = make<UIViewController>();
    return *controller;
}

::UIViewController* nativeAppController()
{
    return nativeOf(appController());
}

/// Nil when no mail is being composed.
::MFMailComposeViewController* composer()
{
    ::UIViewController* sheet = [nativeAppController() presentedViewController];
    return [sheet isKindOfClass:[::MFMailComposeViewController class]] ? (::MFMailComposeViewController*)sheet
                                                                       : nil;
}

std::string textOf(NSString* text)
{
    return [text UTF8String];
}

/// A turn of the main loop. At its end, autoreleased objects are released.
class Turn {
public:
    Turn() = default;
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { [_pool release]; }

private:
    NSAutoreleasePool* _pool = [[NSAutoreleasePool alloc] init];
};

} // namespace

struct TestPlatform::Device {
    Device()
    {
        std::filesystem::create_directories(file().parent_path());
        installBundle();
        doubles::setDeviceRoot(root.path());
        doubles::carryOutCommands(false);
        doubles::refuseProcesses(false);
        doubles::setPreferredLanguages({ "en" });
        doubles::forgetMessages();
        doubles::forgetNotifications();
        doubles::resetUIKit();
        [window makeKeyAndVisible];
        [window setRootViewController:nativeAppController()];
        doubles::takeTrace();
    }

    ~Device()
    {
        // Others wait for the one that is shown.
        while (doubles::pressAlertButton(0)) { }
        for (const auto& shown : std::vector(appController().view().subviews()))
            shown->removeFromSuperview();
        appController().dismissViewControllerAnimatedCompletion(Animated::No, {});
        doubles::resetUIKit();
        [window setRootViewController:nil];
        [window release];
        doubles::setDeviceRoot({});
    }

    void installBundle() const
    {
        const auto bundles = root.path() / "Library/PreferenceBundles";
        std::filesystem::create_directories(bundles);
        std::filesystem::create_directory_symlink(
            [[[::NSBundle mainBundle] resourcePath] UTF8String], bundles / "BrimsoundSettings.bundle");
    }

    std::filesystem::path file() const { return root.path() / std::string(preferencesPath).substr(1); }

    std::optional<Turn> turn { std::in_place };
    TemporaryFolder root;
    UIWindow* window = [[UIWindow alloc] initWithFrame:ios::native(CGRect { {}, { 320, 568 } })];
};

const bool TestPlatform::dictionariesKeepTheirOrder = false;

TestPlatform::TestPlatform()
    : _device(std::make_unique<Device>())
{
    startMediaServer();
}

TestPlatform::~TestPlatform() = default;

std::vector<std::string> TestPlatform::takeTrace()
{
    return doubles::takeTrace();
}

std::vector<PropertyList::Dictionary> TestPlatform::messages() const
{
    std::vector<PropertyList::Dictionary> sent;
    for (NSDictionary* userInfo in doubles::sentMessages())
        sent.push_back(*ios::valueOf(userInfo)->asDictionary());
    return sent;
}

void TestPlatform::deliverNotifications()
{
    doubles::deliverNotifications();
}

void TestPlatform::postFromAnotherProcess(const std::string& name)
{
    doubles::postFromAnotherProcess(name);
}

void TestPlatform::endTurn()
{
    _device->turn.reset();
    _device->turn.emplace();
}

void TestPlatform::passTime(double seconds)
{
    doubles::advanceClock(seconds);
}

void TestPlatform::showInWindow(UIView& view, CGSize size)
{
    for (const auto& shown : std::vector(topmostView().subviews()))
        shown->removeFromSuperview();
    topmostView().addSubview(view);
    resizeWindow(size);
}

void TestPlatform::resizeWindow(CGSize size)
{
    [_device->window setFrame:ios::native(CGRect { {}, size })];
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
    const Turn turn;
    [_device->window layoutIfNeeded];
}

void TestPlatform::stopMediaServer()
{
    doubles::setMediaServerRuns(false);
}

void TestPlatform::startMediaServer()
{
    doubles::setMediaServerRuns(true);
}

bool TestPlatform::answerAlert(std::size_t button)
{
    const Turn turn;
    return doubles::pressAlertButton(static_cast<NSInteger>(button));
}

std::string TestPlatform::alertTitle() const
{
    NSString* title = [doubles::currentAlert() title];
    return title ? textOf(title) : "";
}

std::optional<TestPlatform::Mail> TestPlatform::composedMail() const
{
    ::MFMailComposeViewController* composing = composer();
    if (!composing)
        return std::nullopt;
    Mail mail { textOf([composing subject]), {}, {} };
    for (NSString* address in [composing toRecipients])
        mail.to.push_back(textOf(address));
    for (NSDictionary* attachment in [composing attachments]) {
        ::NSData* data = [attachment objectForKey:@"data"];
        mail.attachments.push_back(
            { textOf([attachment objectForKey:@"fileName"]), textOf([attachment objectForKey:@"mimeType"]),
                std::string(static_cast<const char*>([data bytes]), [data length]) });
    }
    return mail;
}

void TestPlatform::sendMail()
{
    const Turn turn;
    [composer() send];
}

void TestPlatform::cancelMail()
{
    const Turn turn;
    [composer() cancel];
}

bool TestPlatform::isSheetMoving() const
{
    return doubles::isSheetMoving();
}

void TestPlatform::carryOutCommands()
{
    doubles::carryOutCommands(true);
}

void TestPlatform::failToStartCommands()
{
    doubles::refuseProcesses(true);
}

void TestPlatform::startCommandsAgain()
{
    doubles::refuseProcesses(false);
}

void TestPlatform::haveProgramsFor(const std::vector<std::string>& schemes)
{
    NSMutableArray* names = [NSMutableArray array];
    for (const auto& scheme : schemes)
        [names addObject:[NSString stringWithUTF8String:scheme.c_str()]];
    doubles::setSchemesThatOpen(names);
}

void TestPlatform::setPreferredLanguages(const std::vector<std::string>& languages)
{
    auto codes = languages;
    for (auto& code : codes)
        std::ranges::replace(code, '_', '-');
    doubles::setPreferredLanguages(codes);
}

void TestPlatform::writePreferencesFile(const std::string& bytes)
{
    writeFile(_device->file(), bytes);
}

void TestPlatform::writePreferencesFile(const PropertyList& value)
{
    const auto data = dataWithPropertyList(value, NSPropertyListFormat::XMLFormat_v1_0, 0);
    writePreferencesFile(std::string(reinterpret_cast<const char*>(data->data()), data->size()));
}

void TestPlatform::makePreferencesFileUnwritable()
{
    std::filesystem::remove(_device->file());
    std::filesystem::create_directories(_device->file());
}

std::string TestPlatform::preferencesFile() const
{
    return readFile(_device->file());
}

CGRect shownFrame(const UIView& view)
{
    return ios::ours(doubles::shownFrame(nativeView(view)));
}

std::vector<CGFloat> shownBackground(const UIView& view)
{
    const auto components = doubles::shownBackground(nativeView(view));
    return { components.begin(), components.end() };
}

CGFloat shownAlpha(const UIView& view)
{
    return doubles::shownAlpha(nativeView(view));
}

void putIntoAnApp(PSListController& controller)
{
    ::PSListController* native = nativeOf(controller);
    [native setRootController:nativeAppController()];
}

} // namespace brimsound::tests
