#include "platform/ios/Foundation/JailbreakRoot.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Preferences/BRListController.h"

namespace brimsound::ios {

std::string rootOf(std::string_view bundlePath)
{
    const auto end = bundlePath.rfind("/Library/PreferenceBundles/");
    return std::string(end == std::string_view::npos ? std::string_view() : bundlePath.substr(0, end));
}

std::string jailbreakRoot()
{
    return rootOf(textOf([[::NSBundle bundleForClass:[BRListController class]] bundlePath]));
}

std::string devicePath(const std::string& path)
{
    return path.starts_with("/Library/") ? jailbreakRoot() + path : path;
}

} // namespace brimsound::ios
