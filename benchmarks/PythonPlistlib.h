// Python's plistlib on a preferences file, for comparison.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <filesystem>
#include <string>

namespace brimsound::bench {

/// A Python interpreter that reads the file, or writes its contents to another file, on request.
class PythonPlistlib {
public:
    explicit PythonPlistlib(const std::filesystem::path&);
    PythonPlistlib(const PythonPlistlib&) = delete;
    PythonPlistlib& operator=(const PythonPlistlib&) = delete;
    ~PythonPlistlib();

    /// The duration in microseconds, measured by the interpreter.
    double read() { return timeOf("read\n"); }
    double write() { return timeOf("write\n"); }

private:
    double timeOf(const std::string& request);

    std::filesystem::path _requests;
    desktop::ChildProcess _interpreter;
    int _input;
};

} // namespace brimsound::bench
