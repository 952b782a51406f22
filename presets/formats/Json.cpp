#include "presets/formats/Json.h"

#include "presets/Text.h"

#include <algorithm>
#include <string>

namespace brimsound::presets {

namespace {

using nlohmann::json;

/// Counted before parsing: the parser's own limit, a callback, takes quadratic time.
bool isTooDeep(std::string_view text)
{
    constexpr int deepest = 64;
    int depth = 0;
    bool isInString = false;
    for (std::size_t i = 0; i < text.size() && depth <= deepest; ++i) {
        if (text[i] == '"')
            isInString = !isInString;
        else if (isInString && text[i] == '\\')
            ++i;
        else if (!isInString && (text[i] == '[' || text[i] == '{'))
            ++depth;
        else if (!isInString && (text[i] == ']' || text[i] == '}'))
            --depth;
    }
    return depth > deepest;
}

std::string lineOf(std::string_view text, std::size_t byte)
{
    const auto before = text.substr(0, byte);
    return std::to_string(1 + std::ranges::count(before, '\n'));
}

} // namespace

std::optional<json> parseJson(std::string_view text, Findings& findings)
{
    if (isTooDeep(text)) {
        findings.refuse({}, "the JSON text is nested more than 64 deep");
        return std::nullopt;
    }
    try {
        return json::parse(text);
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
