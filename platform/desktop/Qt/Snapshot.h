#pragma once

#include "toolkit/window/Window.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// Lays out the window and draws all of it, with `scale` device pixels per point. Null for more than a
/// hundred million pixels, and without enough memory.
QImage pictureOf(toolkit::Window&, double scale);

/// Writes such a picture as a PNG. False when there is none or the file cannot be written.
bool writeSnapshot(toolkit::Window&, double scale, const QString& path);

} // namespace brimsound::desktop
