// A desktop of a test's own: which programs open what.
#pragma once

#include <filesystem>
#include <string>

namespace brimsound::tests {

/// A home folder with no programs in it but those that a test puts there, and none outside it. GLib remembers
/// the first home that it sees, so a process has one for all its tests; each starts with an empty one.
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
    /// Makes a program the default that writes its argument into a file; see openedBy.
    void addRecordingProgram(const std::string& mimeType);
    void removeProgram(const std::string& mimeType);

    /// The argument that the recording program for that type was started with; waits for it. Empty when it
    /// was not.
    std::string openedBy(const std::string& mimeType) const;

private:
    void writeDefaults() const;
};

/// Waits for a file that another program writes. Whether it came.
bool appears(const std::filesystem::path&);
/// All bytes of a file; empty when there is none.
std::string contentsOf(const std::filesystem::path&);

} // namespace brimsound::tests
