// Reading and writing property-list files.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string>

namespace brimsound {

/// Format codes as the platform numbers them.
enum class NSPropertyListFormat {
    XMLFormat_v1_0 = 100,
    BinaryFormat_v1_0 = 200,
};

/// Options of dataWithPropertyList. The platform defines none.
using NSPropertyListWriteOptions = unsigned long;

/// Reads a property list of any format from a device path. Every container in it can be changed. Nothing when
/// the file is missing, cannot be read, or is not a property list.
std::optional<PropertyList> readPropertyListFile(const std::string& path);

/// Serializes the value. Nothing when the value is null or contains null.
std::optional<PropertyList::Data> dataWithPropertyList(
    const PropertyList&, NSPropertyListFormat, NSPropertyListWriteOptions);

/// Writes the bytes to a device path, in place. Returns false, without reporting anything, when the file
/// cannot be written. A failed write may have changed part of the file.
bool writeToFile(const PropertyList::Data&, const std::string& path);

} // namespace brimsound
