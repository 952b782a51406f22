// The test's own desktop, with its own programs for URLs and files.
#pragma once

#include <filesystem>
#include <string>

namespace brimsound::tests {

/// A home folder that contains only the programs that a test installs; the machine's programs are hidden.
/// GLib caches the first home folder, so a process has one for all its tests; each test starts with an empty
/// one.
class PrivateDesktop {
public:
    PrivateDesktop();
    PrivateDesktop(const PrivateDesktop&) = delete;
    PrivateDesktop& operator=(const PrivateDesktop&) = delete;
    ~PrivateDesktop();

    const std::filesystem::path& home() const;
    std::filesystem::path cache() const { return home() / ".cache"; }

    /// Makes the command (with %u for the URL or file) the default program for that type, for example
    /// "x-scheme-handler/http".
    void addProgram(const std::string& mimeType, const std::string& command);
    /// Makes a program that writes its argument to a file the default; see openedBy.
    void addRecordingProgram(const std::string& mimeType);
    void removeProgram(const std::string& mimeType);

    /// Waits for the recording program for that type and returns its argument. Empty when it was not started.
    std::string openedBy(const std::string& mimeType) const;

private:
    void writeDefaults() const;
};

/// Waits for a file that another program writes. Returns whether it exists.
bool appears(const std::filesystem::path&);
/// All bytes of a file; empty when there is none.
std::string contentsOf(const std::filesystem::path&);

} // namespace brimsound::tests
