// One fuzzer for each format, and one that recognizes and converts: there, FORMAT is "any".
#include "tests/fuzz/PresetFile.h"

#include <cstddef>
#include <cstdint>

using namespace brimsound;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto format = presets::formatNamed(FORMAT);
    tests::tryPresetFile(bytes, format);
    if (!format)
        tests::tryConversion(bytes);
    return 0;
}
