// Names that the settings pane shares with the equalizer engine.
#pragma once

namespace brimsound {

/// The preferences file, a binary property list (device path).
inline constexpr auto preferencesPath = "/var/mobile/Library/Preferences/com.quorvix.brimsound.plist";

// Keys of the preferences file.
/// Ten band gains in dB, from 60 Hz up.
inline constexpr auto peakingEqValuesKey = "PEAKING_EQ_VALUES";
/// The preamp in dB.
inline constexpr auto preampKey = "PREAMP";
/// Preset names, each with ten band gains in dB.
inline constexpr auto presetsKey = "PRESETS";
/// The name of the preset last chosen or saved.
inline constexpr auto selectedPresetKey = "SELECTED_PRESET";
/// Whether the equalizer is on; on when absent.
inline constexpr auto enabledKey = "ENABLED";
/// Whether the equalizer is in the Control Center; on when absent.
inline constexpr auto enabledCCKey = "ENABLED_CC";
/// Whether the preamp follows the highest band; on when absent.
inline constexpr auto autoPreampKey = "AUTO_PREAMP";

/// Two flags that only the engine uses; off when absent.
inline constexpr auto filterDisabledKey = "FILTER_DISABLED";
inline constexpr auto checkingDisabledKey = "CHECKING_DISABLED";

/// The messaging center that the engine provides in the media server.
inline constexpr auto messagingCenterName = "com.quorvix.brimsound";
/// The message with the live gains …
inline constexpr auto equalizerSendMessage = "equalizer_send";
/// … and its one key: eleven values in dB, the preamp first, then the bands from 60 Hz up.
inline constexpr auto valsKey = "vals";

/// Darwin notification: the gains or presets in the file changed.
inline constexpr auto settingsFinishedNotification = "com.quorvix.brimsound.settingsfinishnotify";
/// Darwin notification: one of the engine's flags in the file changed.
inline constexpr auto settingsChangedNotification = "LMAO_BRIMSOUND_SETTINGS_CHANGED";

} // namespace brimsound
