#include "tests/doubles/Foundation/InstalledBundle.h"

#import "tests/doubles/objc/replaceMethod.h"

#import <Foundation/Foundation.h>

namespace {

using BundlePath = NSString* (*)(id, SEL);

BundlePath originalBundlePath = nullptr;

/// Retained; nil when the path is not replaced.
NSString* installedPath = nil;

NSString* bundlePath(id bundle, SEL selector)
{
    const bool isReplaced = installedPath && bundle == [NSBundle mainBundle];
    return isReplaced ? installedPath : originalBundlePath(bundle, selector);
}

} // namespace

@interface InstalledBundle : NSObject
@end

@implementation InstalledBundle

+ (void)load
{
    const Method method = class_getInstanceMethod([NSBundle class], @selector(bundlePath));
    originalBundlePath = brimsound::doubles::replaceMethod(method, bundlePath);
}

@end

namespace brimsound::doubles {

void setBundlePath(const std::string& path)
{
    [installedPath release];
    installedPath = path.empty() ? nil : [[NSString alloc] initWithUTF8String:path.c_str()];
}

} // namespace brimsound::doubles
