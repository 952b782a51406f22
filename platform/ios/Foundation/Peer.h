// How native objects and the product's belong together.
//
// A native object is the peer of one of ours, and the two live equally long: ours is retained by retaining
// the native one and is destroyed with it. Most classes have the platform's own as their peers. Those that
// can be derived from have one of our native classes, named BR…, that hands what the platform asks of it to
// the product's object; what the product's object asks of its base class goes to the native superclass.
#pragma once

#include "platform/Foundation/NSObject.h"

#import <Foundation/Foundation.h>

namespace brimsound {

struct Peer {
    static void destroy(const NSObject* object) { delete object; }
};

namespace ios {

/// A native object as a constructor takes it: with the reference that came with its making.
inline Peer* peer(id native)
{
    return reinterpret_cast<Peer*>(native);
}

inline id nativeOf(const NSObject& object)
{
    return reinterpret_cast<id>(&object.peer());
}

/// Nil for null.
inline id nativeOf(const NSObject* object)
{
    return object ? nativeOf(*object) : nil;
}

/// The native object of something that is an object of ours in another of its roles; nil where it is none.
template <typename Role> id nativeInRole(const Role* role)
{
    return nativeOf(dynamic_cast<const NSObject*>(role));
}

/// The object whose peer this is, made for it if there was none; null for nil. Not retained.
NSObject* objectOf(id native);

/// The same, as the class that belongs to the native one.
template <typename T> T* objectOf(id native)
{
    return static_cast<T*>(objectOf(native));
}

/// The same, with a reference of its own.
template <typename T> RetainPtr<T> retainedObjectOf(id native)
{
    return brimsound::retain(objectOf<T>(native));
}

/// The object whose peer this is already; null when there is none, as before it is made and after it is gone.
NSObject* existingObjectOf(id native);

template <typename T> T* existingObjectOf(id native)
{
    return static_cast<T*>(existingObjectOf(native));
}

/// Destroys the object before its peer's own teardown, for classes whose destructors still use the peer.
void destroyObjectOf(id native);

/// Lets the peer answer the selectors of the object's method table.
void answerSelectors(NSObject& object);

} // namespace ios

} // namespace brimsound
