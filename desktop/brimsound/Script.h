#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Why a line cannot be executed; `what` is the reason, without the line number.
class ScriptError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The words of a line. Words are separated by blanks. A text in double quotes is one word; in it, a
/// backslash precedes a quote or backslash. `#` outside quotes starts a comment. Throws ScriptError for a
/// missing closing quote.
std::vector<std::string> wordsOf(std::string_view line);

/// The word as a finite number. Throws ScriptError with the word.
double numberFrom(const std::string& word);

/// The word as a whole number from 0 to `largest`. Throws ScriptError with the word.
std::size_t indexFrom(const std::string& word, std::size_t largest);

} // namespace brimsound::desktop
