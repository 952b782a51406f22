#include "desktop/render/OutputFile.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace brimsound::render {

namespace {

namespace fs = std::filesystem;

// Global so that a signal handler can remove the file. Empty when there is none.
std::string temporaryPath;

constexpr auto endings = { SIGHUP, SIGINT, SIGTERM };

void removeAndEnd(int signal)
{
    unlink(temporaryPath.c_str());
    // The default action is restored, so this ends the program.
    raise(signal);
}

// Blocks signals while the temporary path changes.
class SignalsHeld {
public:
    SignalsHeld()
    {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : endings)
            sigaddset(&held, signal);
        pthread_sigmask(SIG_BLOCK, &held, &_before);
    }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;
    ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &_before, nullptr); }

private:
    sigset_t _before {};
};

void removeOnSignals()
{
    struct sigaction removal { };
    removal.sa_handler = removeAndEnd;
    removal.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : endings) {
        struct sigaction now { };
        sigaction(signal, nullptr, &now);
        // A signal that is ignored from the start, for example because of nohup, stays ignored.
        if (now.sa_handler != SIG_IGN)
            sigaction(signal, &removal, nullptr);
    }
    // A file-size limit is reported as a write error.
    std::signal(SIGXFSZ, SIG_IGN);
}

// Those of the file that is replaced; otherwise those of a new file.
mode_t permissionsFor(const fs::path& path)
{
    struct stat status { };
    if (stat(path.c_str(), &status) == 0)
        return status.st_mode & 0777;
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

OutputFile::OutputFile(const fs::path& path)
    : _path(path)
{
    std::error_code error;
    // Through a symbolic link its target is replaced, not the link.
    if (fs::exists(path, error))
        _path = fs::canonical(path, error);
    if (error)
        fail(error.value());
    if (fs::exists(_path) && !fs::is_regular_file(_path))
        throw std::runtime_error("\"" + path.string() + "\" is no file");

    const SignalsHeld signalsHeld;
    temporaryPath = _path.string() + ".XXXXXX";
    _descriptor = mkstemp(temporaryPath.data());
    if (_descriptor < 0) {
        temporaryPath.clear();
        fail(errno);
    }
    fchmod(_descriptor, permissionsFor(_path));
    removeOnSignals();
}

OutputFile::~OutputFile()
{
    const SignalsHeld signalsHeld;
    close(_descriptor);
    if (!temporaryPath.empty())
        unlink(temporaryPath.c_str());
    temporaryPath.clear();
}

void OutputFile::keep()
{
    // A full disk may be reported only here.
    if (fsync(_descriptor) != 0)
        fail(errno);
    const SignalsHeld signalsHeld;
    if (std::rename(temporaryPath.c_str(), _path.c_str()) != 0)
        fail(errno);
    temporaryPath.clear();
}

void OutputFile::fail(int error) const
{
    throw std::runtime_error("\"" + _path.string() + "\" cannot be written: " + std::strerror(error));
}

} // namespace brimsound::render
