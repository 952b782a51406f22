// Property lists as one line of text, for comparing different readers.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <string>

namespace brimsound::tests {

/// The value with everything in it. Dictionaries keep their order; numbers are printed by value, whatever
/// their size in the file. plist_description.py produces the same text from what Python reads.
std::string descriptionOf(const PropertyList&);
/// The same as libplist returns it, which keeps only the lower 64 bits of an integer.
std::string descriptionForLibplist(const PropertyList&);
/// libplist's result for a file, "unreadable" when it fails. The last of repeated keys counts.
std::string descriptionByLibplist(const std::string& file);

} // namespace brimsound::tests
