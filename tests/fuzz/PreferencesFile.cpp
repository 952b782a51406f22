#include "tests/fuzz/PreferencesFile.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Foundation/PropertyListParsing.h"
#include "settings/tweak.h"
#include "tests/support/Alike.h"

#include <stdexcept>

namespace brimsound::tests {

namespace {

void writeAndReadAgain(const PropertyList& value)
{
    const auto written = dataWithPropertyList(value, NSPropertyListFormat::BinaryFormat_v1_0, 0);
    if (!written)
        throw std::logic_error("what was read cannot be written");
    const auto again = desktop::parsePropertyList(*written);
    if (!again || !areAlike(*again, value))
        throw std::logic_error("what was written reads otherwise");
}

/// Calls every conversion of every value.
float sumOf(const PropertyList& value)
{
    float sum
        = value.floatValue() + (value.boolValue() ? 1.0f : 0.0f) + static_cast<float>(value.integerValue());
    if (const auto* array = value.asArray()) {
        for (const auto& element : *array)
            sum += sumOf(element);
    }
    if (const auto* set = value.asSet()) {
        for (const auto& element : set->elements)
            sum += sumOf(element);
    }
    if (const auto* dictionary = value.asDictionary()) {
        for (const auto& entry : *dictionary)
            sum += sumOf(entry.value);
    }
    return sum;
}

void letGoOfASlider(PropertyList::Dictionary& preferences)
{
    if (auto* gains = arrayForKey(preferences, peakingEqValuesKey)) {
        for (auto& gain : *gains)
            gain = 1.5f;
    }
    preferences.remove(selectedPresetKey);
    preferences.set(preampKey, -1.5f);
}

} // namespace

void tryPreferencesFile(std::span<const std::byte> bytes)
{
    auto file = desktop::parsePropertyList(bytes);
    if (!file)
        return;
    sumOf(*file);
    writeAndReadAgain(*file);
    if (auto* preferences = file->asDictionary()) {
        letGoOfASlider(*preferences);
        writeAndReadAgain(*file);
    }
}

} // namespace brimsound::tests
