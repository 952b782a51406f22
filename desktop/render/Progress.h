// How far a long job is, for somebody who watches.
#pragma once

#include <cstdint>

namespace brimsound::render {

/// A line on standard error that changes as the job goes on, and is gone at the end. Prints nothing when
/// standard error is no terminal.
class Progress {
public:
    /// `total` is how much there is to do, in any unit.
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
