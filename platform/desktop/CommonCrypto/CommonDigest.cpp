#include "platform/CommonCrypto/CommonDigest.h"

#include <openssl/evp.h>

namespace brimsound {

unsigned char* CC_MD5(const void* data, CC_LONG length, unsigned char* digest)
{
    EVP_Digest(data, length, digest, nullptr, EVP_md5(), nullptr);
    return digest;
}

} // namespace brimsound
