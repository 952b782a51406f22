#include "platform/Foundation/PropertyListSerialization.h"

#include "platform/desktop/Foundation/BinaryPropertyListWriter.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/Foundation/FileContents.h"
#include "platform/desktop/Foundation/PropertyListBudget.h"
#include "platform/desktop/Foundation/PropertyListParsing.h"
#include "platform/desktop/Foundation/XmlPropertyListWriter.h"
#include "platform/desktop/effects/Effects.h"

namespace brimsound {

std::optional<PropertyList> readPropertyListFile(const std::string& path)
{
    const auto contents
        = desktop::readRegularFile(desktop::resolveDevicePath(path), desktop::longestPropertyListFile);
    return contents ? desktop::parsePropertyList(*contents) : std::nullopt;
}

std::optional<PropertyList::Data> dataWithPropertyList(
    const PropertyList& value, NSPropertyListFormat format, NSPropertyListWriteOptions)
{
    return format == NSPropertyListFormat::BinaryFormat_v1_0 ? desktop::writeBinaryPropertyList(value)
                                                             : desktop::writeXmlPropertyList(value);
}

bool writeToFile(const PropertyList::Data& data, const std::string& path)
{
    const bool written = desktop::overwriteFile(desktop::resolveDevicePath(path), data);
    if (written)
        desktop::effects().fileWritten(path);
    return written;
}

} // namespace brimsound
