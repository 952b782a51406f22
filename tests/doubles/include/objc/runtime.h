// The runtime's interface, with the associated objects that GCC's runtime lacks.
#pragma once

#include_next <objc/runtime.h>

#include <stdint.h>

typedef uintptr_t objc_AssociationPolicy;

enum : objc_AssociationPolicy {
    OBJC_ASSOCIATION_ASSIGN = 0,
    OBJC_ASSOCIATION_RETAIN_NONATOMIC = 1,
};

#ifdef __cplusplus
extern "C" {
#endif

/// Retains the value if the policy says so, until it is replaced or the object is deallocated. Nil removes
/// it.
void objc_setAssociatedObject(id object, const void* key, id value, objc_AssociationPolicy policy);
id objc_getAssociatedObject(id object, const void* key);

#ifdef __cplusplus
}
#endif
