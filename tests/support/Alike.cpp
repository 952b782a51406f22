#include "tests/support/Alike.h"

#include <algorithm>
#include <cmath>

namespace brimsound::tests {

namespace {

bool areAlikeNumbers(double one, double other)
{
    return one == other || (std::isnan(one) && std::isnan(other));
}

bool areAlikeElements(const PropertyList::Array& one, const PropertyList::Array& other)
{
    return std::ranges::equal(one, other, areAlike);
}

} // namespace

bool areAlike(const PropertyList& one, const PropertyList& other)
{
    if (one.asReal() && other.asReal())
        return one.isSingleReal() == other.isSingleReal() && areAlikeNumbers(*one.asReal(), *other.asReal());
    if (one.asDate() && other.asDate())
        return areAlikeNumbers(
            one.asDate()->secondsSinceReferenceDate, other.asDate()->secondsSinceReferenceDate);
    if (one.asArray() && other.asArray())
        return areAlikeElements(*one.asArray(), *other.asArray());
    if (one.asSet() && other.asSet())
        return areAlikeElements(one.asSet()->elements, other.asSet()->elements);
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
