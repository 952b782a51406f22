#include "platform/Foundation/Utf16.h"

#include <cstring>

namespace brimsound::text {

void appendUtf8(std::string& text, char32_t character)
{
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto continuation = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
    switch (utf8LengthOf(character)) {
    case 1:
        append(character);
        return;
    case 2:
        append(0xC0 | character >> 6);
        break;
    case 3:
        append(0xE0 | character >> 12);
        continuation(6);
        break;
    default:
        append(0xF0 | character >> 18);
        continuation(12);
        continuation(6);
    }
    continuation(0);
}

char32_t takeCharacter(std::string_view& text)
{
    if (text.empty())
        return noCharacter;
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xC0 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 0 || first >= 0xF8 || length > text.size())
        return noCharacter;
    char32_t character = length == 1 ? first : first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return noCharacter;
        character = character << 6 | (byte & 0x3F);
    }
    // Only the shortest encoding of a character is valid.
    if (utf8LengthOf(character) != length || character > 0x10FFFF)
        return noCharacter;
    text.remove_prefix(length);
    return character;
}

bool isAscii(std::string_view text)
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::uint64_t all = 0;
    while (text.size() >= sizeof all) {
        std::uint64_t some = 0;
        std::memcpy(&some, text.data(), sizeof some);
        all |= some;
        text.remove_prefix(sizeof some);
    }
    for (const char character : text)
        all |= static_cast<unsigned char>(character);
    return (all & highBits) == 0;
}

} // namespace brimsound::text
