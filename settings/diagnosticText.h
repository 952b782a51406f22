// What an issue report tells of the device.
#pragma once

#include "platform/Foundation/NSData.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound {

/// One line with the device (get_model), the version in parentheses and the first of the preferred languages,
/// if there is one; then the list of packages, if there is one. Of the device and of the language, both
/// UTF-8, as many bytes are taken as they have UTF-16 units, which readers of the report have always been
/// given.
NSData diagnosticText(const std::string& device, const std::vector<std::string>& languages,
    const std::optional<NSData>& packages);

} // namespace brimsound
