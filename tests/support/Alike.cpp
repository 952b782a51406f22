#include "tests/support/Alike.h"

#include <algorithm>
#include <cmath>

namespace brimsound::tests {

bool areAlike(const PropertyList& one, const PropertyList& other)
{
    if (one.asReal() && other.asReal() && std::isnan(*one.asReal()))
        return std::isnan(*other.asReal());
    if (one.asDate() && other.asDate()) {
        const auto distance
            = one.asDate()->secondsSinceReferenceDate - other.asDate()->secondsSinceReferenceDate;
        return std::abs(distance) < 2e-6;
    }
    if (one.asArray() && other.asArray())
        return std::ranges::equal(*one.asArray(), *other.asArray(), areAlike);
    if (one.asDictionary() && other.asDictionary()) {
        const auto& entries = *other.asDictionary();
        return one.asDictionary()->size() == entries.size()
            && std::ranges::all_of(*one.asDictionary(), [&](const auto& entry) {
                   const auto* value = entries.find(entry.key);
                   return value && areAlike(entry.value, *value);
               });
    }
    return one == other;
}

} // namespace brimsound::tests
