// The fuzz test for the bytes of a gesture script.
#pragma once

#include <string_view>

namespace brimsound::tests {

/// Splits each line into words and converts each word to a number and an index. Throws std::logic_error when
/// a quoted word changes, or when a number is outside its range.
void tryGestureScript(std::string_view script);

} // namespace brimsound::tests
