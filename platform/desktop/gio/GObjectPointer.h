// Owners of GLib's reference-counted objects.
#pragma once

#include <glib-object.h>

#include <memory>

namespace brimsound::desktop {

struct GObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <typename T> using GObjectPointer = std::unique_ptr<T, GObjectUnref>;

struct GFree {
    void operator()(gpointer memory) const { g_free(memory); }
};

using GText = std::unique_ptr<char, GFree>;

} // namespace brimsound::desktop
