#include "platform/ios/Foundation/NativeText.h"

#include "platform/Foundation/Utf16.h"

#include <vector>

namespace brimsound::ios {

std::string textOf(::NSString* native)
{
    std::vector<unichar> units([native length]);
    [native getCharacters:units.data() range:NSMakeRange(0, units.size())];
    std::string result;
    result.reserve(units.size());
    text::forEachCharacter(
        units.size(), [&](std::size_t i) { return static_cast<char16_t>(units[i]); },
        [&](char32_t character) { text::appendUtf8(result, character); });
    return result;
}

::NSString* nativeText(std::string_view text)
{
    std::vector<unichar> units;
    units.reserve(text.size());
    if (!text::forEachUnit(text, [&](char16_t unit) { units.push_back(unit); }))
        return nil;
    return [[[::NSString alloc] initWithCharacters:units.data() length:units.size()] autorelease];
}

} // namespace brimsound::ios
