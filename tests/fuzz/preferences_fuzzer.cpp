#include "tests/fuzz/PreferencesFile.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    brimsound::tests::tryPreferencesFile(std::as_bytes(std::span(data, size)));
    return 0;
}
