// The root of all retain-counted classes.
#pragma once

#include "platform/Foundation/Method.h"
#include "platform/Foundation/RetainPtr.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace brimsound {

/// What stands behind an object on the platform in use: the native object, or the desktop's node of the view
/// tree. Only the platform's own sources know its shape.
struct Peer;

/// An object with a reference count, born with one reference (see RetainPtr) and destroyed with the last one.
/// The count is the peer's, so that the object lives exactly as long as its peer. Main thread only.
class NSObject {
public:
    NSObject();
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;

    void retain() const;
    void release() const;
    std::size_t retainCount() const;

    /// The methods that this object's class lets be called by name, in the class's own order.
    virtual std::span<const Method> methods() const { return {}; }

    /// The method of that name, owned by the class; null when the class has none.
    const Method* methodForSelector(std::string_view selector) const;
    bool respondsToSelector(std::string_view selector) const
    {
        return methodForSelector(selector) != nullptr;
    }

    Peer& peer() const { return *_peer; }

protected:
    /// Takes ownership of the peer that a platform class brings.
    explicit NSObject(Peer*);
    virtual ~NSObject();

private:
    /// Destroys the object with its peer.
    friend struct Peer;

    Peer* _peer;
};

} // namespace brimsound
