#pragma once

#include <cstddef>
#include <cstdint>

namespace brimsound {

using CC_LONG = std::uint32_t;

inline constexpr std::size_t CC_MD5_DIGEST_LENGTH = 16;

/// Writes the MD5 digest (RFC 1321) of the bytes to `digest`, which has room for CC_MD5_DIGEST_LENGTH bytes,
/// and returns `digest`. `data` may be null when the length is 0.
unsigned char* CC_MD5(const void* data, CC_LONG length, unsigned char* digest);

} // namespace brimsound
