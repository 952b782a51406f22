#pragma once

#include <cstdint>

namespace brimsound::render {

/// Shows the progress of a long job in one line on standard error, which is removed at the end. Prints
/// nothing when standard error is not a terminal.
class Progress {
public:
    /// `total` is the amount of work, in any unit.
    explicit Progress(std::int64_t total);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void update(std::int64_t done);

private:
    bool _shown;
    std::int64_t _total;
    int _percent = -1;
};

} // namespace brimsound::render
