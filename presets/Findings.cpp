#include "presets/Findings.h"

#include <utility>

namespace brimsound::presets {

void Findings::note(std::string place, std::string text)
{
    add({ Severity::Note, std::move(place), std::move(text) });
}

void Findings::warn(std::string place, std::string text)
{
    ++_warnings;
    add({ Severity::Warning, std::move(place), std::move(text) });
}

void Findings::refuse(std::string place, std::string text)
{
    ++_errors;
    add({ Severity::Error, std::move(place), std::move(text) });
}

void Findings::append(const Findings& others)
{
    for (const auto& finding : others._all)
        add(finding);
    _warnings += others._warnings;
    _errors += others._errors;
    _omitted += others._omitted;
}

void Findings::add(Finding finding)
{
    constexpr std::size_t most = 100;
    // The first error is always kept: it is the reason why the preset is refused.
    if (_all.size() < most || (finding.severity == Severity::Error && _errors <= 1))
        _all.push_back(std::move(finding));
    else
        ++_omitted;
}

} // namespace brimsound::presets
