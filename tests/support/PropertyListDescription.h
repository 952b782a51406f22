// Property lists as one line of text, the same line whoever has read them.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <string>

namespace brimsound::tests {

/// The value with everything in it, dictionaries in their order; numbers by their value, whatever they take
/// in a file. plist_description.py describes likewise what Python has read.
std::string descriptionOf(const PropertyList&);
/// As libplist has it, which keeps of an integer the lower 64 bits.
std::string descriptionForLibplist(const PropertyList&);
/// What libplist makes of a file, "unreadable" when nothing; of a key that is repeated, the last.
std::string descriptionByLibplist(const std::string& file);

} // namespace brimsound::tests
