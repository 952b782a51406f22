// Associated objects, which GCC's runtime lacks.
#import "tests/doubles/objc/replaceMethod.h"

#import <Foundation/Foundation.h>

#include <map>
#include <unordered_map>
#include <utility>

namespace {

/// A value that is retained, or only assigned.
class Association {
public:
    Association() = default;
    Association(id value, objc_AssociationPolicy policy)
        : _value(value)
        , _isRetained(policy != OBJC_ASSOCIATION_ASSIGN)
    {
        if (_isRetained)
            [_value retain];
    }
    Association(Association&& other) noexcept
        : _value(std::exchange(other._value, nil))
        , _isRetained(other._isRetained)
    {
    }
    Association& operator=(Association&& other) noexcept
    {
        std::swap(_value, other._value);
        std::swap(_isRetained, other._isRetained);
        return *this;
    }
    Association(const Association&) = delete;
    Association& operator=(const Association&) = delete;
    ~Association()
    {
        if (_isRetained)
            [_value release];
    }

    id value() const { return _value; }

private:
    id _value = nil;
    bool _isRetained = false;
};

using Associations = std::map<const void*, Association>;

std::unordered_map<id, Associations>& associationsOfAll()
{
    // Never destroyed, because objects are deallocated while the program ends.
    static auto& all = *new std::unordered_map<id, Associations>;
    return all;
}

} // namespace

void objc_setAssociatedObject(id object, const void* key, id value, objc_AssociationPolicy policy)
{
    if (!object)
        return;
    Association association(value, policy);
    auto& place = associationsOfAll()[object][key];
    // The old value is released last, when the table is consistent again: its -dealloc may use the table.
    std::swap(place, association);
}

id objc_getAssociatedObject(id object, const void* key)
{
    const auto& all = associationsOfAll();
    const auto ofObject = all.find(object);
    if (ofObject == all.end())
        return nil;
    const auto found = ofObject->second.find(key);
    return found == ofObject->second.end() ? nil : found->second.value();
}

// The -dealloc methods of all classes end in NSObject's, except for some classes of the library that have no
// associated objects here. The associations are removed from the table first, because a released value may
// use associations itself.

namespace {

using Dealloc = void (*)(id, SEL);

Dealloc originalDealloc = nullptr;

void dealloc(id object, SEL selector)
{
    const auto dropped = associationsOfAll().extract(object);
    originalDealloc(object, selector);
}

} // namespace

@interface AssociationDropping : NSObject
@end

@implementation AssociationDropping

+ (void)load
{
    const Method method = class_getInstanceMethod([NSObject class], @selector(dealloc));
    originalDealloc = brimsound::doubles::replaceMethod(method, dealloc);
}

@end
