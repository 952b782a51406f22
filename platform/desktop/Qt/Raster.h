// Conversions between bitmaps and Qt images.
#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/desktop/UIKit/Raster.h"
#include "toolkit/drawing/Canvas.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// An image on these pixels, which must outlive it.
QImage qImage(const toolkit::Pixels&);

/// Writes the image's pixels as a PNG. False when it has none or the file cannot be written.
bool writePng(const UIImage&, const QString& path);

} // namespace brimsound::desktop
