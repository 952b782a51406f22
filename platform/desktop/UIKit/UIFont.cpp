#include "platform/UIKit/UIFont.h"

#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Text.h"

namespace brimsound {

namespace {

struct FontPeer : Peer {
    FontPeer(std::string fontName, CGFloat pointSize)
        : name(std::move(fontName))
        , size(pointSize)
    {
    }

    const std::string name;
    const CGFloat size;
};

const FontPeer& peerOf(const UIFont& font)
{
    return static_cast<FontPeer&>(font.peer());
}

} // namespace

UIFont::UIFont(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIFont> UIFont::systemFontOfSize(CGFloat size)
{
    return adopt(new UIFont(new FontPeer({}, size)));
}

RetainPtr<UIFont> UIFont::fontWithNameSize(const std::string& name, CGFloat size)
{
    if (!desktop::fontExists(name))
        return nullptr;
    return adopt(new UIFont(new FontPeer(name, size)));
}

RetainPtr<UIFont> UIFont::fontWithSize(CGFloat size) const
{
    return adopt(new UIFont(new FontPeer(fontName(), size)));
}

std::string UIFont::fontName() const
{
    return peerOf(*this).name;
}

CGFloat UIFont::pointSize() const
{
    return peerOf(*this).size;
}

} // namespace brimsound
