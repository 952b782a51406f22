// The system log, as far as the trace sees it.
#include "tests/ios/doubles/Trace.h"

#import <Foundation/Foundation.h>

#include <dlfcn.h>

#include <cstdarg>
#include <string>

namespace {

bool isOfThisProgram(const void* code)
{
    Dl_info here {};
    Dl_info there {};
    return dladdr(reinterpret_cast<const void*>(isOfThisProgram), &here) && dladdr(code, &there)
        && here.dli_fbase == there.dli_fbase;
}

} // namespace

/// Takes the library's place, whose lines bear the time and the process. What the library itself has to say
/// goes where it always does.
void NSLog(NSString* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    if (isOfThisProgram(__builtin_return_address(0))) {
        NSString* line = [[NSString alloc] initWithFormat:format arguments:arguments];
        brimsound::doubles::record(std::string("log ") + [line UTF8String]);
        [line release];
    } else {
        NSLogv(format, arguments);
    }
    va_end(arguments);
}
