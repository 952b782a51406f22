#include "platform/Foundation/NSLog.h"

#include "platform/ios/Foundation/NativeText.h"

namespace brimsound {

void NSLog(std::string_view text)
{
    ::NSLog(@"%@", ios::nativeText(text));
}

} // namespace brimsound
