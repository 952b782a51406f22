// The lines of a gesture script.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Why a line cannot be carried out; `what` is the reason, without the line's number.
class ScriptError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The words of a line: separated by blanks, a text in double quotes being one word (a quote or backslash in
/// it is written after a backslash); `#` outside quotes starts a comment. Throws ScriptError for a quote that
/// is not closed.
std::vector<std::string> wordsOf(std::string_view line);

/// The word as a finite number. Throws ScriptError naming the word.
double numberFrom(const std::string& word);

/// The word as a whole number from 0 to `largest`. Throws ScriptError naming the word.
std::size_t indexFrom(const std::string& word, std::size_t largest);

} // namespace brimsound::desktop
