#include "include/Configuration.h"
#include "include/twitter.h"
#include "platform/Foundation/NSLocale.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/UIKit/UIApplication.h"
#include "settings/BrimsoundSettings.h"
#include "settings/get_model.h"
#include "settings/run_cmd.h"
#include "settings/tweak.h"

#include <algorithm>

namespace brimsound {

namespace {

constexpr auto attachmentType = "text/plain";

/// The number of UTF-16 units that the UTF-8 text would take.
std::size_t lengthInCharacters(std::string_view text)
{
    const auto units = [](char byte) -> std::size_t {
        const auto value = static_cast<unsigned char>(byte);
        const bool isContinuation = (value & 0xc0) == 0x80;
        return isContinuation ? 0 : value >= 0xf0 ? 2 : 1;
    };
    std::size_t length = 0;
    for (const char byte : text)
        length += units(byte);
    return length;
}

/// Appends as many bytes of the text as it has characters, which readers of the report have always been
/// given.
void appendByLength(NSData& data, const std::string& text)
{
    appendText(data, std::string_view(text).substr(0, lengthInCharacters(text)));
}

NSData diagnosticText()
{
    NSData text;
    appendByLength(text, get_model());
    appendText(text, std::string(" (BRS ") + version + ") ");
    const auto languages = preferredLanguages();
    if (!languages.empty())
        appendByLength(text, languages.front());
    appendText(text, "\n");
    if (const auto packages = run_cmd("/usr/bin/env dpkg-query --show"))
        text.insert(text.end(), packages->begin(), packages->end());
    return text;
}

} // namespace

void BrimsoundSettingsListController::reportIssue(PSSpecifier&)
{
    const auto composer = make<MFMailComposeViewController>();
    composer->setMailComposeDelegate(this);
    composer->setSubject(std::string("Brimsound ") + version);
    composer->setToRecipients({ supportAddress });
    composer->addAttachmentDataMimeTypeFileName(diagnosticText(), attachmentType, "Cydia_data.txt");
    // Without a file there is nothing to look into, so the report goes without it.
    if (auto preferences = dataWithContentsOfFile(preferencesPath))
        composer->addAttachmentDataMimeTypeFileName(std::move(*preferences), attachmentType, "prefs.plist");
    rootController().presentViewControllerAnimatedCompletion(composer, Animated::Yes, {});
}

void BrimsoundSettingsListController::mailComposeControllerDidFinishWithResultError(
    MFMailComposeViewController&, MFMailComposeResult, const NSError*)
{
    rootController().dismissViewControllerAnimatedCompletion(Animated::Yes, {});
}

void BrimsoundSettingsListController::visitWebsite(PSSpecifier&)
{
    UIApplication::sharedApplication().openURL(websiteURL);
}

void BrimsoundSettingsListController::visitTwitter(PSSpecifier&)
{
    auto& application = UIApplication::sharedApplication();
    for (const auto* url : TWITTER_URL_SCHEMES) {
        if (application.canOpenURL(url)) {
            application.openURL(url);
            return;
        }
    }
}

} // namespace brimsound
