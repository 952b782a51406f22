#include "tests/fuzz/BinaryObjects.h"
#include "tests/fuzz/PreferencesFile.h"
#include "tests/support/RandomPropertyLists.h"

#include <algorithm>
#include <cstdint>
#include <random>

using namespace brimsound::tests;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tryPreferencesFile(std::as_bytes(std::span(data, size)));
    return 0;
}

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t mostBytes);

namespace {

void mutateBytes(std::string& object)
{
    constexpr std::size_t growth = 16;
    const auto size = object.size();
    object.resize(size + growth);
    object.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(object.data()), size, object.size()));
}

std::string randomFile(std::mt19937& random)
{
    return RandomPropertyLists(static_cast<std::uint32_t>(random())).file();
}

/// Changes one object, or adds or removes one.
void mutateObjects(std::vector<std::string>& objects, std::mt19937& random)
{
    const auto any = [&] { return random() % objects.size(); };
    const auto place = any();
    switch (random() % 8) {
    case 0:
        std::swap(objects[place], objects[any()]);
        break;
    case 1:
        objects.push_back(objects[place]);
        break;
    case 2:
        objects[place] = objects[any()];
        break;
    case 3: {
        // An object from another file.
        const auto other = binaryObjectsOf(randomFile(random));
        objects[place] = other->objects[random() % other->objects.size()];
        break;
    }
    default:
        mutateBytes(objects[place]);
    }
}

std::string mutated(std::string_view file, std::mt19937& random)
{
    auto parts = binaryObjectsOf(file);
    if (!parts || parts->objects.empty() || random() % 32 == 0)
        return randomFile(random);
    mutateObjects(parts->objects, random);
    return fileOf(*parts);
}

} // namespace

/// Half of all mutations change arbitrary bytes. The other half changes the objects of a binary file and
/// rebuilds its tables, so that the reader accepts them.
extern "C" std::size_t LLVMFuzzerCustomMutator(
    std::uint8_t* data, std::size_t size, std::size_t mostBytes, unsigned seed)
{
    std::mt19937 random(seed);
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    if (random() % 2 == 0 || !file.starts_with("bplist"))
        return LLVMFuzzerMutate(data, size, mostBytes);
    const auto result = mutated(file, random);
    if (result.size() > mostBytes)
        return LLVMFuzzerMutate(data, size, mostBytes);
    std::ranges::copy(result, data);
    return result.size();
}
