#pragma once

#include "../_types.h"

BEGIN_DECLS
int sysctlbyname(const char* name, void* value, size_t* size, void* newValue, size_t newSize);
END_DECLS
