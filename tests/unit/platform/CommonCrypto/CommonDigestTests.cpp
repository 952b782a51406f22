#include "platform/CommonCrypto/CommonDigest.h"

#include <gmock/gmock.h>

#include <array>
#include <string_view>

namespace brimsound::tests {

namespace {

using Digest = std::array<unsigned char, CC_MD5_DIGEST_LENGTH>;

Digest md5(std::string_view text)
{
    Digest digest {};
    EXPECT_EQ(CC_MD5(text.data(), static_cast<CC_LONG>(text.size()), digest.data()), digest.data());
    return digest;
}

TEST(MD5, IsAsPublished)
{
    EXPECT_EQ(md5("abc"),
        (Digest { 0x90, 0x01, 0x50, 0x98, 0x3c, 0xd2, 0x4f, 0xb0, 0xd6, 0x96, 0x3f, 0x7d, 0x28, 0xe1, 0x7f,
            0x72 }));
    EXPECT_EQ(md5("12345678901234567890123456789012345678901234567890123456789012345678901234567890"),
        (Digest { 0x57, 0xed, 0xf4, 0xa2, 0x2b, 0xe3, 0xc9, 0x55, 0xac, 0x49, 0xda, 0x2e, 0x21, 0x07, 0xb6,
            0x7a }));
}

TEST(MD5, OfNothingNeedsNoBytes)
{
    const Digest ofNothing { 0xd4, 0x1d, 0x8c, 0xd9, 0x8f, 0x00, 0xb2, 0x04, 0xe9, 0x80, 0x09, 0x98, 0xec,
        0xf8, 0x42, 0x7e };
    EXPECT_EQ(md5(""), ofNothing);
    Digest digest {};
    CC_MD5(nullptr, 0, digest.data());
    EXPECT_EQ(digest, ofNothing);
}

} // namespace

} // namespace brimsound::tests
