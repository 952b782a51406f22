#pragma once

#import <Foundation/NSObject.h>

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length)
{
    NSRange range = { location, length };
    return range;
}
