#include "platform/MessageUI/MFMailComposeViewController.h"

#include "platform/Foundation/NSLog.h"
#include "platform/desktop/MessageUI/ComposeView.h"
#include "platform/desktop/MessageUI/Composer.h"
#include "platform/desktop/MessageUI/MailClient.h"
#include "platform/desktop/effects/Effects.h"

namespace brimsound {

namespace desktop {

namespace {

/// MFMailComposeErrorCodeSendFailed.
constexpr long sendFailed = 1;

} // namespace

Composer::Composer()
{
    setView(toolkit::make<ComposeView>(
        _mail, [this] { cancel(); }, [this] { send(); }));
}

void Composer::send()
{
    if (_isFinished)
        return;
    effects().mailSent(_mail);
    std::string reason;
    if (reach() == Reach::ObserverOnly || handOver(_mail, reason)) {
        finish(MFMailComposeResult::Sent, nullptr);
        return;
    }
    NSLog("The mail could not be handed over: " + reason);
    const NSError error { "MFMailComposeErrorDomain", sendFailed, reason };
    finish(MFMailComposeResult::Failed, &error);
}

void Composer::cancel()
{
    finish(MFMailComposeResult::Cancelled, nullptr);
}

void Composer::finish(MFMailComposeResult result, const NSError* error)
{
    // The buttons still react while the sheet fades out.
    if (std::exchange(_isFinished, true))
        return;
    const auto composer = brimsound::retain(&objectOf<MFMailComposeViewController>(*this));
    if (_delegate)
        _delegate->mailComposeControllerDidFinishWithResultError(*composer, result, error);
}

} // namespace desktop

using desktop::Composer;

namespace {

Composer& native(const MFMailComposeViewController& composer)
{
    return desktop::nativeOf<Composer>(composer);
}

} // namespace

MFMailComposeViewController::MFMailComposeViewController(Peer* peer)
    : UIViewController(peer)
{
}

MFMailComposeViewController::MFMailComposeViewController()
    : MFMailComposeViewController(desktop::peer(new Composer))
{
}

void MFMailComposeViewController::setMailComposeDelegate(MFMailComposeViewControllerDelegate* delegate)
{
    native(*this).setDelegate(delegate);
}

void MFMailComposeViewController::setSubject(const std::string& subject)
{
    native(*this).mail().subject = subject;
}

void MFMailComposeViewController::setToRecipients(const std::vector<std::string>& recipients)
{
    native(*this).mail().to = recipients;
}

void MFMailComposeViewController::addAttachmentDataMimeTypeFileName(
    NSData data, const std::string& mimeType, const std::string& fileName)
{
    native(*this).mail().attachments.push_back({ fileName, mimeType, std::move(data) });
}

} // namespace brimsound
