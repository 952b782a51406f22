#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace brimsound::desktop {

/// A program that runs next to this one. It ends with this object, and also when this process ends in any
/// way. Main thread only: the kernel signals the child when the thread that started it ends.
class ChildProcess {
public:
    enum class Output { Inherited, Piped };

    /// Starts the program `arguments[0]`, which is searched in PATH when it has no slash. Throws
    /// std::runtime_error when it cannot be run.
    explicit ChildProcess(std::vector<std::string> arguments, Output = Output::Inherited);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Asks the program to terminate, kills it if it still runs after two seconds, and waits for it to end.
    ~ChildProcess();

    pid_t processIdentifier() const { return _pid; }

    bool running() { return !exitStatus(std::chrono::milliseconds(0)); }
    /// Waits for the program to end, at most that long. Returns the exit status in the shell's format (128 +
    /// number after a signal); nothing while the program runs.
    std::optional<int> exitStatus(std::chrono::milliseconds timeout);

    /// Sends a signal to the program, if it still runs.
    void signal(int number);

    /// The next line of a piped output, without its line feed; nothing at the end or when no complete line
    /// arrived in time.
    std::optional<std::string> readLine(std::chrono::milliseconds timeout);

private:
    pid_t _pid = -1;
    std::optional<int> _exitStatus;
    int _output = -1;
    std::string _unreadOutput;
};

} // namespace brimsound::desktop
