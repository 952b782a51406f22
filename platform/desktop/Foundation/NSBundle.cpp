#include "platform/Foundation/NSBundle.h"

#include "platform/Foundation/NSLocale.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/Foundation/Localizations.h"

#include <vector>

namespace brimsound {

namespace {

// "" is the bundle's own folder, which has the resources that are not localized.
std::vector<std::string> resourceFolders()
{
    std::vector<std::string> folders;
    for (const auto& localization : desktop::localizationsFor(preferredLanguages()))
        folders.emplace_back("/" + localization + ".lproj");
    folders.emplace_back("/en.lproj");
    folders.emplace_back("");
    return folders;
}

} // namespace

NSBundle NSBundle::bundleForClass(std::string_view)
{
    // On the desktop all classes are linked into the program, so every class belongs to this bundle.
    return NSBundle("/Library/PreferenceBundles/BrimsoundSettings.bundle");
}

NSBundle::NSBundle(std::string path)
    : _path(std::move(path))
{
}

std::optional<std::string> NSBundle::pathForResource(std::string_view name, std::string_view type) const
{
    std::string fileName(name);
    if (!type.empty())
        fileName.append(".").append(type);

    for (const auto& folder : resourceFolders()) {
        auto path = _path + folder + "/" + fileName;
        std::error_code ignored;
        if (std::filesystem::exists(desktop::resolveDevicePath(path), ignored))
            return path;
    }
    return std::nullopt;
}

std::string NSBundle::localizedStringForKey(
    std::string_view key, std::string_view value, std::string_view table) const
{
    if (const auto path = pathForResource(table, "strings")) {
        const auto strings = readPropertyListFile(*path);
        const auto* texts = strings ? strings->asDictionary() : nullptr;
        if (const auto* text = texts ? stringForKey(*texts, key) : nullptr)
            return *text;
    }
    return std::string(value);
}

} // namespace brimsound
