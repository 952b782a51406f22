// Traces shell commands. These functions replace the C library's.
#include "tests/doubles/System/Commands.h"
#include "tests/doubles/Trace.h"

#include <dlfcn.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <limits>
#include <string>

namespace {

bool commandsAreCarriedOut = false;
bool processesAreRefused = false;

/// Stands for a command that is not executed. No process has this number.
constexpr pid_t noProcess = std::numeric_limits<pid_t>::max();

template <typename Function> Function* original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

namespace brimsound::doubles {

void carryOutCommands(bool doSo)
{
    commandsAreCarriedOut = doSo;
}

void refuseProcesses(bool doSo)
{
    processesAreRefused = doSo;
}

} // namespace brimsound::doubles

// Not for shared libraries: GNUstep runs a command of its own when it starts.
#pragma GCC visibility push(hidden)

extern "C" {

int posix_spawn(pid_t* process, const char* path, const posix_spawn_file_actions_t* actions,
    const posix_spawnattr_t* attributes, char* const arguments[], char* const environment[])
{
    // sh -c COMMAND
    brimsound::doubles::record(std::string("shell ") + arguments[2]);
    if (processesAreRefused)
        return EAGAIN;
    if (commandsAreCarriedOut)
        return original<decltype(posix_spawn)>("posix_spawn")(
            process, path, actions, attributes, arguments, environment);
    *process = noProcess;
    return 0;
}

pid_t waitpid(pid_t process, int* status, int options)
{
    if (process != noProcess)
        return original<decltype(waitpid)>("waitpid")(process, status, options);
    *status = 0;
    return process;
}

} // extern "C"

#pragma GCC visibility pop
