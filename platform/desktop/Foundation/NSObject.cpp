#include "platform/Foundation/NSObject.h"

#include "platform/desktop/Foundation/Peer.h"

#include <algorithm>

namespace brimsound {

using desktop::nativeOf;

NSObject::NSObject()
    : NSObject(desktop::peer(new toolkit::Object))
{
}

NSObject::NSObject(Peer* peer)
    : _peer(peer)
{
    nativeOf(*this).setCounterpart(this, Peer::destroy);
}

NSObject::~NSObject()
{
    // An object that is not destroyed by its native object, such as a local variable, also destroys the
    // native object.
    auto& native = nativeOf(*this);
    if (native.counterpart()) {
        native.setCounterpart(nullptr, nullptr);
        native.release();
    }
}

void NSObject::retain() const
{
    nativeOf(*this).retain();
}

void NSObject::release() const
{
    nativeOf(*this).release();
}

std::size_t NSObject::retainCount() const
{
    return nativeOf(*this).retainCount();
}

const Method* NSObject::methodForSelector(std::string_view selector) const
{
    const auto all = methods();
    const auto found = std::find_if(all.begin(), all.end(), [&](auto& m) { return m.selector == selector; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace brimsound
