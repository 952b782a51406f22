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

/// Options of dataWithPropertyList; there are none to choose from.
using NSPropertyListWriteOptions = unsigned long;

/// Whether a write goes through a temporary file that then takes the old one's place.
enum class Atomically { No, Yes };

/// Reads a property list of any format from a device path, with every container inside it mutable. Nothing
/// when there is no file, when it cannot be read, or when it is not a property list.
std::optional<PropertyList> readPropertyListFile(const std::string& path);

/// Serializes the value. Nothing when it cannot be: when it is, or holds, null.
std::optional<PropertyList::Data> dataWithPropertyList(
    const PropertyList&, NSPropertyListFormat, NSPropertyListWriteOptions);

/// Writes the bytes to a device path. False, with nothing reported, when the file cannot be written; a write
/// that is not atomic may then have changed part of the file.
bool writeToFile(const PropertyList::Data&, const std::string& path, Atomically);

} // namespace brimsound
