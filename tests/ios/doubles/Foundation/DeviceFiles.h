// The device's files, in a folder of a test's own.
#pragma once

#include <string>

namespace brimsound::doubles {

/// From now on the files below /var/mobile and /Library are those of that folder, and whoever opens one of
/// them to write is traced: "write PATH". Empty: they are the machine's.
void setDeviceRoot(const std::string& folder);

} // namespace brimsound::doubles
