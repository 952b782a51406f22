#include "platform/Foundation/PropertyListSerialization.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/PropertyListConversion.h"

namespace brimsound {

namespace {

/// Each value, or reference to a value, takes at least one byte of the file. A larger number of values means
/// that containers are referred to many times; a small file could expand to any size in this way.
std::size_t mostValuesIn(::NSData* file)
{
    return 1024 + 4 * [file length];
}

} // namespace

std::optional<PropertyList> readPropertyListFile(const std::string& path)
{
    ::NSAutoreleasePool* pool = [[::NSAutoreleasePool alloc] init];
    ::NSData* file = [::NSData dataWithContentsOfFile:ios::nativeText(path)];
    id native = file ? [::NSPropertyListSerialization propertyListWithData:file
                                                                   options:NSPropertyListImmutable
                                                                    format:NULL
                                                                     error:NULL]
                     : nil;
    auto value = ios::valueOf(native, mostValuesIn(file));
    [pool release];
    return value;
}

std::optional<PropertyList::Data> dataWithPropertyList(
    const PropertyList& value, NSPropertyListFormat format, NSPropertyListWriteOptions options)
{
    ::NSAutoreleasePool* pool = [[::NSAutoreleasePool alloc] init];
    std::optional<PropertyList::Data> data;
    id native = ios::nativeValue(value);
    const auto nativeFormat = static_cast<::NSPropertyListFormat>(format);
    if (native && [::NSPropertyListSerialization propertyList:native isValidForFormat:nativeFormat]) {
        ::NSData* written = [::NSPropertyListSerialization dataWithPropertyList:native
                                                                         format:nativeFormat
                                                                        options:options
                                                                          error:NULL];
        const auto* bytes = static_cast<const std::byte*>([written bytes]);
        if (written)
            data.emplace(bytes, bytes + [written length]);
    }
    [pool release];
    return data;
}

bool writeToFile(const PropertyList::Data& data, const std::string& path)
{
    ::NSData* native = [::NSData dataWithBytes:data.data() length:data.size()];
    return [native writeToFile:ios::nativeText(path) options:0 error:NULL];
}

} // namespace brimsound
