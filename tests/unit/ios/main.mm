#import <Foundation/Foundation.h>

#include <gmock/gmock.h>

// Disables AddressSanitizer's leak check: the runtime never frees its data about classes.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0";
}

int main(int argc, char** argv)
{
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    testing::InitGoogleMock(&argc, argv);
    const int status = RUN_ALL_TESTS();
    [pool release];
    return status;
}
