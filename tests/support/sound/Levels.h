// How loud captured sound is.
#pragma once

#include "tests/support/sound/Recorder.h"

#include <cstddef>
#include <vector>

namespace brimsound::tests {

/// The root mean square of each full 10 ms.
std::vector<double> levels(const Samples&);
/// The median of those: it is not moved by single blocks that a busy machine lost.
double level(const Samples&);
/// The loudest 10 ms.
double loudest(const Samples&);
/// The longest time in seconds during which less than a tenth of `level` was heard.
double longestGap(const Samples&, double level);
/// The amplitude of one frequency in Hz in the whole.
double amplitudeAt(const Samples&, double frequency);
/// A linear factor in dB.
double decibels(double factor);

} // namespace brimsound::tests
