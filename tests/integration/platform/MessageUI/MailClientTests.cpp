#include "platform/desktop/MessageUI/MailClient.h"

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/PrivateDesktop.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <glib.h>
#include <sys/wait.h>
#include <thread>

namespace brimsound::desktop {

using namespace std::chrono_literals;
using namespace std::string_view_literals;
using testing::SizeIs;
namespace fs = std::filesystem;

namespace {

constexpr auto mailto = "x-scheme-handler/mailto";
constexpr auto messages = "message/rfc822";

NSData bytes(std::string_view text)
{
    NSData data;
    appendText(data, text);
    return data;
}

constexpr auto text = "x86_64 on iOS 12 (BRS 1.5.5) en\npackage\t1.0\n"sv;
constexpr auto binary = "bplist00\xd1\x01\x02\0\0\r\n\n\xff end"sv;

Mail report()
{
    return { "Brimsound 1.5.5", { "support@example.com" },
        { { "Cydia_data.txt", "text/plain", bytes(text) }, { "prefs.plist", "text/plain", bytes(binary) } } };
}

class HandingOverAMail : public testing::Test {
protected:
    HandingOverAMail() { fs::create_directories(taken); }

    /// Installs a mail client that stores the mail it receives, and in `kind` how it received it.
    void addMailClientFor(const std::string& mimeType)
    {
        desktop.addProgram(mimeType, MAIL_CLIENT " " + taken.string() + " %u");
    }

    std::string kind() const { return tests::appears(taken / "kind") ? part("kind") : ""; }
    std::string part(const std::string& name) const { return tests::contentsOf(taken / name); }

    void expectTheWholeReport() const
    {
        EXPECT_EQ(part("subject"), "Brimsound 1.5.5");
        EXPECT_EQ(part("to"), "support@example.com\n");
        EXPECT_EQ(part("1-Cydia_data.txt"), text);
        EXPECT_EQ(part("2-prefs.plist"), binary);
    }

    /// All files that were written for mails.
    std::vector<fs::path> files() const
    {
        std::vector<fs::path> found;
        for (const auto& entry : fs::recursive_directory_iterator(desktop.cache() / "brimsound")) {
            if (!entry.is_directory())
                found.push_back(entry.path());
        }
        return found;
    }

    tests::PrivateDesktop desktop;
    fs::path taken = desktop.home() / "taken";
    std::string reason;
};

/// Runs the main loop until this process has no children, not even ended ones. False when it still has some
/// after ten seconds.
bool isWithoutChildren()
{
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    do {
        g_main_context_iteration(nullptr, false);
        siginfo_t child {};
        if (waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) != 0)
            return errno == ECHILD;
        std::this_thread::sleep_for(5ms);
    } while (std::chrono::steady_clock::now() < deadline);
    return false;
}

} // namespace

TEST_F(HandingOverAMail, PassesItCompletelyToTheMailClient)
{
    addMailClientFor(mailto);
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_EQ(kind(), "url");
    expectTheWholeReport();
}

TEST_F(HandingOverAMail, WorksOnADesktopWithItsOwnOpenCommand)
{
    const tests::EnvironmentVariable gnome("XDG_CURRENT_DESKTOP", "GNOME");
    addMailClientFor(mailto);
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_EQ(kind(), "url");
    expectTheWholeReport();
}

TEST_F(HandingOverAMail, OpensADraftWhereThereIsNoMailClientToCompose)
{
    addMailClientFor(messages);
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_EQ(kind(), "message");
    expectTheWholeReport();
}

TEST_F(HandingOverAMail, DoesNotOpenAWebBrowser)
{
    const auto browser = desktop.home() / "browser.sh";
    std::ofstream(browser) << "#!/bin/sh\ntouch " << (taken / "browsed").string() << "\n";
    fs::permissions(browser, fs::perms::owner_all);
    const tests::EnvironmentVariable browsers("BROWSER", browser.c_str());
    addMailClientFor(messages);
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_EQ(kind(), "message");
    EXPECT_FALSE(fs::exists(taken / "browsed"));
}

TEST_F(HandingOverAMail, OpensADraftWhenTheMailClientFails)
{
    desktop.addProgram(mailto, "false %u");
    if (std::system("xdg-email nobody@example.com >/dev/null 2>&1") == 0)
        GTEST_SKIP() << "this xdg-email reports success whatever the mail program does";
    addMailClientFor(messages);
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_EQ(kind(), "message");
    expectTheWholeReport();
}

TEST_F(HandingOverAMail, OpensADraftWhereXdgEmailIsMissing)
{
    desktop.addProgram(mailto, "/bin/true %u");
    addMailClientFor(messages);
    const auto programs = desktop.home() / "bin";
    fs::create_directories(programs);
    if (!fs::exists(programs / "sh"))
        fs::create_symlink("/bin/sh", programs / "sh");
    const tests::EnvironmentVariable path("PATH", programs.c_str());
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_EQ(kind(), "message");
    expectTheWholeReport();
}

