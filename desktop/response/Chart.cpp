#include "desktop/response/Chart.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace brimsound::desktop {

namespace {

constexpr double rate = 48000;
constexpr QSizeF size(860, 460);
constexpr QRectF plot(72, 84, 754, 334);
constexpr double lowest = 20;
constexpr double highest = 20000;
constexpr double decibelsPerLine = 3;

const QColor paper(0xff, 0xff, 0xff);
const QColor ink(0x22, 0x2b, 0x38);
const QColor quiet(0x78, 0x82, 0x90);
const QColor grid(0xe9, 0xec, 0xf0);
const QColor zeroLine(0xc3, 0xca, 0xd3);
const QColor ours(0x1f, 0x6f, 0xd0);
const QColor plain(0xd9, 0x8a, 0x55);

struct Mark {
    double frequency;
    const char* name;
};

constexpr std::array<Mark, 10> marks { { { 20, "20 Hz" }, { 50, "50" }, { 100, "100" }, { 200, "200" },
    { 500, "500" }, { 1000, "1k" }, { 2000, "2k" }, { 5000, "5k" }, { 10000, "10k" }, { 20000, "20 kHz" } } };

// The number of points of each curve.
constexpr int points = 1500;

double frequencyOf(int point)
{
    return lowest * std::pow(highest / lowest, static_cast<double>(point) / points);
}

QFont font(double pixels, QFont::Weight weight = QFont::Normal)
{
    QFont font("Inter");
    font.setPixelSize(static_cast<int>(pixels));
    font.setWeight(weight);
    return font;
}

// The bell filters of the Audio EQ Cookbook with the sliders' own gains and the usual Q of graphic equalizers
// with bands one octave apart.
audio::FilterTargets plainFilters(const audio::BandGains& sliders)
{
    auto targets = audio::EqualizerDesign(rate).solve({}, 0);
    targets.gains = sliders;
    targets.inverseQ.fill(1 / 1.41);
    return targets;
}

class Chart {
public:
    Chart(QPainter& painter, const audio::BandGains& sliders)
        : _painter(painter)
        , _sliders(sliders)
        , _ours(audio::EqualizerDesign(rate).solve(sliders, 0))
        , _plain(plainFilters(sliders))
    {
        for (int point = 0; point <= points; ++point) {
            const double frequency = frequencyOf(point);
            for (const auto& targets : { _ours, _plain }) {
                const double gain = audio::responseAt(targets, frequency);
                _bottom = std::min(_bottom, gain);
                _top = std::max(_top, gain);
            }
        }
        _bottom = decibelsPerLine * std::floor(_bottom / decibelsPerLine);
        _top = decibelsPerLine * std::ceil(_top / decibelsPerLine);
    }

    void draw(const QString& name)
    {
        drawGrid();
        drawCurve(_plain, plain, 2);
        drawCurve(_ours, ours, 2.5);
        drawSliders();
        drawTitle(name);
        drawLabels();
    }

private:
    QPointF at(double frequency, double gain) const
    {
        const double share = std::log(frequency / lowest) / std::log(highest / lowest);
        return { plot.left() + share * plot.width(),
            plot.bottom() - (gain - _bottom) / (_top - _bottom) * plot.height() };
    }

    void text(const QPointF& anchor, Qt::Alignment alignment, const QString& text, const QColor& color,
        const QFont& font)
    {
        constexpr double room = 800;
        QRectF box(anchor.x(), anchor.y() - room, room, 2 * room);
        if (alignment & Qt::AlignRight)
            box.translate(-room, 0);
        if (alignment & Qt::AlignHCenter)
            box.translate(-room / 2, 0);
        _painter.setFont(font);
        _painter.setPen(color);
        _painter.drawText(box, static_cast<int>(alignment | Qt::AlignVCenter), text);
    }

    void drawGrid()
    {
        const int lines = static_cast<int>((_top - _bottom) / decibelsPerLine);
        for (int line = 0; line <= lines; ++line) {
            const double gain = _bottom + line * decibelsPerLine;
            _painter.setPen(QPen(gain == 0 ? zeroLine : grid, gain == 0 ? 1.5 : 1));
            _painter.drawLine(at(lowest, gain), at(highest, gain));
            const auto sign = gain > 0 ? "+" : gain < 0 ? "\u2212" : "";
            text(at(lowest, gain) - QPointF(10, 0), Qt::AlignRight,
                QString::fromUtf8(sign) + QString::number(std::abs(gain)) + (gain == _top ? " dB" : ""),
                quiet, font(12));
        }
        for (const auto& mark : marks) {
            _painter.setPen(QPen(grid, 1));
            _painter.drawLine(at(mark.frequency, _bottom), at(mark.frequency, _top));
            text(at(mark.frequency, _bottom) + QPointF(0, 17), Qt::AlignHCenter, mark.name, quiet, font(12));
        }
    }

    void drawCurve(const audio::FilterTargets& targets, const QColor& color, double width)
    {
        QPainterPath path(at(lowest, audio::responseAt(targets, lowest)));
        for (int point = 0; point <= points; ++point) {
            const double frequency = frequencyOf(point);
            path.lineTo(at(frequency, audio::responseAt(targets, frequency)));
        }
        _painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        _painter.setBrush(Qt::NoBrush);
        _painter.drawPath(path);
    }

    void drawSliders()
    {
        _painter.setPen(QPen(paper, 2));
        _painter.setBrush(ink);
        for (std::size_t band = 0; band < audio::bandCount; ++band)
            _painter.drawEllipse(at(audio::centers[band], _sliders[band]), 5.5, 5.5);
    }

    void drawTitle(const QString& name)
    {
        text({ 24, 28 }, Qt::AlignLeft, name, ink, font(18, QFont::DemiBold));
        text({ 24, 51 }, Qt::AlignLeft, "Gain at each frequency, at a rate of 48 kHz", quiet, font(13));
    }

    void drawLabels()
    {
        // Next to the curves, where they are farthest apart.
        double widest = lowest;
        for (int point = 0; point <= points; ++point) {
            if (distance(frequencyOf(point)) > distance(widest))
                widest = frequencyOf(point);
        }
        text(at(widest, audio::responseAt(_plain, widest)) - QPointF(14, 4), Qt::AlignRight,
            "The same gains as plain filters, Q 1.41", plain.darker(115), font(13, QFont::Medium));
        const auto band = static_cast<std::size_t>(std::ranges::min_element(_sliders) - _sliders.begin());
        const auto dot = at(audio::centers[band], _sliders[band]);
        text(dot + QPointF(0, 24), Qt::AlignHCenter, "Slider positions", ink, font(13, QFont::Medium));
        const double frequency = 2 * audio::centers[band];
        text(at(frequency, audio::responseAt(_ours, frequency)) + QPointF(16, 6), Qt::AlignLeft, "Brimsound",
            ours, font(13, QFont::DemiBold));
    }

    double distance(double frequency) const
    {
        return std::abs(audio::responseAt(_plain, frequency) - audio::responseAt(_ours, frequency));
    }

    QPainter& _painter;
    const audio::BandGains& _sliders;
    audio::FilterTargets _ours;
    audio::FilterTargets _plain;
    // The lower limit of the plot, in dB.
    double _bottom = -6;
    double _top = 6;
};

} // namespace

QImage responseChart(const QString& name, const audio::BandGains& sliders, double scale)
{
    QImage image((size * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(paper);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Chart(painter, sliders).draw(name);
    return image;
}

} // namespace brimsound::desktop
