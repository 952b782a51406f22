// The system log, as far as the trace sees it.
#include "tests/ios/doubles/Trace.h"

#import <Foundation/Foundation.h>

#include <cstdarg>
#include <string>

/// Takes the library's place, whose lines bear the time and the process.
void NSLog(NSString* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    NSString* line = [[NSString alloc] initWithFormat:format arguments:arguments];
    va_end(arguments);
    brimsound::doubles::record(std::string("log ") + [line UTF8String]);
    [line release];
}