TEST_F(HandingOverAMail, OpensADraftForTextThatXdgEmailWouldChange)
{
    desktop.addProgram(mailto, "/bin/true %u");
    addMailClientFor(messages);
    for (const auto* subject :
        { "-n", "--attach", "two\nlines", "a\\tb", "caf\xc3\xa9", "50%", "it's, well" }) {
        fs::remove(taken / "kind");
        auto mail = report();
        mail.subject = subject;
        EXPECT_TRUE(handOver(mail, reason)) << reason;
        EXPECT_EQ(kind(), "message") << subject;
        EXPECT_EQ(part("subject"), subject == "two\nlines"sv ? "two lines" : subject);
    }
}

TEST_F(HandingOverAMail, DoesNotTreatARecipientAsAnOption)
{
    desktop.addProgram(mailto, "/bin/true %u");
    addMailClientFor(messages);
    for (const auto* recipient : { "--help", "mailto:a@example.com?attach=/etc/passwd" }) {
        fs::remove(taken / "kind");
        auto mail = report();
        mail.to = { recipient };
        EXPECT_TRUE(handOver(mail, reason)) << reason;
        EXPECT_EQ(kind(), "message") << recipient;
    }
}

TEST_F(HandingOverAMail, SupportsAttachmentsWithTheSameName)
{
    addMailClientFor(mailto);
    auto mail = report();
    mail.subject = "";
    mail.attachments
        = { { "same.txt", "text/plain", bytes("one") }, { "same.txt", "text/plain", bytes("two") },
              { "../../same.txt", "text/plain", bytes("three") }, { "", "text/plain", bytes("four") } };
    EXPECT_TRUE(handOver(mail, reason)) << reason;
    EXPECT_EQ(kind(), "url");
    EXPECT_EQ(part("1-same.txt"), "one");
    EXPECT_EQ(part("2-same.txt"), "two");
    EXPECT_EQ(part("3-same.txt"), "three");
    EXPECT_EQ(part("4-attachment"), "four");
}

TEST_F(HandingOverAMail, KeepsItsFilesPrivate)
{
    addMailClientFor(mailto);
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_THAT(files(), SizeIs(2));
    const auto accessible = fs::perms::group_all | fs::perms::others_all;
    for (const auto& entry : fs::recursive_directory_iterator(desktop.cache()))
        EXPECT_EQ(entry.status().permissions() & accessible, fs::perms::none) << entry.path();
}

TEST_F(HandingOverAMail, RemovesTheFilesOfEarlierDays)
{
    addMailClientFor(mailto);
    const auto folder = desktop.cache() / "brimsound";
    for (const auto* name : { "mail-older", "mail-newer", "other-older" }) {
        fs::create_directories(folder / name / "inner");
        std::ofstream(folder / name / "inner/file") << name;
        const auto age = std::string_view(name).ends_with("older") ? 25h : 23h;
        fs::last_write_time(folder / name, fs::file_time_type::clock::now() - age);
    }
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_FALSE(fs::exists(folder / "mail-older"));
    EXPECT_TRUE(fs::exists(folder / "mail-newer/inner/file"));
    EXPECT_TRUE(fs::exists(folder / "other-older/inner/file"));
}

TEST_F(HandingOverAMail, DoesNotWaitForTheMailClientsEndButReapsItLater)
{
    // On an unknown desktop, the mail client runs in the foreground of the script that starts it.
    const auto script = desktop.home() / "client.sh";
    std::ofstream(script) << "echo $$ > " << (taken / "process").string() << "; exec sleep 30\n";
    desktop.addProgram(mailto, "/bin/sh " + script.string() + " %u");
    addMailClientFor(messages);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(handOver(report(), reason)) << reason;
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);

    ASSERT_TRUE(tests::appears(taken / "process"));
    const auto client = std::stoi(part("process"));
    EXPECT_EQ(kill(client, 0), 0) << "the mail client was ended";
    kill(client, SIGTERM);
    EXPECT_FALSE(fs::exists(taken / "kind")) << "the mail was opened a second time";
    EXPECT_TRUE(isWithoutChildren());
}

TEST_F(HandingOverAMail, FailsWithoutAMailProgram)
{
    EXPECT_FALSE(handOver(report(), reason));
    EXPECT_EQ(reason, "there is no program for mails");
}

TEST_F(HandingOverAMail, FailsWhenItsFilesCannotBeWritten)
{
    addMailClientFor(mailto);
    std::ofstream(desktop.cache()) << "in the way";
    EXPECT_FALSE(handOver(report(), reason));
    EXPECT_EQ(reason, "the mail's files cannot be written");
}

} // namespace brimsound::desktop
