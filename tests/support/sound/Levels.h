// Levels of recorded sound.
#pragma once

#include "tests/support/sound/Recorder.h"

#include <cstddef>
#include <vector>

namespace brimsound::tests {

/// The root mean square of each complete 10 ms.
std::vector<double> levels(const Samples&);
/// The median of these levels. Single blocks that a busy machine lost do not change it.
double level(const Samples&);
/// The level of the loudest 10 ms.
double loudest(const Samples&);
/// The longest time in seconds with a level below a tenth of `level`.
double longestGap(const Samples&, double level);
/// The amplitude of a frequency in Hz in the whole sound.
double amplitudeAt(const Samples&, double frequency);
/// A linear factor in dB.
double decibels(double factor);

} // namespace brimsound::tests
