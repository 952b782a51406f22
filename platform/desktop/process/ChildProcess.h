// Programs that this program runs beside itself.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace brimsound::desktop {

/// A running program that ends with this object, and with this process whichever way that ends. Main thread
/// only: the child is told of its parent's end when the thread that started it ends.
class ChildProcess {
public:
    enum class Output { Inherited, Piped };

    /// Starts the program `arguments[0]`, looked for in PATH when it has no slash. Throws std::runtime_error
    /// when it cannot be run.
    explicit ChildProcess(std::vector<std::string> arguments, Output = Output::Inherited);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Asks the program to terminate, kills it when it has not within two seconds, and waits for its end.
    ~ChildProcess();

    pid_t processIdentifier() const { return _pid; }

    bool running() { return !exitStatus(std::chrono::milliseconds(0)); }
    /// Waits for the end at most that long. The exit status as a shell tells it (128 + number when a signal
    /// ended the program); nothing while it runs.
    std::optional<int> exitStatus(std::chrono::milliseconds timeout);

    /// Sends a signal to the program, if it still runs.
    void signal(int number);

    /// The next line of a piped output, without its line feed; nothing at its end or when no whole line came
    /// in time.
    std::optional<std::string> readLine(std::chrono::milliseconds timeout);

private:
    pid_t _pid = -1;
    std::optional<int> _exitStatus;
    int _output = -1;
    std::string _unreadOutput;
};

} // namespace brimsound::desktop
