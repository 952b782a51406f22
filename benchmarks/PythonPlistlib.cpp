#include "benchmarks/PythonPlistlib.h"

#include <chrono>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace brimsound::bench {

namespace {

std::filesystem::path newPipe(std::filesystem::path path)
{
    if (mkfifo(path.c_str(), 0600) != 0)
        throw std::runtime_error("no pipe for the interpreter");
    return path;
}

} // namespace

PythonPlistlib::PythonPlistlib(const std::filesystem::path& file)
    : _requests(newPipe(file.string() + ".requests"))
    , _interpreter({ "python3", PLISTLIB_TIMES, _requests, file }, desktop::ChildProcess::Output::Piped)
    // Also opened for reading, so as not to wait for the interpreter, which may fail to start.
    , _input(open(_requests.c_str(), O_RDWR | O_CLOEXEC))
{
}

PythonPlistlib::~PythonPlistlib()
{
    close(_input);
    std::filesystem::remove(_requests);
}

double PythonPlistlib::timeOf(const std::string& request)
{
    const auto written = ::write(_input, request.data(), request.size());
    const auto answer = _interpreter.readLine(std::chrono::seconds(60));
    if (written != static_cast<ssize_t>(request.size()) || !answer)
        throw std::runtime_error("the interpreter does not answer");
    return std::stod(*answer);
}

} // namespace brimsound::bench
