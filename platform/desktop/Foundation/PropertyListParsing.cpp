#include "platform/desktop/Foundation/PropertyListParsing.h"

#include "platform/desktop/Foundation/BinaryPropertyListReader.h"
#include "platform/desktop/Foundation/XmlPropertyListReader.h"

namespace brimsound::desktop {

std::optional<PropertyList> parsePropertyList(std::span<const std::byte> contents)
{
    if (isBinaryPropertyList(contents))
        return readBinaryPropertyList(contents);
    return readXmlPropertyList({ reinterpret_cast<const char*>(contents.data()), contents.size() });
}

} // namespace brimsound::desktop
