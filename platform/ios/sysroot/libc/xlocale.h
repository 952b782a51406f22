#pragma once

#include "_types.h"

typedef struct _xlocale* locale_t;

#define LC_ALL_MASK 0x3f

BEGIN_DECLS
locale_t newlocale(int categories, const char* name, locale_t base);
double strtod_l(const char*, char**, locale_t);
END_DECLS
