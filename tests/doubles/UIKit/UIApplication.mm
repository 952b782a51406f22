#include "tests/doubles/Doubles.h"
#include "tests/doubles/Trace.h"
#include "tests/doubles/UIKit/App.h"

namespace {

/// Retained, in lower case.
NSArray* schemesThatOpen = nil;

} // namespace

@implementation UIApplication

+ (UIApplication*)sharedApplication
{
    static UIApplication* const application = [[UIApplication alloc] init];
    return application;
}

- (UIWindow*)keyWindow
{
    return brimsound::doubles::keyWindow();
}

- (BOOL)canOpenURL:(NSURL*)url
{
    NSString* const scheme = [[url scheme] lowercaseString];
    return scheme && [schemesThatOpen containsObject:scheme];
}

- (BOOL)openURL:(NSURL*)url
{
    // What it was asked for, whatever comes of it.
    brimsound::doubles::record(std::string("url ") + [[url absoluteString] UTF8String]);
    return [self canOpenURL:url];
}

@end

namespace brimsound::doubles {

void setSchemesThatOpen(NSArray* schemes)
{
    NSArray* const former = schemesThatOpen;
    schemesThatOpen = [schemes copy];
    [former release];
}

void resetUIKit()
{
    resetAnimations();
    dismissAlerts();
    setSchemesThatOpen(nil);
}

} // namespace brimsound::doubles
