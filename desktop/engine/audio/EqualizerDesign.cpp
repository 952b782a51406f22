#include "desktop/engine/audio/EqualizerDesign.h"

#include "desktop/engine/audio/FilterResponse.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace brimsound::audio {

namespace {

constexpr double tolerance = 0.01;
constexpr double largestGain = 30;
constexpr int largestNumberOfRounds = 12;

using Row = std::array<double, bandCount>;
using Matrix = std::array<Row, bandCount>;

// In octaves. Each outermost band has one neighbor, which counts twice.
double bandwidth(std::size_t band)
{
    const double below = band > 0 ? centers[band] / centers[band - 1] : centers[1] / centers[0];
    const double above
        = band + 1 < bandCount ? centers[band + 1] / centers[band] : centers[band] / centers[band - 1];
    const double overlap = centers[band] <= 6000 ? 1.2 : 1;
    return overlap * 0.5 * std::log2(below * above);
}

double inverseQ(std::size_t band, double rate)
{
    const double angle = 2 * std::numbers::pi * centers[band] / rate;
    // Just below half the rate a bell would become wide enough to cover all other bands.
    constexpr double mostWidening = 2.5;
    const double widening = std::min(angle / std::sin(angle), mostWidening);
    return 2 * std::sinh(0.5 * std::numbers::ln2 * bandwidth(band) * widening);
}

double sliderGain(double gain)
{
    return std::isnan(gain) ? 0 : std::clamp(gain, -sliderLimit, sliderLimit);
}

// Solves matrix * x = right by Gaussian elimination with column pivoting. The result is in `right`.
void solveLinear(Matrix& matrix, Row& right, std::size_t size)
{
    for (std::size_t column = 0; column < size; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < size; ++row) {
            if (std::abs(matrix[row][column]) > std::abs(matrix[pivot][column]))
                pivot = row;
        }
        std::swap(matrix[pivot], matrix[column]);
        std::swap(right[pivot], right[column]);
        for (std::size_t row = column + 1; row < size; ++row) {
            const double factor = matrix[row][column] / matrix[column][column];
            for (std::size_t i = column; i < size; ++i)
                matrix[row][i] -= factor * matrix[column][i];
            right[row] -= factor * right[column];
        }
    }
    for (std::size_t row = size; row-- > 0;) {
        for (std::size_t i = row + 1; i < size; ++i)
            right[row] -= matrix[row][i] * right[i];
        right[row] /= matrix[row][row];
    }
}

} // namespace

EqualizerDesign::EqualizerDesign(double rate)
{
    _flat.rate = rate;
    while (_flat.bands < bandCount && centers[_flat.bands] < rate / 2) {
        _flat.tangents[_flat.bands] = std::tan(std::numbers::pi * centers[_flat.bands] / rate);
        _flat.inverseQ[_flat.bands] = inverseQ(_flat.bands, rate);
        ++_flat.bands;
    }
    for (std::size_t center = 0; center < _flat.bands; ++center) {
        for (std::size_t band = 0; band < _flat.bands; ++band)
            _detunings[center][band] = detuning(centers[center], rate, _flat.tangents[band]);
    }
}

FilterTargets EqualizerDesign::solve(const BandGains& sliders, double preamp) const
{
    auto targets = _flat;
    targets.preamp = sliderGain(preamp);
    BandGains wanted {};
    std::transform(sliders.begin(), sliders.begin() + targets.bands, wanted.begin(), sliderGain);
    targets.gains = wanted;

    for (int round = 0; round < largestNumberOfRounds; ++round) {
        std::array<double, bandCount> amplitudes {};
        std::transform(
            targets.gains.begin(), targets.gains.begin() + targets.bands, amplitudes.begin(), amplitude);
        auto missing = wanted;
        Matrix slopes {};
        double worst = 0;
        for (std::size_t center = 0; center < targets.bands; ++center) {
            double power = 1;
            for (std::size_t band = 0; band < targets.bands; ++band) {
                const auto bell
                    = bellResponse(_detunings[center][band], amplitudes[band], targets.inverseQ[band]);
                power *= bell.power;
                slopes[center][band] = bell.slope;
            }
            missing[center] -= 10 * std::log10(power);
            worst = std::max(worst, std::abs(missing[center]));
        }
        if (worst < tolerance)
            break;
        solveLinear(slopes, missing, targets.bands);
        for (std::size_t band = 0; band < targets.bands; ++band)
            targets.gains[band] = std::clamp(targets.gains[band] + missing[band], -largestGain, largestGain);
    }
    return targets;
}

} // namespace brimsound::audio
