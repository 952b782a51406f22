#pragma once

#include <stdint.h>

typedef uint32_t CC_LONG;

#define CC_MD5_DIGEST_LENGTH 16

#ifdef __cplusplus
extern "C" {
#endif

unsigned char* CC_MD5(const void* data, CC_LONG len, unsigned char* md);

#ifdef __cplusplus
}
#endif
