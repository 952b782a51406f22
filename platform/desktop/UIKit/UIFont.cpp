#include "platform/UIKit/UIFont.h"

#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Font.h"
#include "platform/desktop/UIKit/Text.h"

#include <utility>

namespace brimsound {

namespace {

struct FontObject : toolkit::Object {
    explicit FontObject(toolkit::Font described)
        : font(std::move(described))
    {
    }

    const toolkit::Font font;
};

const toolkit::Font& fontOf(const UIFont& font)
{
    return desktop::nativeOf<FontObject>(font).font;
}

} // namespace

UIFont::UIFont(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIFont> UIFont::systemFontOfSize(CGFloat size)
{
    return desktop::uiFont(toolkit::Font { {}, size });
}

RetainPtr<UIFont> UIFont::fontWithNameSize(const std::string& name, CGFloat size)
{
    return desktop::fontExists(name) ? desktop::uiFont(toolkit::Font { name, size }) : nullptr;
}

RetainPtr<UIFont> UIFont::fontWithSize(CGFloat size) const
{
    return desktop::uiFont(toolkit::Font { fontName(), size });
}

std::string UIFont::fontName() const
{
    return fontOf(*this).name;
}

CGFloat UIFont::pointSize() const
{
    return fontOf(*this).size;
}

namespace desktop {

std::optional<toolkit::Font> toolkitFont(const RetainPtr<UIFont>& font)
{
    return font ? std::optional(fontOf(*font)) : std::nullopt;
}

RetainPtr<UIFont> uiFont(const std::optional<toolkit::Font>& font)
{
    return font ? adopt(&objectOf<UIFont>(*new FontObject(*font))) : nullptr;
}

} // namespace desktop

} // namespace brimsound
