#include "platform/ios/Foundation/NativeText.h"

namespace brimsound::ios {

std::string textOf(::NSString* native)
{
    ::NSData* bytes = [native dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    return std::string(static_cast<const char*>([bytes bytes]), [bytes length]);
}

::NSString* nativeText(std::string_view text)
{
    return [[[::NSString alloc] initWithBytes:text.data() length:text.size()
                                     encoding:NSUTF8StringEncoding] autorelease];
}

} // namespace brimsound::ios
