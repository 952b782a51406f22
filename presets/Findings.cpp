#include "presets/Findings.h"

#include "presets/Text.h"

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

void Findings::notePreamp(std::string place, double gain)
{
    if (gain != 0)
        note(std::move(place),
            "the preamp of " + plain(gain) + " dB is left out: Auto Preamp sets one for these gains");
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
