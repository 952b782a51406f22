#include "platform/CommonCrypto/CommonDigest.h"

// After ours: there the length is a macro.
#include <CommonCrypto/CommonDigest.h>

namespace brimsound {

unsigned char* CC_MD5(const void* data, CC_LONG length, unsigned char* digest)
{
    return ::CC_MD5(data, length, digest);
}

} // namespace brimsound
