#pragma once

#include "tests/support/TemporaryFolder.h"

#include <string>
#include <string_view>

namespace brimsound::tests {

/// A new folder that is the device root and contains the folder of the preferences file. The destructor
/// removes it and restores the default device root. All paths are device paths.
class TemporaryRoot {
public:
    TemporaryRoot();
    TemporaryRoot(const TemporaryRoot&) = delete;
    TemporaryRoot& operator=(const TemporaryRoot&) = delete;
    ~TemporaryRoot();

    /// The folder on this machine.
    const std::filesystem::path& path() const { return _folder.path(); }

    /// Writes a file with that text, and creates its parent folders.
    void write(std::string_view devicePath, std::string_view text) const;
    /// The bytes of a file; empty when there is none.
    std::string read(std::string_view devicePath) const;
    bool contains(std::string_view devicePath) const;

private:
    TemporaryFolder _folder;
};

} // namespace brimsound::tests
