#include "platform/CoreFoundation/CFBase.h"

#import <CoreFoundation/CoreFoundation.h>

namespace brimsound {

double kCFCoreFoundationVersionNumber = ::kCFCoreFoundationVersionNumber;

} // namespace brimsound
