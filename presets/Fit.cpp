#include "presets/Fit.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"
#include "presets/Curve.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>

namespace brimsound::presets {

namespace {

using audio::bandCount;
using audio::BandGains;
using Eigen::MatrixXd;
using Eigen::VectorXd;

using Bands = Eigen::Matrix<double, bandCount, 1>;
using BandMatrix = Eigen::Matrix<double, bandCount, bandCount>;

/// The response of the equalizer's filters at some frequencies.
class Cascade {
public:
    Cascade(const audio::FilterTargets& targets, std::span<const double> frequencies)
        : _targets(targets)
        , _detunings(static_cast<Eigen::Index>(frequencies.size()), bandCount)
    {
        for (std::size_t i = 0; i < frequencies.size(); ++i) {
            for (std::size_t band = 0; band < bandCount; ++band)
                _detunings(row(i), row(band))
                    = audio::detuning(frequencies[i], targets.rate, targets.tangents[band]);
        }
    }

    /// In dB, and its derivatives by the filters' gains.
    void evaluate(const Bands& gains, VectorXd& response, MatrixXd& slopes) const
    {
        const auto count = _detunings.rows();
        response = VectorXd::Ones(count);
        slopes.resize(count, bandCount);
        for (Eigen::Index band = 0; band < _detunings.cols(); ++band) {
            const double amplitude = audio::amplitude(gains(band));
            const double inverseQ = _targets.inverseQ[static_cast<std::size_t>(band)];
            for (Eigen::Index i = 0; i < count; ++i) {
                const auto bell = audio::bellResponse(_detunings(i, band), amplitude, inverseQ);
                response(i) *= bell.power;
                slopes(i, band) = bell.slope;
            }
        }
        response = 10 * response.array().log10();
    }

private:
    static Eigen::Index row(std::size_t i) { return static_cast<Eigen::Index>(i); }

    const audio::FilterTargets& _targets;
    MatrixXd _detunings;
};

std::vector<double> frequenciesOf(std::span<const TargetPoint> points)
{
    std::vector<double> frequencies;
    for (const auto& point : points)
        frequencies.push_back(point.frequency);
    return frequencies;
}

/// The minimum of x' matrix x / 2 - right' x for lowest <= x <= highest, by coordinate descent unless the
/// minimum without these limits is within them. The matrix is positive definite.
Bands minimize(const BandMatrix& matrix, const Bands& right, const Bands& lowest, const Bands& highest)
{
    constexpr int mostSweeps = 2000;
    constexpr double precision = 1e-7;
    Bands x = matrix.ldlt().solve(right);
    if ((x.array() >= lowest.array()).all() && (x.array() <= highest.array()).all())
        return x;
    x = x.cwiseMax(lowest).cwiseMin(highest).eval();
    for (int sweep = 0; sweep < mostSweeps; ++sweep) {
        double change = 0;
        for (Eigen::Index i = 0; i < x.size(); ++i) {
            const double wanted = x(i) + (right(i) - matrix.row(i).dot(x)) / matrix(i, i);
            const double next = std::clamp(wanted, lowest(i), highest(i));
            change = std::max(change, std::abs(next - x(i)));
            x(i) = next;
        }
        if (change < precision)
            break;
    }
    return x;
}

/// Gauss-Newton. The unknowns are the filters' gains, because their effect has exact derivatives. The sliders
/// are the response at the centers, which gives the derivatives by the sliders and their limits.
class Fitting {
public:
    Fitting(std::span<const TargetPoint> points, Level level, const audio::FilterTargets& start)
        : _level(level)
        , _atPoints(start, frequenciesOf(points))
        , _atCenters(start, audio::centers)
        , _wanted(static_cast<Eigen::Index>(points.size()))
        , _weights(static_cast<Eigen::Index>(points.size()))
        , _filters(Bands::Map(start.gains.data()))
    {
        Eigen::Index i = 0;
        for (const auto& point : points) {
            _wanted(i) = point.gain;
            _weights(i++) = point.weight;
        }
        _weights /= _weights.sum();
        evaluate();
    }

