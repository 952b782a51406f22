// A device root of a test's own.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <string>
#include <string_view>

namespace brimsound::tests {

/// A new folder that is the device root, with the folders of the preferences file in it, until this object
/// goes; then the folder is removed and the device root is what it was. All paths are device paths.
class TemporaryRoot {
public:
    TemporaryRoot();
    TemporaryRoot(const TemporaryRoot&) = delete;
    TemporaryRoot& operator=(const TemporaryRoot&) = delete;
    ~TemporaryRoot();

    /// The folder on this machine.
    const std::filesystem::path& path() const { return _folder.path(); }

    /// Makes a file with that text, and the folders that it lies in.
    void write(std::string_view devicePath, std::string_view text) const;
    /// The bytes of a file; empty when there is none.
    std::string read(std::string_view devicePath) const;
    bool contains(std::string_view devicePath) const;

private:
    TemporaryFolder _folder;
    std::filesystem::path _rootBefore;
};

} // namespace brimsound::tests
