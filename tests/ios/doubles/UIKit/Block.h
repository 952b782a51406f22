// Blocks, without a compiler or a runtime that knows of them.
#pragma once

#import <Foundation/Foundation.h>

namespace brimsound::doubles {

/// Calls a block that takes and gives nothing. Nothing for nil.
inline void callBlock(id block)
{
    struct Layout {
        void* isa;
        int flags;
        int reserved;
        void (*invoke)(Layout*);
    };
    if (auto* layout = reinterpret_cast<Layout*>(block))
        layout->invoke(layout);
}

} // namespace brimsound::doubles
