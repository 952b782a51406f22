#include "tests/fuzz/GestureScript.h"

#include "desktop/brimsound/Script.h"

#include <algorithm>
#include <cmath>

namespace brimsound::tests {

using desktop::ScriptError;

namespace {

std::string quoted(const std::string& word)
{
    std::string text = "\"";
    for (const char character : word) {
        if (character == '"' || character == '\\')
            text += '\\';
        text += character;
    }
    return text + "\"";
}

void tryNumber(const std::string& word)
{
    try {
        if (!std::isfinite(desktop::numberFrom(word)))
            throw std::logic_error("a number is not finite");
    } catch (const ScriptError&) {
        return;
    }
}

void tryIndex(const std::string& word)
{
    constexpr std::size_t largest = 10;
    try {
        if (desktop::indexFrom(word, largest) > largest)
            throw std::logic_error("an index is too large");
    } catch (const ScriptError&) {
        return;
    }
}

void tryLine(std::string_view line)
{
    std::vector<std::string> words;
    try {
        words = desktop::wordsOf(line);
    } catch (const ScriptError&) {
        return;
    }
    std::string again;
    for (const auto& word : words) {
        tryNumber(word);
        tryIndex(word);
        again += quoted(word) + " ";
    }
    if (desktop::wordsOf(again) != words)
        throw std::logic_error("words in quotes come out otherwise");
}

} // namespace

void tryGestureScript(std::string_view script)
{
    while (!script.empty()) {
        const auto end = std::min(script.find('\n'), script.size());
        tryLine(script.substr(0, end));
        script.remove_prefix(std::min(end + 1, script.size()));
    }
}

} // namespace brimsound::tests
