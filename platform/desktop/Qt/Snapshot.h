// Pictures of the window.
#pragma once

#include "platform/desktop/UIKit/Window.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// Lays the window out and draws all of it, with `scale` device pixels a point. Null when that makes more
/// than a hundred million pixels, or more than there is memory for.
QImage pictureOf(Window&, double scale);

/// Writes such a picture as a PNG. False when there is none or the file cannot be written.
bool writeSnapshot(Window&, double scale, const QString& path);

} // namespace brimsound::desktop
