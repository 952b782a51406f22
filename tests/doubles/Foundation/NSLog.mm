// Records the lines of the system log in the trace.
#include "tests/doubles/Trace.h"

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

/// Replaces the library's function, which adds the time and the process. Messages of the library itself are
/// not affected.
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
