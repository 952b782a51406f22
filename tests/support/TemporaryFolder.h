#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimsound::tests {

/// A new empty folder. The destructor removes it with its contents.
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

/// Writes a file with that text, and creates its parent folders.
void writeFile(const std::filesystem::path&, std::string_view text);
/// The bytes of a file; empty when there is none.
std::string readFile(const std::filesystem::path&);

} // namespace brimsound::tests
