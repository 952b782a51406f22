#include "include/Configuration.h"
#include "include/twitter.h"
#include "platform/Foundation/NSLocale.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/UIKit/UIApplication.h"
#include "settings/BrimsoundSettings.h"
#include "settings/diagnosticText.h"
#include "settings/get_model.h"
#include "settings/run_cmd.h"
#include "settings/tweak.h"

namespace brimsound {

namespace {

constexpr auto attachmentType = "text/plain";

} // namespace

void BrimsoundSettingsListController::reportIssue(PSSpecifier&)
{
    const auto composer = make<MFMailComposeViewController>();
    composer->setMailComposeDelegate(this);
    composer->setSubject(std::string("Brimsound ") + version);
    composer->setToRecipients({ supportAddress });
    composer->addAttachmentDataMimeTypeFileName(
        diagnosticText(get_model(), preferredLanguages(), run_cmd("/usr/bin/env dpkg-query --show")),
        attachmentType, "Cydia_data.txt");
    // When the file cannot be read, the report is sent without it.
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
