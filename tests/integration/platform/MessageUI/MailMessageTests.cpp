#include "platform/desktop/MessageUI/MailClient.h"

#include "tests/support/PrivateDesktop.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

namespace brimsound::desktop {

using namespace std::string_view_literals;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

NSData bytes(std::string_view text)
{
    NSData data;
    appendText(data, text);
    return data;
}

/// A message, parsed by another mail library.
class AMessage : public testing::Test {
protected:
    void read(const std::string& message)
    {
        std::filesystem::create_directories(folder);
        const auto file = (desktop.home() / "message.eml").string();
        std::ofstream(file, std::ios::binary) << message;
        const auto command = MAIL_CLIENT " " + folder.string() + " " + file;
        ASSERT_EQ(std::system(command.c_str()), 0);
    }

    std::string part(const std::string& name) const { return tests::contentsOf(folder / name); }

    tests::PrivateDesktop desktop;
    std::filesystem::path folder = desktop.home() / "read";
};

std::string everyByte()
{
    std::string text = "bplist00";
    for (int round = 0; round < 40; ++round) {
        for (int byte = 0; byte < 256; ++byte)
            text += static_cast<char>(byte);
    }
    return text + "\r\n.\r\nFrom me\n\r\r\n";
}

} // namespace

TEST_F(AMessage, KeepsItsAttachmentsByteForByte)
{
    const auto binary = everyByte();
    const auto text = "x86_64 on iOS 12 (BRS 1.5.5) en\npackage\t1.0\r\nlast"sv;
    read(messageOf({ "Brimsound 1.5.5", { "support@example.com" },
        { { "Cydia_data.txt", "text/plain", bytes(text) }, { "prefs.plist", "text/plain", bytes(binary) },
            { "nothing", "text/plain", {} } } }));
    EXPECT_EQ(part("subject"), "Brimsound 1.5.5");
    EXPECT_EQ(part("to"), "support@example.com\n");
    EXPECT_EQ(part("1-Cydia_data.txt"), text);
    EXPECT_EQ(part("2-prefs.plist"), binary);
    EXPECT_TRUE(std::filesystem::exists(folder / "3-nothing"));
    EXPECT_EQ(part("3-nothing"), "");
}

TEST_F(AMessage, KeepsTextThatIsNotASCII)
{
    const auto* subject
        = "Br\xc3\xafms\xc3\xb8und \xe2\x80\x93 \xf0\x9f\x8e\x9a a subject that is so long that it "
          "needs more than one line of its header, and \xe4\xb8\xad\xe6\x96\x87";
    const auto* name = "\xc3\xa9 \"\xe4\xb8\xad\xe6\x96\x87\"; with a name that is longer than a line may "
                       "be, and more.plist";
    read(
        messageOf({ subject, { "a@example.com", "b@example.com" }, { { name, "text/plain", bytes("x") } } }));
    EXPECT_EQ(part("subject"), subject);
    EXPECT_EQ(part("to"), "a@example.com\nb@example.com\n");
    EXPECT_EQ(part(std::string("1-") + name), "x");
}

TEST_F(AMessage, HasTheHeadersOfADraft)
{
    const auto message
        = messageOf({ "Subject", { "a@example.com" }, { { "a.txt", "text/plain", bytes("x") } } });
    for (const auto* header :
        { "\nX-Unsent: 1\r\n", "\nMIME-Version: 1.0\r\n", "To: a@example.com\r\n", "Subject: Subject\r\n" })
        EXPECT_THAT(message, HasSubstr(header));
    EXPECT_THAT(
        message, ContainsRegex("Date: [A-Z][a-z]+, [0-9]+ [A-Z][a-z]+ [0-9]+ [0-9:]+ [+-][0-9]+\r\n"));
    EXPECT_THAT(message, ContainsRegex("Message-I[dD]: <[^ ]+@localhost>\r\n"));
    EXPECT_THAT(message, Not(ContainsRegex("[^\r]\n"))) << "lines of mails end with CR and LF";
}

TEST_F(AMessage, PreventsHeaderInjection)
{
    read(messageOf({ "one\r\nBcc: evil@example.com", { "a@example.com\nBcc: evil@example.com" },
        { { "a\nX: y.txt", "text/plain\nX: y", bytes("x") } } }));
    const auto message = tests::contentsOf(desktop.home() / "message.eml");
    EXPECT_THAT(message, Not(HasSubstr("\nBcc:")));
    EXPECT_THAT(message, Not(HasSubstr("\nX:")));
    EXPECT_EQ(part("subject"), "one  Bcc: evil@example.com");
}

TEST_F(AMessage, NamesFilesWithoutTheirFolders)
{
    read(messageOf({ "s", { "a@example.com" },
        { { "../../etc/name.txt", "text/plain", bytes("x") }, { "", "text/plain", bytes("y") },
            { "folder/", "text/plain", bytes("z") } } }));
    EXPECT_EQ(part("1-name.txt"), "x");
    EXPECT_EQ(part("2-attachment"), "y");
    EXPECT_EQ(part("3-attachment"), "z");
}

TEST_F(AMessage, CanBeEmpty)
{
    const auto message = messageOf({});
    EXPECT_THAT(message, HasSubstr("X-Unsent: 1\r\n"));
    EXPECT_THAT(
        messageOf({ "s", { "a@example.com" }, { { "a", "no type", bytes("x") } } }), HasSubstr("base64"));
}

} // namespace brimsound::desktop
