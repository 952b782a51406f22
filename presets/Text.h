// Helpers for reading and writing text, independent of the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::presets {

/// Without blanks, tabs and carriage returns at both ends.
std::string_view trimmed(std::string_view);
/// The lines of a text without their ends, LF or CR LF.
std::vector<std::string_view> linesOf(std::string_view);
/// The parts between any of the separators, without empty ones.
std::vector<std::string_view> wordsOf(std::string_view, std::string_view separators);
/// Whether it is an ASCII digit.
bool isDigit(char);
/// Whether two ASCII texts are equal apart from the case of letters.
bool areEqualInAnyCase(std::string_view, std::string_view);
/// Whether the text begins with this ASCII text in any case.
bool startsWithInAnyCase(std::string_view text, std::string_view start);

/// The number that the whole text is, with a point and an optional sign. Infinite for a number that is too
/// large; nothing when it is no number.
std::optional<double> numberFrom(std::string_view);
/// The number that the text begins with, for example "6dB"; it is removed from the text. "inf" and "nan" are
/// numbers, but not as the first letters of a word.
std::optional<double> takeNumber(std::string_view& text);

/// A number with so many decimals, never "-0.0".
std::string fixed(double number, int decimals);
/// A number in its shortest form, with at most two decimals, for messages.
std::string plain(double number);

/// The text for a message: shortened, and with "?" for each byte that is not printable.
std::string printable(std::string_view);
/// The same in quotes.
std::string inQuotes(std::string_view);

/// Whether it can be the name of a preset: UTF-8, no control characters, not empty.
bool isName(std::string_view);
/// The text if it is UTF-8; otherwise its bytes are taken as Windows-1252.
std::string utf8From(std::string_view bytes);
/// UTF-8 in Windows-1252, with "?" for each character that it lacks; `isExact` tells whether there was none.
std::string windows1252From(std::string_view utf8, bool& isExact);

} // namespace brimsound::presets
