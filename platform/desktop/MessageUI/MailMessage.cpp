#include "platform/desktop/MessageUI/MailClient.h"
#include "platform/desktop/MessageUI/MailFolder.h"
#include "platform/desktop/gio/GObjectPointer.h"

#include <gmime/gmime.h>

#include <algorithm>

namespace brimsound::desktop {

namespace {

struct FormatFree {
    void operator()(GMimeFormatOptions* format) const { g_mime_format_options_free(format); }
};
using Format = std::unique_ptr<GMimeFormatOptions, FormatFree>;

/// Text for a header: valid UTF-8 without line breaks.
std::string headerText(const std::string& text)
{
    const GText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
    std::string line = valid.get();
    std::ranges::replace_if(
        line, [](char character) { return g_ascii_iscntrl(character); }, ' ');
    return line;
}

void setHeaders(GMimeMessage* message, const Mail& mail)
{
    auto* recipients = g_mime_message_get_to(message);
    for (const auto& address : mail.to) {
        const GObjectPointer<InternetAddress> recipient(
            internet_address_mailbox_new(nullptr, headerText(address).c_str()));
        internet_address_list_add(recipients, recipient.get());
    }
    g_mime_message_set_subject(message, headerText(mail.subject).c_str(), "utf-8");

    const std::unique_ptr<GDateTime, decltype(&g_date_time_unref)> now(
        g_date_time_new_now_local(), g_date_time_unref);
    g_mime_message_set_date(message, now.get());
    // The identifier must not reveal the machine's name.
    const GText identifier(g_mime_utils_generate_message_id("localhost"));
    g_mime_message_set_message_id(message, identifier.get());
    // Makes mail programs open the message as a draft.
    g_mime_object_set_header(GMIME_OBJECT(message), "X-Unsent", "1", nullptr);
}

GObjectPointer<GMimePart> attachmentPart(const MailAttachment& attachment)
{
    const GObjectPointer<GMimeContentType> type(
        g_mime_content_type_parse(nullptr, headerText(attachment.mimeType).c_str()));
    GObjectPointer<GMimePart> part(g_mime_part_new_with_type(
        g_mime_content_type_get_media_type(type.get()), g_mime_content_type_get_media_subtype(type.get())));
    g_mime_object_set_disposition(GMIME_OBJECT(part.get()), GMIME_DISPOSITION_ATTACHMENT);
    g_mime_part_set_filename(part.get(), headerText(plainFileName(attachment.fileName)).c_str());

    const GObjectPointer<GMimeStream> stream(g_mime_stream_mem_new_with_buffer(
        reinterpret_cast<const char*>(attachment.data.data()), attachment.data.size()));
    const GObjectPointer<GMimeDataWrapper> content(
        g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
    g_mime_part_set_content(part.get(), content.get());
    // Base64 for text too: with other encodings some mail programs change the line ends.
    g_mime_part_set_content_encoding(part.get(), GMIME_CONTENT_ENCODING_BASE64);
    return part;
}

GObjectPointer<GMimeMultipart> partsOf(const Mail& mail)
{
    GObjectPointer<GMimeMultipart> parts(g_mime_multipart_new_with_subtype("mixed"));
    // Without a text part, mail programs would show the first attachment as the text.
    const GObjectPointer<GMimeTextPart> text(g_mime_text_part_new());
    g_mime_text_part_set_text(text.get(), "");
    g_mime_multipart_add(parts.get(), GMIME_OBJECT(text.get()));
    for (const auto& attachment : mail.attachments)
        g_mime_multipart_add(parts.get(), GMIME_OBJECT(attachmentPart(attachment).get()));
    return parts;
}

} // namespace

std::string messageOf(const Mail& mail)
{
    g_mime_init();
    const GObjectPointer<GMimeMessage> message(g_mime_message_new(true));
    setHeaders(message.get(), mail);
    g_mime_message_set_mime_part(message.get(), GMIME_OBJECT(partsOf(mail).get()));

    const Format format(g_mime_format_options_new());
    g_mime_format_options_set_newline_format(format.get(), GMIME_NEWLINE_FORMAT_DOS);
    const GText text(g_mime_object_to_string(GMIME_OBJECT(message.get()), format.get()));
    return text.get();
}

} // namespace brimsound::desktop
