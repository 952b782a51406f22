#pragma once

#include <string>

namespace brimsound {

/// The machine's model and its system version: "iPhone6,1 on iOS 9.0.2".
std::string get_model();

} // namespace brimsound
