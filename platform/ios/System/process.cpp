#include "platform/System/process.h"

#include "platform/ios/Foundation/JailbreakRoot.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <map>
#include <string>

// The C library's functions of these names start /bin/sh, which rootless jailbreaks do not have.

namespace brimsound {

namespace {

/// The status for a shell that could not be started, as in the C library: it exited with 127.
constexpr int noShell = 127 << 8;

/// What is done with the descriptors of a process that is started.
class FileActions {
public:
    FileActions() { posix_spawn_file_actions_init(&_actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() { posix_spawn_file_actions_destroy(&_actions); }

    posix_spawn_file_actions_t* get() { return &_actions; }

private:
    posix_spawn_file_actions_t _actions {};
};

/// The processes behind the streams.
std::map<std::FILE*, pid_t>& processes()
{
    static std::map<std::FILE*, pid_t> all;
    return all;
}

/// Starts the command in the shell below the jailbreak's root, which looks for programs there first. Returns
/// 0 when it cannot be started.
pid_t start(const char* command, FileActions& actions)
{
    const auto root = ios::jailbreakRoot();
    const auto shell = root + "/bin/sh";
    std::string name = "sh";
    std::string option = "-c";
    auto line = *command == '/' ? root + command : std::string(command);
    auto path = "PATH=" + root + "/usr/bin:" + root + "/bin:/usr/bin:/bin";
    const std::array<char*, 4> arguments { name.data(), option.data(), line.data(), nullptr };
    const std::array<char*, 2> environment { path.data(), nullptr };
    pid_t process = 0;
    const int error
        = posix_spawn(&process, shell.c_str(), actions.get(), nullptr, arguments.data(), environment.data());
    return error == 0 ? process : 0;
}

/// Returns the status; -1 when another part of the program has waited for the process.
int waitFor(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return status;
}

} // namespace

int system(const char* command)
{
    FileActions actions;
    const auto process = start(command, actions);
    return process ? waitFor(process) : noShell;
}

std::FILE* popen(const char* command, const char* mode)
{
    int ends[2];
    if (pipe(ends) != 0)
        return nullptr;
    const auto [reading, writing] = ends;
    FileActions actions;
    posix_spawn_file_actions_adddup2(actions.get(), writing, STDOUT_FILENO);
    posix_spawn_file_actions_addclose(actions.get(), reading);
    posix_spawn_file_actions_addclose(actions.get(), writing);
    const auto process = start(command, actions);
    close(writing);
    auto* stream = process ? fdopen(reading, mode) : nullptr;
    if (stream) {
        processes().emplace(stream, process);
        return stream;
    }
    close(reading);
    if (process)
        waitFor(process);
    return nullptr;
}

int pclose(std::FILE* stream)
{
    const auto found = processes().find(stream);
    if (found == processes().end())
        return -1;
    const auto process = found->second;
    processes().erase(found);
    std::fclose(stream);
    return waitFor(process);
}

} // namespace brimsound
