#include "platform/Foundation/NSString.h"

#include "platform/ios/Foundation/NativeText.h"

namespace brimsound {

std::string stringWithFormat(const char* format, double number)
{
    return ios::textOf([::NSString stringWithFormat:ios::nativeText(format), number]);
}

} // namespace brimsound
