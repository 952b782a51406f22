// Pictures of the window.
#pragma once

#include "toolkit/window/Window.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// Lays the window out and draws all of it, with `scale` device pixels a point. Null when that makes more
/// than a hundred million pixels, or more than there is memory for.
QImage pictureOf(toolkit::Window&, double scale);

/// Writes such a picture as a PNG. False when there is none or the file cannot be written.
bool writeSnapshot(toolkit::Window&, double scale, const QString& path);

} // namespace brimsound::desktop
