// A picture of the frequency response.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <QImage>
#include <QString>

namespace brimsound::desktop {

/// The response for ten sliders, in dB: the actual one, and the one if each slider's gain were used for one
/// filter. At 48 kHz, drawn with `scale` device pixels per point.
QImage responseChart(const QString& name, const audio::BandGains& sliders, double scale);

} // namespace brimsound::desktop
