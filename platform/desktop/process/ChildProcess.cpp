#include "platform/desktop/process/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace brimsound::desktop {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

struct Pipe {
    Pipe()
    {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0)
            throw std::runtime_error(std::string("cannot make a pipe: ") + std::strerror(errno));
        reading = ends[0];
        writing = ends[1];
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe()
    {
        closeEnd(reading);
        closeEnd(writing);
    }

    static void closeEnd(int& end)
    {
        if (end >= 0)
            close(std::exchange(end, -1));
    }

    int reading = -1;
    int writing = -1;
};

// Runs between fork and exec, where only async-signal-safe calls are allowed. Returns when the program cannot
// be run.
void execute(char* const* arguments, pid_t parent, int output)
{
    if (prctl(PR_SET_PDEATHSIG, SIGTERM) != 0)
        return;
    // The parent may have ended before this process asked for the signal.
    if (getppid() != parent)
        _exit(0);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    if (output >= 0 && dup2(output, STDOUT_FILENO) < 0)
        return;
    execvp(arguments[0], arguments);
}

int millisecondsUntil(Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

} // namespace

ChildProcess::ChildProcess(std::vector<std::string> arguments, Output output)
{
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    // A successful exec closes it; otherwise the child writes the reason for the failure.
    Pipe failure;
    std::optional<Pipe> outputPipe;
    if (output == Output::Piped)
        outputPipe.emplace();

    const pid_t parent = getpid();
    _pid = fork();
    if (_pid == 0) {
        execute(pointers.data(), parent, outputPipe ? outputPipe->writing : -1);
        const int error = errno;
        [[maybe_unused]] const auto written = write(failure.writing, &error, sizeof error);
        _exit(127);
    }
    int error = errno;
    Pipe::closeEnd(failure.writing);
    if (_pid < 0 || read(failure.reading, &error, sizeof error) > 0) {
        if (_pid > 0)
            waitpid(_pid, nullptr, 0);
        throw std::runtime_error("cannot run " + arguments[0] + ": " + std::strerror(error));
    }
    if (outputPipe)
        _output = std::exchange(outputPipe->reading, -1);
}

ChildProcess::~ChildProcess()
{
    signal(SIGTERM);
    if (!exitStatus(std::chrono::seconds(2))) {
        signal(SIGKILL);
        waitpid(_pid, nullptr, 0);
    }
    Pipe::closeEnd(_output);
}

std::optional<int> ChildProcess::exitStatus(milliseconds timeout)
{
    const auto deadline = Clock::now() + timeout;
    while (!_exitStatus) {
        int status = 0;
        if (waitpid(_pid, &status, WNOHANG) == _pid)
            _exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        else if (Clock::now() >= deadline)
            break;
        else
            std::this_thread::sleep_for(milliseconds(2));
    }
    return _exitStatus;
}

void ChildProcess::signal(int number)
{
    if (running())
        kill(_pid, number);
}

std::optional<std::string> ChildProcess::readLine(milliseconds timeout)
{
    const auto deadline = Clock::now() + timeout;
    for (;;) {
        if (const auto end = _unreadOutput.find('\n'); end != std::string::npos) {
            auto line = _unreadOutput.substr(0, end);
            _unreadOutput.erase(0, end + 1);
            return line;
        }
        pollfd input { _output, POLLIN, 0 };
        const int ready = poll(&input, 1, millisecondsUntil(deadline));
        if (ready < 0 && errno == EINTR)
            continue;
        char block[4096];
        const auto count = ready > 0 ? read(_output, block, sizeof block) : 0;
        if (count <= 0)
            return std::nullopt;
        _unreadOutput.append(block, static_cast<std::size_t>(count));
    }
}

} // namespace brimsound::desktop
