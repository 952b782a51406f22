// Running the desktop app.
#pragma once

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/TemporaryRoot.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::tests {

using Json = nlohmann::ordered_json;

/// The results of a run of the program.
struct Run {
    int status;
    /// Its trace, with one object per line.
    std::vector<Json> trace;
    std::string errors;

    /// The "effect" of each line.
    std::vector<std::string> effects() const;
    /// The lines of one effect.
    std::vector<Json> all(const std::string& effect) const;
};

/// Runs the program with the arguments until it ends.
Run runProgram(const std::vector<std::string>& arguments);

/// Runs a script without a window on the root.
Run playScript(const TemporaryRoot&, const std::string& script);

/// A running program that receives its script line by line.
class RunningProgram {
public:
    /// What happens with the lines on its standard error.
    enum class Errors { Shown, Dropped };

    /// Starts the program on the root; the script is sent later. `more` are further arguments.
    explicit RunningProgram(
        const std::filesystem::path& root, const std::vector<std::string>& more, Errors = Errors::Shown);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    /// Sends a line of the script.
    void say(const std::string& line);
    /// The next line of its trace; null when none comes within ten seconds.
    Json next();
    /// The next line with that effect; those before it are dropped.
    Json next(const std::string& effect);
    /// Sends "state" and returns the answer.
    Json state();

    desktop::ChildProcess& process() { return *_process; }

private:
    std::filesystem::path _script;
    int _input = -1;
    std::optional<desktop::ChildProcess> _process;
};

} // namespace brimsound::tests
