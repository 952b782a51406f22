// The bundle's run-time names.
#pragma once

namespace brimsound {

/// The class that the Settings app instantiates, by which the bundle is found.
inline constexpr auto controllerClassName = "BrimsoundSettingsListController";
/// The name of both the specifier plist and the strings table.
inline constexpr auto resourceName = "BrimsoundSettings";

} // namespace brimsound
