// The root of all retain-counted classes.
#pragma once

#include "platform/Foundation/Method.h"
#include "platform/Foundation/RetainPtr.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace brimsound {

/// The platform's part of an object: the native object, or the desktop's own data. Only the platform's
/// sources know its layout.
struct Peer;

/// An object with a reference count. It is created with one reference (see RetainPtr) and destroyed when the
/// last one is released. The peer holds the count, so the object lives exactly as long as its peer. Main
/// thread only.
class NSObject {
public:
    NSObject();
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;

    void retain() const;
    void release() const;
    std::size_t retainCount() const;

    /// The methods of this object's class that can be called by name, in the order of declaration.
    virtual std::span<const Method> methods() const { return {}; }

    /// The method of that name, owned by the class; null when the class has none.
    const Method* methodForSelector(std::string_view selector) const;
    bool respondsToSelector(std::string_view selector) const
    {
        return methodForSelector(selector) != nullptr;
    }

    Peer& peer() const { return *_peer; }

protected:
    /// Takes ownership of the peer that a derived class provides.
    explicit NSObject(Peer*);
    virtual ~NSObject();

private:
    /// Destroys the object with its peer.
    friend struct Peer;

    Peer* _peer;
};

} // namespace brimsound
