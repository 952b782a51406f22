#include "platform/CommonCrypto/CommonDigest.h"

// Included after our own header, because the system's header defines the length as a macro.
#include <CommonCrypto/CommonDigest.h>

namespace brimsound {

unsigned char* CC_MD5(const void* data, CC_LONG length, unsigned char* digest)
{
    return ::CC_MD5(data, length, digest);
}

} // namespace brimsound
