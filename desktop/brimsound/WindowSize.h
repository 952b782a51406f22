#pragma once

#include <QSize>

#include <optional>

namespace brimsound::desktop {

/// The size that the user gave the window when the app last ran, in points; nothing at the first time. It is
/// stored in the user's configuration folder, because the preferences file belongs to the equalizer.
std::optional<QSize> storedWindowSize();

/// If it cannot be stored, the next run uses the size that was stored last.
void storeWindowSize(QSize);

} // namespace brimsound::desktop