    BandGains run()
    {
        constexpr int mostSteps = 40;
        for (int i = 0; i < mostSteps && step(); ++i) { }
        BandGains sliders {};
        Bands::Map(sliders.data()) = _sliders.cwiseMax(-audio::sliderLimit).cwiseMin(audio::sliderLimit);
        return sliders;
    }

private:
    /// Returns false at the minimum.
    bool step()
    {
        // Keeps the matrix positive definite and is too small to move the minimum.
        constexpr double damping = 1e-9;
        constexpr double enough = 1e-5;
        constexpr double smallestPart = 0.01;
        const BandMatrix toFilters = _slopesAtCenters.inverse();
        const MatrixXd slopes = centered(_slopesAtPoints * toFilters);
        BandMatrix matrix = slopes.transpose() * _weights.asDiagonal() * slopes;
        matrix.diagonal().array() += damping;
        const Bands right = slopes.transpose() * _weights.asDiagonal() * _missing;
        const Bands change = minimize(matrix, right, (-audio::sliderLimit - _sliders.array()).matrix(),
            (audio::sliderLimit - _sliders.array()).matrix());

        const Bands before = _filters;
        const double errorBefore = _error;
        double part = 1;
        while (part > smallestPart) {
            _filters = before + part * (toFilters * change);
            evaluate();
            if (_error < errorBefore)
                return change.cwiseAbs().maxCoeff() > enough;
            part /= 2;
        }
        _filters = before;
        evaluate();
        return false;
    }

    void evaluate()
    {
        VectorXd response;
        MatrixXd slopes;
        _atCenters.evaluate(_filters, response, slopes);
        _sliders = response;
        _slopesAtCenters = slopes;
        _atPoints.evaluate(_filters, response, _slopesAtPoints);
        _missing = centered(_wanted - response);
        _error = _missing.cwiseAbs2().dot(_weights);
    }

    /// When the level is free, without the mean of each column: this is where the best level leaves it.
    MatrixXd centered(MatrixXd columns) const
    {
        if (_level == Level::IsFree)
            columns.rowwise() -= (_weights.transpose() * columns).eval();
        return columns;
    }

    Level _level;
    Cascade _atPoints;
    Cascade _atCenters;
    VectorXd _wanted;
    VectorXd _weights;

    Bands _filters;
    Bands _sliders;
    BandMatrix _slopesAtCenters;
    MatrixXd _slopesAtPoints;
    VectorXd _missing;
    double _error = 0;
};

const audio::EqualizerDesign& design()
{
    static const audio::EqualizerDesign forComparison(comparisonRate);
    return forComparison;
}

} // namespace

BandGains sampleAtCenters(std::span<const TargetPoint> points)
{
    Curve curve;
    for (const auto& point : points)
        curve.push_back({ point.frequency, point.gain });
    BandGains sliders {};
    for (std::size_t band = 0; band < bandCount; ++band)
        sliders[band]
            = std::clamp(gainAt(curve, audio::centers[band]), -audio::sliderLimit, audio::sliderLimit);
    return sliders;
}

BandGains fit(std::span<const TargetPoint> points, Level level)
{
    const auto start = design().solve(sampleAtCenters(points), 0);
    return Fitting(points, level, start).run();
}

Difference compare(std::span<const TargetPoint> points, Level level, const BandGains& sliders)
{
    const auto targets = design().solve(sliders, 0);
    // What is wanted beyond what is heard.
    std::vector<TargetPoint> missing;
    double sum = 0;
    double weights = 0;
    for (auto point : points) {
        if (!point.isReported())
            continue;
        point.gain -= audio::responseAt(targets, point.frequency);
        sum += point.weight * point.gain;
        weights += point.weight;
        missing.push_back(point);
    }
    const double shift = level == Level::IsFree && weights > 0 ? sum / weights : 0;
    Difference difference;
    double squares = 0;
    for (const auto& point : missing) {
        const double error = point.gain - shift;
        squares += point.weight * error * error;
        if (std::abs(error) > difference.largest) {
            difference.largest = std::abs(error);
            difference.frequency = point.frequency;
        }
    }
    difference.rms = weights > 0 ? std::sqrt(squares / weights) : 0;
    return difference;
}

} // namespace brimsound::presets
