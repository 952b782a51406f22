#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string>
#include <string_view>

namespace brimsound {

/// A folder of code and resources, identified by its device path. A value: copies refer to the same folder.
class NSBundle {
public:
    /// The bundle that contains the class of that name; the main bundle when no such class is loaded.
    static NSBundle bundleForClass(std::string_view className);

    explicit NSBundle(std::string path);

    const std::string& bundlePath() const { return _path; }

    /// The device path of a resource. A localized resource comes from the user's most preferred language that
    /// has it. Nothing when the bundle does not contain it.
    std::optional<std::string> pathForResource(std::string_view name, std::string_view type) const;

    /// The text for the key in a strings table, in the user's most preferred language that the bundle has;
    /// `value` when the table or the key is missing.
    std::string localizedStringForKey(
        std::string_view key, std::string_view value, std::string_view table) const;

private:
    std::string _path;
};

} // namespace brimsound
