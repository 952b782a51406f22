#pragma once

#include "_types.h"

#define RTLD_DEFAULT ((void*)-2)

BEGIN_DECLS
void* dlsym(void* library, const char* name);
END_DECLS
