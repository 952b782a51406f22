// Conversion between UTF-8 and UTF-16. Unpaired surrogates are supported: in UTF-8 each takes three bytes,
// encoded as if it were a character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace brimsound::text {

constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/// Calls `receive` with each character of `count` UTF-16 units; an unpaired surrogate counts as a character.
/// `unitAt` returns the unit at an index.
void forEachCharacter(std::size_t count, const auto& unitAt, const auto& receive)
{
    for (std::size_t i = 0; i < count; ++i) {
        char32_t character = unitAt(i);
        if (isHighSurrogate(character) && i + 1 < count && isLowSurrogate(unitAt(i + 1)))
            character = 0x10000 + ((character - 0xD800) << 10) + (char32_t { unitAt(++i) } - 0xDC00);
        receive(character);
    }
}

constexpr std::size_t utf8LengthOf(char32_t character)
{
    return character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

void appendUtf8(std::string&, char32_t);

/// Removes and returns the character at the start of the text; `noCharacter` when the text is empty or does
/// not start with valid UTF-8.
char32_t takeCharacter(std::string_view& text);
inline constexpr char32_t noCharacter = 0xFFFFFFFF;

/// Calls `receive` with each UTF-16 unit of the text. Returns false when the text is not UTF-8; some units
/// may have been passed by then.
bool forEachUnit(std::string_view text, const auto& receive)
{
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        if (character == noCharacter)
            return false;
        if (character < 0x10000) {
            receive(static_cast<char16_t>(character));
        } else {
            receive(static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)));
            receive(static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
        }
    }
    return true;
}

bool isAscii(std::string_view);

} // namespace brimsound::text
