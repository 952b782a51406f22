// How the toolkit's objects and the product's belong together.
//
// A toolkit object is the peer of one of the product's, and the two live equally long: the product's is
// retained by retaining the toolkit's and is destroyed with it. Objects that nobody sees have a plain one.
#pragma once

#include "platform/Foundation/NSObject.h"
#include "toolkit/object/Object.h"

namespace brimsound {

struct Peer {
    static void destroy(void* object) { delete static_cast<NSObject*>(object); }
};

namespace desktop {

/// A toolkit object as a constructor takes it: with the reference that came with its making.
inline Peer* peer(toolkit::Object* native)
{
    return reinterpret_cast<Peer*>(native);
}

inline toolkit::Object& nativeOf(const NSObject& object)
{
    return reinterpret_cast<toolkit::Object&>(object.peer());
}

/// The same, as the class that it is known to have.
template <typename Native> Native& nativeOf(const NSObject& object)
{
    return static_cast<Native&>(nativeOf(object));
}

/// Null for null.
template <typename Native> toolkit::Ref<Native> nativeOf(const NSObject* object)
{
    return toolkit::keep(object ? &nativeOf<Native>(*object) : nullptr);
}

/// The product's object that the toolkit's belongs to; null when there is none.
inline NSObject* existingObjectOf(const toolkit::Object& native)
{
    return static_cast<NSObject*>(native.counterpart());
}

/// The same, made when there is none, as the class that belongs to the toolkit's. Not retained.
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

/// The same with a reference of its own; null for null.
template <typename Class> RetainPtr<Class> retainedObjectOf(toolkit::Object* native)
{
    return brimsound::retain(native ? &objectOf<Class>(*native) : nullptr);
}

} // namespace desktop

} // namespace brimsound
