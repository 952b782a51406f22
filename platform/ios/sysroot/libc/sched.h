#pragma once

#include "_types.h"

BEGIN_DECLS
int sched_yield(void);
END_DECLS
