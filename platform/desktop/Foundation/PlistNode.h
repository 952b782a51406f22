// Owners of what libplist hands out.
#pragma once

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace brimsound::desktop {

struct PlistFree {
    void operator()(void* node) const { plist_free(node); }
};
using PlistNode = std::unique_ptr<void, PlistFree>;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using Allocated = std::unique_ptr<T, Free>;

} // namespace brimsound::desktop
