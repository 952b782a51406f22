#include "tests/doubles/Trace.h"

#include <utility>

namespace brimsound::doubles {

namespace {

std::vector<std::string>& lines()
{
    // Never destroyed, because files are closed and objects deallocated while the program ends.
    static auto& all = *new std::vector<std::string>;
    return all;
}

} // namespace

void record(const std::string& line)
{
    lines().push_back(line);
}

std::vector<std::string> takeTrace()
{
    return std::exchange(lines(), {});
}

} // namespace brimsound::doubles
