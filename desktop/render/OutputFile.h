// A file that is there as a whole or not at all.
#pragma once

#include <filesystem>

namespace brimsound::render {

/// Writes to a temporary file beside the path and puts it in the path's place at the end. Until then what was
/// there stays, and a temporary file that was not kept is removed, also when SIGINT, SIGTERM or SIGHUP end
/// the program. One object at a time in a process.
class OutputFile {
public:
    /// Throws std::runtime_error when no file can be made there.
    explicit OutputFile(const std::filesystem::path&);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    /// Owned by this object.
    int descriptor() const { return _descriptor; }

    /// Puts the file in its place. Throws std::runtime_error when that fails.
    void keep();

private:
    [[noreturn]] void fail(int error) const;

    std::filesystem::path _path;
    int _descriptor = -1;
};

} // namespace brimsound::render
