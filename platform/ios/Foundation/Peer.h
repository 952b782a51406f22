// The relation between native objects and the product's objects.
//
// A native object is the peer of a product object, and both have the same lifetime: retaining the product's
// object retains the native one, and the product's object is destroyed with its peer. For most classes the
// peer is an instance of the platform's class. Classes that can be derived from have a native class of ours,
// named BR…, as their peer. It forwards the platform's calls to the product's object. Calls of the product's
// object to its base class go to the native superclass.
#pragma once

#include "platform/Foundation/NSObject.h"

#import <Foundation/Foundation.h>

namespace brimsound {

struct Peer {
    static void destroy(const NSObject* object) { delete object; }
};

namespace ios {

/// A native object as the constructors take it: with the reference from its creation.
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

/// The native object of a product object that is given by one of its base classes; nil if it is not an
/// NSObject.
template <typename Role> id nativeInRole(const Role* role)
{
    return nativeOf(dynamic_cast<const NSObject*>(role));
}

/// The product's object for the peer, created if it does not exist; null for nil. Not retained.
NSObject* objectOf(id native);

/// The same, cast to the class for the native class.
template <typename T> T* objectOf(id native)
{
    return static_cast<T*>(objectOf(native));
}

/// The same, with a reference of its own.
template <typename T> RetainPtr<T> retainedObjectOf(id native)
{
    return brimsound::retain(objectOf<T>(native));
}

/// The product's object for the peer if it exists; null before its creation and after its destruction.
NSObject* existingObjectOf(id native);

template <typename T> T* existingObjectOf(id native)
{
    return static_cast<T*>(existingObjectOf(native));
}

/// Destroys the product's object before its peer is deallocated, for classes whose destructors still use the
/// peer.
void destroyObjectOf(id native);

/// Makes the peer respond to the selectors in the object's method table.
void answerSelectors(NSObject& object);

} // namespace ios

} // namespace brimsound
