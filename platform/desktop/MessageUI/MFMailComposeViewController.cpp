#include "platform/MessageUI/MFMailComposeViewController.h"

#include "platform/Foundation/NSLog.h"
#include "platform/desktop/MessageUI/ComposeView.h"
#include "platform/desktop/MessageUI/ComposerPeer.h"
#include "platform/desktop/MessageUI/MailClient.h"
#include "platform/desktop/effects/Effects.h"

namespace brimsound {

namespace desktop {

namespace {

/// MFMailComposeErrorCodeSendFailed.
constexpr long sendFailed = 1;

} // namespace

ComposerPeer& peerOf(const MFMailComposeViewController& composer)
{
    return static_cast<ComposerPeer&>(composer.peer());
}

ComposerPeer::ComposerPeer()
{
    view = make<ComposeView>(
        mail, [this] { cancel(); }, [this] { send(); });
}

void ComposerPeer::send()
{
    if (_isFinished)
        return;
    effects().mailSent(mail);
    std::string reason;
    if (reach() == Reach::ObserverOnly || handOver(mail, reason)) {
        finish(MFMailComposeResult::Sent, nullptr);
        return;
    }
    NSLog("The mail could not be handed over: " + reason);
    const NSError error { "MFMailComposeErrorDomain", sendFailed, reason };
    finish(MFMailComposeResult::Failed, &error);
}

void ComposerPeer::cancel()
{
    finish(MFMailComposeResult::Cancelled, nullptr);
}

void ComposerPeer::finish(MFMailComposeResult result, const NSError* error)
{
    // The buttons still react while the sheet fades out.
    if (std::exchange(_isFinished, true))
        return;
    const auto kept = brimsound::retain(composer);
    if (delegate)
        delegate->mailComposeControllerDidFinishWithResultError(*composer, result, error);
}

} // namespace desktop

using desktop::ComposerPeer;
using desktop::peerOf;

MFMailComposeViewController::MFMailComposeViewController(Peer* peer)
    : UIViewController(peer)
{
}

MFMailComposeViewController::MFMailComposeViewController()
    : MFMailComposeViewController(new ComposerPeer)
{
    peerOf(*this).composer = this;
}

void MFMailComposeViewController::setMailComposeDelegate(MFMailComposeViewControllerDelegate* delegate)
{
    peerOf(*this).delegate = delegate;
}

void MFMailComposeViewController::setSubject(const std::string& subject)
{
    peerOf(*this).mail.subject = subject;
}

void MFMailComposeViewController::setToRecipients(const std::vector<std::string>& recipients)
{
    peerOf(*this).mail.to = recipients;
}

void MFMailComposeViewController::addAttachmentDataMimeTypeFileName(
    NSData data, const std::string& mimeType, const std::string& fileName)
{
    peerOf(*this).mail.attachments.push_back({ fileName, mimeType, std::move(data) });
}

} // namespace brimsound
