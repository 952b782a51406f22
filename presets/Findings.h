// What there is to say about a preset of another program.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace brimsound::presets {

enum class Severity {
    /// Something usual was left out, such as a preamp.
    Note,
    /// Something was left out or changed.
    Warning,
    /// The preset cannot be imported.
    Error,
};

struct Finding {
    Severity severity = Severity::Warning;
    /// The number of a line, the path of a JSON value, or a record of a binary file; empty when the finding
    /// is about the whole file.
    std::string place;
    std::string text;

    bool operator==(const Finding&) const = default;
};

/// Findings in the order in which they were made. Of a hundred thousand bad lines only the first hundred are
/// kept; the others are counted.
class Findings {
public:
    void note(std::string place, std::string text);
    void warn(std::string place, std::string text);
    void refuse(std::string place, std::string text);
    /// Notes that a preamp, in dB, is left out. Nothing when it is 0.
    void notePreamp(std::string place, double gain);

    const std::vector<Finding>& all() const { return _all; }
    bool haveWarnings() const { return _warnings > 0; }
    bool haveErrors() const { return _errors > 0; }
    /// How many were only counted.
    std::size_t omitted() const { return _omitted; }

private:
    void add(Finding);

    std::vector<Finding> _all;
    std::size_t _warnings = 0;
    std::size_t _errors = 0;
    std::size_t _omitted = 0;
};

} // namespace brimsound::presets
