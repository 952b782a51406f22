#include "platform/CoreFoundation/CFBase.h"

namespace brimsound {

// iOS 7.0 and later.
double kCFCoreFoundationVersionNumber = 847.20;

} // namespace brimsound
