#include "platform/Foundation/NSObject.h"

#include "platform/ios/Foundation/Peer.h"

#import <objc/runtime.h>

#include <algorithm>

/// Attached to a native object. Destroys the product's object when the native one is deallocated.
@interface BRLink : NSObject {
@public
    brimsound::NSObject* _object;
}
@end

@implementation BRLink

- (void)dealloc
{
    brimsound::Peer::destroy(_object);
    [super dealloc];
}

@end

/// The peer of an object without a native class of its own.
@interface BRObject : NSObject
@end

@implementation BRObject

- (void)dealloc
{
    brimsound::ios::destroyObjectOf(self);
    [super dealloc];
}

@end

namespace brimsound {

namespace {

const char linkKey = 0;

void link(id native, NSObject* object)
{
    BRLink* link = [[BRLink alloc] init];
    link->_object = object;
    objc_setAssociatedObject(native, &linkKey, link, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    [link release];
}

} // namespace

NSObject* ios::existingObjectOf(id native)
{
    BRLink* link = native ? objc_getAssociatedObject(native, &linkKey) : nil;
    return link ? link->_object : nullptr;
}

void ios::destroyObjectOf(id native)
{
    objc_setAssociatedObject(native, &linkKey, nil, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
}

NSObject::NSObject()
    : NSObject(ios::peer([[BRObject alloc] init]))
{
}

NSObject::NSObject(Peer* peer)
    : _peer(peer)
{
    link(ios::nativeOf(*this), this);
}

NSObject::~NSObject() = default;

void NSObject::retain() const
{
    [ios::nativeOf(*this) retain];
}

void NSObject::release() const
{
    [ios::nativeOf(*this) release];
}

std::size_t NSObject::retainCount() const
{
    return [ios::nativeOf(*this) retainCount];
}

const Method* NSObject::methodForSelector(std::string_view selector) const
{
    const auto all = methods();
    const auto found = std::find_if(all.begin(), all.end(), [&](auto& m) { return m.selector == selector; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace brimsound
