// A part of something that is counted.
#pragma once

#import <Foundation/NSObject.h>

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length)
{
    NSRange range = { location, length };
    return range;
}
