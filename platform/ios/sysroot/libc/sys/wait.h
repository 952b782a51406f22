#pragma once

#include "../_types.h"

BEGIN_DECLS
pid_t waitpid(pid_t, int* status, int options);
END_DECLS
