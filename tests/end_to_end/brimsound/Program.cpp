#include "tests/end_to_end/brimsound/Program.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace brimsound::tests {

namespace {

std::filesystem::path newFolder()
{
    auto pattern = (std::filesystem::temp_directory_path() / "brimsound-XXXXXX").string();
    return mkdtemp(pattern.data());
}

std::string contentsOf(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

} // namespace

std::vector<std::string> Run::effects() const
{
    std::vector<std::string> effects;
    for (const auto& line : trace)
        effects.push_back(line.at("effect"));
    return effects;
}

std::vector<Json> Run::all(const std::string& effect) const
{
    std::vector<Json> lines;
    for (const auto& line : trace) {
        if (line.at("effect") == effect)
            lines.push_back(line);
    }
    return lines;
}

Run runProgram(const std::vector<std::string>& arguments)
{
    const auto folder = newFolder();
    // The shell redirects standard error to a file, to keep it apart from the trace.
    std::vector<std::string> command { "/bin/sh", "-c", "errors=$1; shift; exec \"$@\" 2>\"$errors\"", "sh",
        folder / "errors", BRIMSOUND };
    command.insert(command.end(), arguments.begin(), arguments.end());
    Run run {};
    {
        desktop::ChildProcess process(command, desktop::ChildProcess::Output::Piped);
        while (const auto line = process.readLine(std::chrono::seconds(30)))
            run.trace.push_back(Json::parse(*line));
        run.status = process.exitStatus(std::chrono::seconds(30)).value_or(-1);
    }
    run.errors = contentsOf(folder / "errors");
    std::filesystem::remove_all(folder);
    return run;
}

Run playScript(const TemporaryRoot& root, const std::string& script)
{
    const auto folder = newFolder();
    std::ofstream(folder / "script") << script;
    auto run = runProgram({ "--headless", "--root", root.path(), "--script", folder / "script" });
    std::filesystem::remove_all(folder);
    return run;
}

RunningProgram::RunningProgram(
    const std::filesystem::path& root, const std::vector<std::string>& more, Errors errors)
    : _script(newFolder() / "script")
{
    if (mkfifo(_script.c_str(), 0600) != 0)
        throw std::runtime_error("no FIFO for the script");
    std::vector<std::string> command { BRIMSOUND, "--root", root, "--script", _script };
    command.insert(command.end(), more.begin(), more.end());
    if (errors == Errors::Dropped)
        command.insert(command.begin(), { "/bin/sh", "-c", "exec \"$@\" 2>/dev/null", "sh" });
    _process.emplace(command, desktop::ChildProcess::Output::Piped);
    // Waits for the program to open the other end.
    _input = open(_script.c_str(), O_WRONLY | O_CLOEXEC);
}

RunningProgram::~RunningProgram()
{
    close(_input);
    _process.reset();
    std::filesystem::remove_all(_script.parent_path());
}

void RunningProgram::say(const std::string& line)
{
    const auto text = line + "\n";
    EXPECT_EQ(write(_input, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

Json RunningProgram::next()
{
    const auto line = _process->readLine(std::chrono::seconds(10));
    return line ? Json::parse(*line) : Json();
}

Json RunningProgram::next(const std::string& effect)
{
    auto line = next();
    while (!line.is_null() && line.at("effect") != effect)
        line = next();
    return line;
}

Json RunningProgram::state()
{
    say("state");
    return next("state");
}

} // namespace brimsound::tests
