#include "platform/desktop/MessageUI/MailClient.h"

#include "platform/desktop/MessageUI/MailFolder.h"
#include "platform/desktop/MessageUI/XdgEmail.h"
#include "platform/desktop/UIKit/UrlOpener.h"

#include <span>

namespace brimsound::desktop {

namespace {

bool openInMailProgram(const Mail& mail, const std::filesystem::path& folder)
{
    MailWithFiles mailWithFiles { mail.subject, mail.to, {} };
    for (const auto& attachment : mail.attachments) {
        const auto path = addFile(folder, attachment.fileName, attachment.data);
        if (!path)
            return false;
        mailWithFiles.files.push_back(path->string());
    }
    return composeWithXdgEmail(mailWithFiles);
}

} // namespace

bool handOver(const Mail& mail, std::string& reason)
{
    const auto folder = makeMailFolder();
    if (!folder) {
        reason = "the mail's files cannot be written";
        return false;
    }
    if (openInMailProgram(mail, *folder))
        return true;

    const auto message = messageOf(mail);
    const auto draft = addFile(*folder, "draft.eml", std::as_bytes(std::span(message)));
    if (!draft) {
        reason = "the draft cannot be written";
        return false;
    }
    if (openFileWithProgram(*draft, "message/rfc822"))
        return true;
    reason = "there is no program for mails";
    return false;
}

} // namespace brimsound::desktop
