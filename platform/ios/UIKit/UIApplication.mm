#include "platform/UIKit/UIApplication.h"

#include "platform/ios/Foundation/NativeText.h"

#import <UIKit/UIKit.h>

namespace brimsound {

namespace {

/// Nil for an invalid URL.
::NSURL* nativeURL(const std::string& url)
{
    ::NSString* text = ios::nativeText(url);
    return text ? [::NSURL URLWithString:text] : nil;
}

} // namespace

UIApplication& UIApplication::sharedApplication()
{
    static UIApplication application;
    return application;
}

bool UIApplication::canOpenURL(const std::string& url) const
{
    ::NSURL* native = nativeURL(url);
    return native && [[::UIApplication sharedApplication] canOpenURL:native];
}

bool UIApplication::openURL(const std::string& url)
{
    ::NSURL* native = nativeURL(url);
    return native && [[::UIApplication sharedApplication] openURL:native];
}

} // namespace brimsound
