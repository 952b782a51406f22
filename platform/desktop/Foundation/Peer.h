// The native objects of the product's objects. A native object is a toolkit object and exists as long as the
// product's object: retaining the product's object retains the native one, and both are destroyed together.
// Objects other than views have a plain one.
#pragma once

#include "platform/Foundation/NSObject.h"
#include "toolkit/object/Object.h"

namespace brimsound {

struct Peer {
    static void destroy(void* object) { delete static_cast<NSObject*>(object); }
};

namespace desktop {

/// A native object as a constructor takes it, with its first reference.
inline Peer* peer(toolkit::Object* native)
{
    return reinterpret_cast<Peer*>(native);
}

inline toolkit::Object& nativeOf(const NSObject& object)
{
    return reinterpret_cast<toolkit::Object&>(object.peer());
}

/// The native object, which must be of this class.
template <typename Native> Native& nativeOf(const NSObject& object)
{
    return static_cast<Native&>(nativeOf(object));
}

/// Null for null.
template <typename Native> toolkit::Ref<Native> nativeOf(const NSObject* object)
{
    return toolkit::keep(object ? &nativeOf<Native>(*object) : nullptr);
}

/// The object of this native object; may be null.
inline NSObject* existingObjectOf(const toolkit::Object& native)
{
    return static_cast<NSObject*>(native.counterpart());
}

/// The object of this native object, created if necessary; an existing one must be of this class. Not
/// retained.
template <typename Class> Class& objectOf(toolkit::Object& native)
{
    struct Made : Class {
        explicit Made(Peer* peer)
            : Class(peer)
        {
        }
    };
    if (auto* existing = existingObjectOf(native))
        return static_cast<Class&>(*existing);
    return *new Made(peer(&native));
}

/// The same, retained; null for null.
template <typename Class> RetainPtr<Class> retainedObjectOf(toolkit::Object* native)
{
    return brimsound::retain(native ? &objectOf<Class>(*native) : nullptr);
}

} // namespace desktop

} // namespace brimsound
