#pragma once

#include "platform/Foundation/NSData.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound {

/// The text of an issue report. One line with the device (get_model), the version in parentheses, and the
/// first preferred language if there is one; then the list of packages if there is one. The device and the
/// language, both UTF-8, are cut to as many bytes as they have UTF-16 units. Readers of the reports expect
/// this.
NSData diagnosticText(const std::string& device, const std::vector<std::string>& languages,
    const std::optional<NSData>& packages);

} // namespace brimsound
