// Calls by name: a message to a native object calls the method in the product object's table.
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"

#import <objc/runtime.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>

namespace brimsound::ios {

namespace {

constexpr std::size_t mostArguments = 2;

/// Property lists are passed by value, everything else as a product object.
id call(id self, SEL selector, std::initializer_list<id> natives)
{
    auto* object = existingObjectOf(self);
    const auto* method = object ? object->methodForSelector(sel_getName(selector)) : nullptr;
    if (!method)
        return nil;
    std::array<std::optional<PropertyList>, mostArguments> values;
    std::array<Argument, mostArguments> arguments;
    std::size_t count = 0;
    for (const id native : natives) {
        values[count] = valueOf(native);
        if (values[count])
            arguments[count] = &*values[count];
        else if (native)
            arguments[count] = objectOf(native);
        ++count;
    }
    return nativeValue(method->invoke(*object, { arguments.data(), count }));
}

id callWithNone(id self, SEL selector)
{
    return call(self, selector, {});
}

id callWithOne(id self, SEL selector, id argument)
{
    return call(self, selector, { argument });
}

id callWithTwo(id self, SEL selector, id first, id second)
{
    return call(self, selector, { first, second });
}

void addMethod(Class native, const std::string& selector)
{
    SEL name = sel_registerName(selector.c_str());
    switch (std::count(selector.begin(), selector.end(), ':')) {
    case 0:
        class_addMethod(native, name, reinterpret_cast<IMP>(callWithNone), "@@:");
        break;
    case 1:
        class_addMethod(native, name, reinterpret_cast<IMP>(callWithOne), "@@:@");
        break;
    default:
        class_addMethod(native, name, reinterpret_cast<IMP>(callWithTwo), "@@:@@");
    }
}

} // namespace

void answerSelectors(NSObject& object)
{
    for (const auto& method : object.methods())
        addMethod(object_getClass(nativeOf(object)), std::string(method.selector));
}

} // namespace brimsound::ios
