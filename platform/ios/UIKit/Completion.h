// What is to be done when a controller stands, as the platform takes it.
#pragma once

#include <functional>

namespace brimsound::ios {

#ifdef __BLOCKS__
using Completion = void (^)(void);

inline Completion nativeCompletion(const std::function<void()>& completion)
{
    if (!completion)
        return nullptr;
    const auto copy = completion;
    return [[^{ copy(); } copy] autorelease];
}
#else
/// Without blocks there is no way to be told.
inline id nativeCompletion(const std::function<void()>&)
{
    return nil;
}
#endif

} // namespace brimsound::ios
