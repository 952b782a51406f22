// Conversion of completion handlers to the platform's blocks.
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
/// Without blocks the platform cannot call a completion handler.
inline id nativeCompletion(const std::function<void()>&)
{
    return nil;
}
#endif

} // namespace brimsound::ios
