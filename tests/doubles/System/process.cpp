// Traces shell commands. These functions replace the C library's.
#include "tests/doubles/System/Commands.h"
#include "tests/doubles/Trace.h"

#include <dlfcn.h>

#include <cstdio>
#include <set>
#include <string>

namespace {

bool commandsAreCarriedOut = false;

/// The streams for which no command was started: pclose has nothing to wait for.
std::set<std::FILE*>& streamsWithoutCommand()
{
    static std::set<std::FILE*> streams;
    return streams;
}

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

} // namespace brimsound::doubles

extern "C" {

int system(const char* command)
{
    brimsound::doubles::record(std::string("shell ") + command);
    return commandsAreCarriedOut ? original<int(const char*)>("system")(command) : 0;
}

// Not for shared libraries: GNUstep runs a command of its own when it starts.
#pragma GCC visibility push(hidden)

std::FILE* popen(const char* command, const char* mode)
{
    brimsound::doubles::record(std::string("shell ") + command);
    if (commandsAreCarriedOut)
        return original<std::FILE*(const char*, const char*)>("popen")(command, mode);

    auto* stream = std::fopen("/dev/null", mode);
    if (stream)
        streamsWithoutCommand().insert(stream);
    return stream;
}

int pclose(std::FILE* stream)
{
    return streamsWithoutCommand().erase(stream) ? std::fclose(stream)
                                                 : original<int(std::FILE*)>("pclose")(stream);
}

#pragma GCC visibility pop

} // extern "C"
