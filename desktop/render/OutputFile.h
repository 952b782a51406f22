// A file that is written completely or not at all.
#pragma once

#include <filesystem>

namespace brimsound::render {

/// Writes to a temporary file next to the path and renames it to the path at the end. Until then an existing
/// file stays. The temporary file is removed if it is not kept, also when SIGINT, SIGTERM or SIGHUP end the
/// program. One object at a time in a process.
class OutputFile {
public:
    /// Throws std::runtime_error when no file can be created there.
    explicit OutputFile(const std::filesystem::path&);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    /// Owned by this object.
    int descriptor() const { return _descriptor; }

    /// Renames the file to its path. Throws std::runtime_error on failure.
    void keep();

private:
    [[noreturn]] void fail(int error) const;

    std::filesystem::path _path;
    int _descriptor = -1;
};

} // namespace brimsound::render
