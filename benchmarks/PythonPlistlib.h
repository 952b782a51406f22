// Python's plistlib on a preferences file, to compare with.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <filesystem>
#include <string>

namespace brimsound::bench {

/// An interpreter that reads that file, or writes its contents into another one beside, as often as it is
/// told.
class PythonPlistlib {
public:
    explicit PythonPlistlib(const std::filesystem::path&);
    PythonPlistlib(const PythonPlistlib&) = delete;
    PythonPlistlib& operator=(const PythonPlistlib&) = delete;
    ~PythonPlistlib();

    /// The microseconds that it took, by the interpreter's own clock.
    double read() { return timeOf("read\n"); }
    double write() { return timeOf("write\n"); }

private:
    double timeOf(const std::string& request);

    std::filesystem::path _requests;
    desktop::ChildProcess _interpreter;
    int _input;
};

} // namespace brimsound::bench
