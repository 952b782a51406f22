// What sliders do to each frequency, as a picture.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// The response to ten sliders, in dB: as it is, and as it would be if each slider's gain were that of one
/// filter. At 48 kHz, drawn with `scale` device pixels a point.
QImage responseChart(const QString& name, const audio::BandGains& sliders, double scale);

} // namespace brimsound::desktop
