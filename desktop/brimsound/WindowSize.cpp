#include "desktop/brimsound/WindowSize.h"

#include <QSettings>

namespace brimsound::desktop {

namespace {

constexpr auto sizeKey = "size";

/// ~/.config/brimsound/window.ini
QSettings windowSettings()
{
    return { QSettings::IniFormat, QSettings::UserScope, "brimsound", "window" };
}

} // namespace

std::optional<QSize> storedWindowSize()
{
    const auto size = windowSettings().value(sizeKey).toSize();
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

void storeWindowSize(QSize size)
{
    windowSettings().setValue(sizeKey, size);
}

} // namespace brimsound::desktop
