#include "benchmarks/Picture.h"
#include "platform/CommonCrypto/CommonDigest.h"
#include "settings/UIImage+Equalizer.h"

#include <openssl/evp.h>

#include <array>
#include <cstring>

namespace brimsound::bench {

namespace {

using Digest = std::array<unsigned char, CC_MD5_DIGEST_LENGTH>;

void copyPixels(benchmark::State& state)
{
    std::vector<std::uint32_t> copy(pictureFor(state).pixels.size());
    measure(state,
        [&](const Picture& picture) { std::memcpy(copy.data(), picture.pixels.data(), picture.bytes()); });
}

void copyPixelsToFreshMemory(benchmark::State& state)
{
    measure(state, [](const Picture& picture) {
        const auto copy = transparentPixels(picture.pixels.size());
        std::memcpy(copy.get(), picture.pixels.data(), picture.bytes());
    });
}

void opensslMd5OfTheUpperHalf(benchmark::State& state)
{
    Digest digest {};
    measure(state, [&](const Picture& picture) {
        EVP_Digest(picture.pixels.data(), picture.bytes() / 2, digest.data(), nullptr, EVP_md5(), nullptr);
    });
}

void CC_MD5_OfTheUpperHalf(benchmark::State& state)
{
    Digest digest {};
    measure(state, [&](const Picture& picture) {
        CC_MD5(picture.pixels.data(), static_cast<CC_LONG>(picture.bytes() / 2), digest.data());
    });
}

void md5Hash(benchmark::State& state)
{
    measure(state, [](const Picture& picture) { brimsound::md5Hash(*picture.image); });
}

BENCHMARK(copyPixels)->Apply(forEverySize);
BENCHMARK(copyPixelsToFreshMemory)->Apply(forEverySize);
BENCHMARK(opensslMd5OfTheUpperHalf)->Apply(forEverySize);
BENCHMARK(CC_MD5_OfTheUpperHalf)->Apply(forEverySize);
BENCHMARK(md5Hash)->Apply(forEverySize);

} // namespace

} // namespace brimsound::bench
