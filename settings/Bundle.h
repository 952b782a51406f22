#pragma once

namespace brimsound {

/// The class that the Settings app instantiates. The bundle is found by this name.
inline constexpr auto controllerClassName = "BrimsoundSettingsListController";
/// The name of both the specifier plist and the strings table.
inline constexpr auto resourceName = "BrimsoundSettings";

} // namespace brimsound
