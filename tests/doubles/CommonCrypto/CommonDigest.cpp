#include <CommonCrypto/CommonDigest.h>

#include <openssl/evp.h>

unsigned char* CC_MD5(const void* data, CC_LONG len, unsigned char* md)
{
    EVP_Digest(data, len, md, nullptr, EVP_md5(), nullptr);
    return md;
}
