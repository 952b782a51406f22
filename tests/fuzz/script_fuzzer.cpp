#include "tests/fuzz/GestureScript.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    brimsound::tests::tryGestureScript({ reinterpret_cast<const char*>(data), size });
    return 0;
}
