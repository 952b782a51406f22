#include "platform/desktop/MessageUI/XdgEmail.h"

#include "platform/desktop/UIKit/UrlOpener.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <glib.h>
#include <optional>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace brimsound::desktop {

namespace {

// On some desktops the script does not end before the mail program does. After this time the mail program is
// assumed to have started, because the pane is blocked while it waits.
constexpr auto patience = std::chrono::seconds(3);

/// The script passes everything through several shells into a mailto URL, and for some mail programs into a
/// list with commas and quotes. Only these characters are known to be preserved.
bool survives(std::string_view text)
{
    constexpr auto harmless = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 @._+-/";
    return !text.starts_with('-') && text.find_first_not_of(harmless) == std::string_view::npos;
}

bool survives(const MailWithFiles& mail)
{
    const auto textSurvives = [](const std::string& text) { return survives(text); };
    return survives(mail.subject) && std::ranges::all_of(mail.to, textSurvives)
        && std::ranges::all_of(mail.files, textSurvives);
}

std::vector<std::string> argumentsFor(const MailWithFiles& mail)
{
    std::vector<std::string> arguments { "xdg-email", "--utf8" };
    // The script fails for an empty subject.
    if (!mail.subject.empty())
        arguments.insert(arguments.end(), { "--subject", mail.subject });
    for (const auto& file : mail.files)
        arguments.insert(arguments.end(), { "--attach", file });
    arguments.insert(arguments.end(), mail.to.begin(), mail.to.end());
    return arguments;
}

/// Starts a program that may outlive this one. Its standard output is discarded.
std::optional<pid_t> start(std::vector<std::string> arguments)
{
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);

    pid_t process = 0;
    const int error = posix_spawnp(&process, pointers[0], &actions, &attributes, pointers.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? std::optional(process) : std::nullopt;
}

/// The status from waitpid after the process has ended; nothing before.
std::optional<int> statusOf(pid_t process)
{
    int status = 0;
    return waitpid(process, &status, WNOHANG) == process ? std::optional(status) : std::nullopt;
}

/// Waits for the program to end, for a limited time. After that GLib's main loop, which is also Qt's, waits
/// for it.
bool hasFailed(pid_t process)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < deadline) {
        if (const auto status = statusOf(process))
            return *status != 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    g_child_watch_add(
        process, [](GPid, int, void*) {}, nullptr);
    return false;
}

} // namespace

bool composeWithXdgEmail(const MailWithFiles& mail)
{
    // Without a mail program the script would open a web browser.
    if (!survives(mail) || !hasProgramFor("mailto:"))
        return false;
    const auto process = start(argumentsFor(mail));
    return process && !hasFailed(*process);
}

} // namespace brimsound::desktop
