#include "platform/desktop/Foundation/UnicodeText.h"

#include "platform/desktop/gio/GObjectPointer.h"

namespace brimsound::desktop {

bool isText(std::string_view bytes)
{
    return g_utf8_validate_len(bytes.data(), bytes.size(), nullptr) != 0;
}

std::string textFrom(std::string_view bytes)
{
    if (isText(bytes))
        return std::string(bytes);
    const GText text(g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size())));
    return text.get();
}

} // namespace brimsound::desktop
