#include "presets/Text.h"

#include "platform/desktop/Foundation/UnicodeText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace brimsound::presets {

namespace {

// The characters of the bytes 0x80 to 0x9f, from the Unicode Consortium's CP1252.TXT; 0 where there is none.
constexpr std::array<char16_t, 32> upperControls { 0x20ac, 0, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
    0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017d, 0, 0, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013,
    0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0, 0x017e, 0x0178 };

bool isLetter(char character)
{
    return ('a' <= character && character <= 'z') || ('A' <= character && character <= 'Z');
}

char lower(char letter)
{
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

void appendUtf8(std::string& text, char16_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xc0 | character >> 6);
        text += static_cast<char>(0x80 | (character & 0x3f));
    } else {
        text += static_cast<char>(0xe0 | character >> 12);
        text += static_cast<char>(0x80 | (character >> 6 & 0x3f));
        text += static_cast<char>(0x80 | (character & 0x3f));
    }
}

/// Removes the first character of valid UTF-8.
char32_t takeCharacter(std::string_view& utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    const int more = first < 0x80 ? 0 : first < 0xe0 ? 1 : first < 0xf0 ? 2 : 3;
    char32_t character = more == 0 ? first : first & (0x3fU >> more);
    for (int i = 1; i <= more; ++i)
        character = character << 6 | (static_cast<unsigned char>(utf8[static_cast<std::size_t>(i)]) & 0x3fU);
    utf8.remove_prefix(static_cast<std::size_t>(more) + 1);
    return character;
}

/// 0 when there is none.
unsigned char byteInWindows1252(char32_t character)
{
    if (character < 0x80 || (0xa0 <= character && character < 0x100))
        return static_cast<unsigned char>(character);
    const auto found = std::ranges::find(upperControls, character);
    return found == upperControls.end() ? 0
                                        : static_cast<unsigned char>(0x80 + (found - upperControls.begin()));
}

bool isControl(char32_t character)
{
    return character < 0x20 || (0x7f <= character && character < 0xa0);
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    constexpr auto blanks = " \t\r";
    const auto start = text.find_first_not_of(blanks);
    if (start == std::string_view::npos)
        return {};
    return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        auto line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::vector<std::string_view> wordsOf(std::string_view text, std::string_view separators)
{
    std::vector<std::string_view> words;
    for (auto start = text.find_first_not_of(separators); start != std::string_view::npos;
         start = text.find_first_not_of(separators, start)) {
        const auto end = std::min(text.find_first_of(separators, start), text.size());
        words.push_back(text.substr(start, end - start));
        start = end;
    }
    return words;
}

bool isDigit(char character)
{
    return '0' <= character && character <= '9';
}

bool areEqualInAnyCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, lower, lower);
}

bool startsWithInAnyCase(std::string_view text, std::string_view start)
{
    return areEqualInAnyCase(text.substr(0, start.size()), start);
}

std::optional<double> takeNumber(std::string_view& text)
{
    auto digits = text;
    if (digits.starts_with('+') && !digits.starts_with("+-"))
        digits.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    digits.remove_prefix(static_cast<std::size_t>(end - digits.data()));
    if (!std::isfinite(number) && !digits.empty() && isLetter(digits.front()))
        return std::nullopt;
    text = digits;
    return error == std::errc::result_out_of_range ? std::numeric_limits<double>::infinity() : number;
}

std::optional<double> numberFrom(std::string_view text)
{
    const auto number = takeNumber(text);
    return text.empty() ? number : std::nullopt;
}

std::string fixed(double number, int decimals)
{
    std::array<char, 400> buffer {};
    const auto end = std::to_chars(
        buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed, decimals)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const bool isNegativeZero
        = text.starts_with('-') && text.find_first_of("123456789") == std::string_view::npos;
    return std::string(isNegativeZero ? text.substr(1) : text);
}

std::string plain(double number)
{
    if (std::abs(number) >= 1e15)
        return "a very large number";
    auto text = fixed(number, 2);
    while (text.ends_with('0'))
        text.pop_back();
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

std::string printable(std::string_view text)
{
    constexpr std::size_t longest = 60;
    const bool isUtf8 = desktop::isText(text);
    std::string shown;
    while (!text.empty() && shown.size() < longest) {
        const auto before = text;
        char32_t character = 0;
        if (isUtf8) {
            character = takeCharacter(text);
        } else {
            character = static_cast<unsigned char>(text.front());
            text.remove_prefix(1);
        }
        if (isControl(character) || (!isUtf8 && character >= 0x80))
            shown += '?';
        else
            shown += before.substr(0, before.size() - text.size());
    }
    return text.empty() ? shown : shown + "...";
}

std::string inQuotes(std::string_view text)
{
    return "\"" + printable(text) + "\"";
}

bool isName(std::string_view name)
{
    if (name.empty() || !desktop::isText(name))
        return false;
    while (!name.empty()) {
        if (isControl(takeCharacter(name)))
            return false;
    }
    return true;
}

std::string utf8From(std::string_view bytes)
{
    if (desktop::isText(bytes))
        return std::string(bytes);
    std::string text;
    for (const char letter : bytes) {
        const auto byte = static_cast<unsigned char>(letter);
        const char16_t character = 0x80 <= byte && byte < 0xa0 ? upperControls[byte - 0x80U] : byte;
        appendUtf8(text, character ? character : u'\ufffd');
    }
    return text;
}

std::string windows1252From(std::string_view utf8, bool& isExact)
{
    isExact = desktop::isText(utf8);
    std::string bytes;
    if (!isExact) {
        bytes.assign(utf8.size(), '?');
        return bytes;
    }
    while (!utf8.empty()) {
        const auto byte = byteInWindows1252(takeCharacter(utf8));
        isExact = isExact && byte != 0;
        bytes += byte ? static_cast<char>(byte) : '?';
    }
    return bytes;
}

} // namespace brimsound::presets
