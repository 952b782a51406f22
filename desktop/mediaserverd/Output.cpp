#include "desktop/mediaserverd/Output.h"

#include <nlohmann/json.hpp>

#include <cstdio>

namespace brimsound::mediaserver {

namespace {

// Numbers are printed with the digits of single precision.
using Json
    = nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

void printLine(const char* key, const Json& value)
{
    // Names come from other programs: invalid UTF-8 in them is replaced.
    std::puts(Json { { key, value } }.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
    std::fflush(stdout);
}

} // namespace

void print(const Gains& gains)
{
    printLine("vals", gains);
}

engine::Reports reports(bool printed)
{
    engine::Reports reports;
    reports.problem
        = [](const std::string& problem) { std::fprintf(stderr, "mediaserverd: %s\n", problem.c_str()); };
    if (!printed)
        return reports;
    reports.connected = [](bool connected) { printLine("connected", connected); };
    reports.output = [](const std::string& name) { printLine("output", name); };
    reports.layout = [](const std::vector<std::string>& channels) { printLine("layout", channels); };
    reports.rate = [](unsigned rate) { printLine("rate", rate); };
    reports.headroom = [](double headroom) { printLine("headroom", static_cast<float>(headroom)); };
    reports.limited = [](std::uint64_t blocks) { printLine("limited", blocks); };
    return reports;
}

} // namespace brimsound::mediaserver
