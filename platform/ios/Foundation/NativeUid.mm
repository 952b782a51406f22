#include "platform/ios/Foundation/NativeUid.h"

#include <dlfcn.h>

#include <cstdint>
#include <limits>

namespace brimsound::ios {

namespace {

/// Core Foundation's functions for its UID type; null when it does not have them.
struct Functions {
    unsigned long (*typeOf)(id) = function<unsigned long(id)>("CFGetTypeID");
    unsigned long (*uidType)() = function<unsigned long()>("_CFKeyedArchiverUIDGetTypeID");
    std::uint32_t (*valueOf)(id) = function<std::uint32_t(id)>("_CFKeyedArchiverUIDGetValue");
    id (*create)(const void*, std::uint32_t)
        = function<id(const void*, std::uint32_t)>("_CFKeyedArchiverUIDCreate");

    bool areThere() const { return typeOf && uidType && valueOf && create; }

private:
    template <typename Type> static Type* function(const char* name)
    {
        return reinterpret_cast<Type*>(dlsym(RTLD_DEFAULT, name));
    }
};

const Functions& functions()
{
    static const Functions found;
    return found;
}

::NSString* const key = @"CF$UID";

} // namespace

std::optional<PropertyList::Uid> uidOf(id native)
{
    if ([native isKindOfClass:[::NSDictionary class]]) {
        id number = [native count] == 1 ? [native objectForKey:key] : nil;
        if (![number isKindOfClass:[::NSNumber class]])
            return std::nullopt;
        return PropertyList::Uid { [number unsignedLongLongValue] };
    }
    if (native && functions().areThere() && functions().typeOf(native) == functions().uidType())
        return PropertyList::Uid { functions().valueOf(native) };
    return std::nullopt;
}

id nativeUid(PropertyList::Uid uid)
{
    if (uid.value > std::numeric_limits<std::uint32_t>::max())
        return nil;
    if (functions().areThere())
        return [functions().create(nullptr, static_cast<std::uint32_t>(uid.value)) autorelease];
    return [::NSDictionary dictionaryWithObject:[::NSNumber numberWithUnsignedLongLong:uid.value] forKey:key];
}

} // namespace brimsound::ios
