#include "desktop/brimsound/Script.h"

#include <charconv>
#include <cmath>

namespace brimsound::desktop {

namespace {

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r';
}

/// Reads a quoted text that starts at `position`, and moves `position` behind it.
std::string takeQuoted(std::string_view line, std::size_t& position)
{
    std::string text;
    for (++position; position < line.size(); ++position) {
        if (line[position] == '"') {
            ++position;
            return text;
        }
        if (line[position] == '\\' && position + 1 < line.size())
            ++position;
        text += line[position];
    }
    throw ScriptError("a quoted text is not closed");
}

std::string takePlain(std::string_view line, std::size_t& position)
{
    std::string word;
    while (position < line.size() && !isBlank(line[position]) && line[position] != '#')
        word += line[position++];
    return word;
}

} // namespace

std::vector<std::string> wordsOf(std::string_view line)
{
    std::vector<std::string> words;
    std::size_t position = 0;
    while (position < line.size() && line[position] != '#') {
        if (isBlank(line[position]))
            ++position;
        else if (line[position] == '"')
            words.push_back(takeQuoted(line, position));
        else
            words.push_back(takePlain(line, position));
    }
    return words;
}

double numberFrom(const std::string& word)
{
    double number = 0;
    // std::from_chars accepts only a minus sign.
    const char* start = word.data() + (word.starts_with('+') ? 1 : 0);
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(start, end, number);
    if (error != std::errc() || stop != end || !std::isfinite(number) || word.starts_with("+-"))
        throw ScriptError("\"" + word + "\" is not a number");
    return number;
}

std::size_t indexFrom(const std::string& word, std::size_t largest)
{
    std::size_t index = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, index);
    if (error != std::errc() || stop != end || index > largest)
        throw ScriptError("\"" + word + "\" is not a number from 0 to " + std::to_string(largest));
    return index;
}

} // namespace brimsound::desktop
