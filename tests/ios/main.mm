#import <Foundation/Foundation.h>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    testing::InitGoogleMock(&argc, argv);
    const int status = RUN_ALL_TESTS();
    [pool release];
    return status;
}
