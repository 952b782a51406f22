#pragma once

#import <objc/runtime.h>

namespace brimsound::doubles {

/// Replaces a method's function by one of the same type. Returns the previous one.
template <typename Function> Function replaceMethod(Method method, Function function)
{
    // Compilers warn of casts between function types, except to and from this one.
    using AnyFunction = void (*)();
    const auto implementation = reinterpret_cast<IMP>(reinterpret_cast<AnyFunction>(function));
    const IMP previous = method_setImplementation(method, implementation);
    return reinterpret_cast<Function>(reinterpret_cast<AnyFunction>(previous));
}

} // namespace brimsound::doubles
