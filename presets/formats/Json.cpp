#include "presets/formats/Json.h"

#include "presets/Text.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace brimsound::presets {

namespace {

using nlohmann::json;

class TooDeep : public std::exception { };

json parse(std::string_view text)
{
    constexpr int deepest = 64;
    const auto limit = [](int depth, json::parse_event_t, const json&) {
        if (depth > deepest)
            throw TooDeep();
        return true;
    };
    return json::parse(text, limit);
}

std::string lineOf(std::string_view text, std::size_t byte)
{
    const auto before = text.substr(0, byte);
    return std::to_string(1 + std::ranges::count(before, '\n'));
}

} // namespace

std::optional<json> parseJson(std::string_view text, Findings& findings)
{
    try {
        return parse(text);
    } catch (const TooDeep&) {
        findings.refuse({}, "the JSON text is nested more than 64 deep");
    } catch (const json::parse_error& error) {
        findings.refuse(lineOf(text, error.byte > 0 ? error.byte - 1 : 0), "this is no valid JSON");
    } catch (const json::out_of_range&) {
        findings.refuse({}, "the JSON text has a number that is too large");
    }
    return std::nullopt;
}

std::optional<double> numberOf(const json& value)
{
    if (value.is_number())
        return value.get<double>();
    if (const auto* text = value.get_ptr<const json::string_t*>())
        return numberFrom(trimmed(*text));
    return std::nullopt;
}

} // namespace brimsound::presets
