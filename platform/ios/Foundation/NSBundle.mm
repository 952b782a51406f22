#include "platform/Foundation/NSBundle.h"

#include "platform/ios/Foundation/NativeText.h"

namespace brimsound {

using ios::nativeText;
using ios::textOf;

NSBundle NSBundle::bundleForClass(std::string_view className)
{
    Class native = NSClassFromString(nativeText(className));
    return NSBundle(
        textOf([native ? [::NSBundle bundleForClass:native] : [::NSBundle mainBundle] bundlePath]));
}

NSBundle::NSBundle(std::string path)
    : _path(std::move(path))
{
}

std::optional<std::string> NSBundle::pathForResource(std::string_view name, std::string_view type) const
{
    ::NSBundle* bundle = [::NSBundle bundleWithPath:nativeText(_path)];
    ::NSString* path = [bundle pathForResource:nativeText(name) ofType:nativeText(type)];
    return path ? std::optional(textOf(path)) : std::nullopt;
}

std::string NSBundle::localizedStringForKey(
    std::string_view key, std::string_view value, std::string_view table) const
{
    ::NSBundle* bundle = [::NSBundle bundleWithPath:nativeText(_path)];
    return bundle ? textOf([bundle localizedStringForKey:nativeText(key)
                                                   value:nativeText(value)
                                                   table:nativeText(table)])
                  : std::string(value);
}

} // namespace brimsound
