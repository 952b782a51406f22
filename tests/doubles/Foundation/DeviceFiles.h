// The device's files, in a folder of the test.
#pragma once

#include <string>

namespace brimsound::doubles {

/// From now on, paths below /var/mobile and /Library refer to that folder. Opening one of these files for
/// writing is traced as "write PATH". An empty folder restores the machine's files.
void setDeviceRoot(const std::string& folder);

} // namespace brimsound::doubles
