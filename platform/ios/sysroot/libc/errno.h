#pragma once

#include "_types.h"

BEGIN_DECLS
int* __error(void);
END_DECLS

#define errno (*__error())

#define ENOENT 2
#define EINTR 4
#define EINVAL 22
#define ERANGE 34
#define ETIMEDOUT 60
#define EOVERFLOW 84
#define EILSEQ 92
