#include "platform/CoreFoundation/CFBase.h"

namespace brimsound {

// The version of iOS 7.0.
double kCFCoreFoundationVersionNumber = 847.20;

} // namespace brimsound
