#pragma once

#include "_types.h"

typedef void* posix_spawnattr_t;
typedef void* posix_spawn_file_actions_t;

BEGIN_DECLS
int posix_spawn(pid_t*, const char* path, const posix_spawn_file_actions_t*, const posix_spawnattr_t*,
    char* const arguments[], char* const environment[]);
int posix_spawn_file_actions_init(posix_spawn_file_actions_t*);
int posix_spawn_file_actions_destroy(posix_spawn_file_actions_t*);
int posix_spawn_file_actions_addclose(posix_spawn_file_actions_t*, int);
int posix_spawn_file_actions_adddup2(posix_spawn_file_actions_t*, int, int);
END_DECLS
