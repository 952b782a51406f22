#pragma once

#include "_types.h"

#define STDIN_FILENO 0
#define STDOUT_FILENO 1
#define STDERR_FILENO 2

BEGIN_DECLS
int close(int);
int pipe(int ends[2]);
END_DECLS
