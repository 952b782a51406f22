#include "platform/Foundation/NSString.h"

#include <clocale>
#include <cstdio>

namespace brimsound {

std::string stringWithFormat(const char* format, double number)
{
    static const locale_t unlocalized = newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t before = uselocale(unlocalized);
    // The length that a string stores without an allocation. It is enough for a caption.
    std::string text;
    text.resize(text.capacity());
    const auto length = static_cast<std::size_t>(std::snprintf(text.data(), text.size(), format, number));
    if (length >= text.size()) {
        text.resize(length + 1);
        std::snprintf(text.data(), text.size(), format, number);
    }
    text.resize(length);
    uselocale(before);
    return text;
}

} // namespace brimsound
