#include "platform/System/process.h"

#include "platform/desktop/effects/Effects.h"

#include <cstdlib>
#include <set>
#include <string>

namespace brimsound {

using desktop::Reach;

namespace {

/// The streams for which no command was started: pclose has nothing to wait for.
std::set<std::FILE*>& streamsWithoutCommand()
{
    static std::set<std::FILE*> streams;
    return streams;
}

} // namespace

int system(const char* command)
{
    desktop::effects().shellCommandRun(command);
    if (desktop::reach() == Reach::ObserverOnly)
        return 0;
    return std::system(command);
}

std::FILE* popen(const char* command, const char* mode)
{
    desktop::effects().shellCommandRun(command);
    // A program that is started while the stream is open must not inherit the pipe.
    const auto closedOnExec = std::string(mode) + "e";
    if (desktop::reach() == Reach::Everything)
        return ::popen(command, closedOnExec.c_str());

    auto* stream = std::fopen("/dev/null", closedOnExec.c_str());
    if (stream)
        streamsWithoutCommand().insert(stream);
    return stream;
}

int pclose(std::FILE* stream)
{
    return streamsWithoutCommand().erase(stream) ? std::fclose(stream) : ::pclose(stream);
}

} // namespace brimsound
