// A folder of a test's own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimsound::tests {

/// A new, empty folder, which is removed with all that is in it when this object goes.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return _path; }

private:
    std::filesystem::path _path;
};

/// Writes a file with that text, and makes the folders that it lies in.
void writeFile(const std::filesystem::path&, std::string_view text);
/// The bytes of a file; empty when there is none.
std::string readFile(const std::filesystem::path&);

} // namespace brimsound::tests
