#include "platform/Foundation/NSObject.h"

#include "platform/desktop/Foundation/Peer.h"

#include <algorithm>

namespace brimsound {

NSObject::NSObject()
    : NSObject(new Peer)
{
}

NSObject::NSObject(Peer* peer)
    : _peer(peer)
{
}

NSObject::~NSObject()
{
    delete _peer;
}

void NSObject::retain() const
{
    ++_peer->retainCount;
}

void NSObject::release() const
{
    if (--_peer->retainCount == 0)
        delete this;
}

std::size_t NSObject::retainCount() const
{
    return _peer->retainCount;
}

const Method* NSObject::methodForSelector(std::string_view selector) const
{
    const auto all = methods();
    const auto found = std::find_if(all.begin(), all.end(), [&](auto& m) { return m.selector == selector; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace brimsound
