// Bitmaps as Qt knows them.
#pragma once

#include "platform/desktop/UIKit/Raster.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// On the bitmap's own pixels, which have to outlive it.
QImage qImage(const Bitmap&);

/// Writes the image's pixels as a PNG. False when it has none or the file cannot be written.
bool writePng(const UIImage&, const QString& path);

} // namespace brimsound::desktop
