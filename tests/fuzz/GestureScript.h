// What is tried on the bytes of a gesture script.
#pragma once

#include <string_view>

namespace brimsound::tests {

/// Takes each line apart and each of its words as a number and an index. Throws std::logic_error when a word
/// in quotes does not come out as it went in, or a number is out of its range.
void tryGestureScript(std::string_view script);

} // namespace brimsound::tests
