#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"
#include "tests/support/Images.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;

double multiply(double d, double s)
{
    return d * s;
}

double screen(double d, double s)
{
    return d + s - d * s;
}

double hardLight(double d, double s)
{
    return s <= 0.5 ? multiply(d, 2 * s) : screen(d, 2 * s - 1);
}

double overlay(double d, double s)
{
    return hardLight(s, d);
}

double darken(double d, double s)
{
    return std::min(d, s);
}

double lighten(double d, double s)
{
    return std::max(d, s);
}

double colorDodge(double d, double s)
{
    if (d <= 0)
        return 0;
    return s >= 1 ? 1 : std::min(1.0, d / (1 - s));
}

double colorBurn(double d, double s)
{
    if (d >= 1)
        return 1;
    return s <= 0 ? 0 : 1 - std::min(1.0, (1 - d) / s);
}

double softLight(double d, double s)
{
    if (s <= 0.5)
        return d - (1 - 2 * s) * d * (1 - d);
    const double lighter = d <= 0.25 ? ((16 * d - 12) * d + 4) * d : std::sqrt(d);
    return d + (2 * s - 1) * (lighter - d);
}

double difference(double d, double s)
{
    return std::abs(d - s);
}

double exclusion(double d, double s)
{
    return d + s - 2 * d * s;
}

double normal(double, double s)
{
    return s;
}

/// The result for a premultiplied color of the source and of the destination, with their alphas.
using Formula = std::function<double(double s, double sa, double d, double da)>;

Formula blending(double (*blend)(double d, double s))
{
    return [=](double s, double sa, double d, double da) {
        const double both = sa > 0 && da > 0 ? sa * da * blend(d / da, s / sa) : 0;
        return s * (1 - da) + d * (1 - sa) + both;
    };
}

struct Mode {
    CGBlendMode mode;
    int number;
    Formula formula;
};

const std::vector<Mode> modes {
    { CGBlendMode::Normal, 0, blending(normal) },
    { CGBlendMode::Multiply, 1, blending(multiply) },
    { CGBlendMode::Screen, 2, blending(screen) },
    { CGBlendMode::Overlay, 3, blending(overlay) },
    { CGBlendMode::Darken, 4, blending(darken) },
    { CGBlendMode::Lighten, 5, blending(lighten) },
    { CGBlendMode::ColorDodge, 6, blending(colorDodge) },
    { CGBlendMode::ColorBurn, 7, blending(colorBurn) },
    { CGBlendMode::SoftLight, 8, blending(softLight) },
    { CGBlendMode::HardLight, 9, blending(hardLight) },
    { CGBlendMode::Difference, 10, blending(difference) },
    { CGBlendMode::Exclusion, 11, blending(exclusion) },
    { CGBlendMode::Clear, 16, [](double, double, double, double) { return 0; } },
    { CGBlendMode::Copy, 17, [](double s, double, double, double) { return s; } },
    { CGBlendMode::SourceIn, 18, [](double s, double, double, double da) { return s * da; } },
    { CGBlendMode::SourceOut, 19, [](double s, double, double, double da) { return s * (1 - da); } },
    { CGBlendMode::SourceAtop, 20,
        [](double s, double sa, double d, double da) { return s * da + d * (1 - sa); } },
    { CGBlendMode::DestinationOver, 21,
        [](double s, double, double d, double da) { return s * (1 - da) + d; } },
    { CGBlendMode::DestinationIn, 22, [](double, double sa, double d, double) { return d * sa; } },
    { CGBlendMode::DestinationOut, 23, [](double, double sa, double d, double) { return d * (1 - sa); } },
    { CGBlendMode::DestinationAtop, 24,
        [](double s, double sa, double d, double da) { return s * (1 - da) + d * sa; } },
    { CGBlendMode::XOR, 25,
        [](double s, double sa, double d, double da) { return s * (1 - da) + d * (1 - sa); } },
    { CGBlendMode::PlusDarker, 26,
        [](double s, double, double d, double) { return std::max(0.0, s + d - 1); } },
    { CGBlendMode::PlusLighter, 27, [](double s, double, double d, double) { return std::min(1.0, s + d); } },
};

/// Pixels of all kinds: opaque, translucent and transparent.
std::vector<Bytes> kindsOfPixels()
{
    std::vector<Bytes> kinds;
    for (const int alpha : { 0, 1, 2, 51, 127, 128, 200, 254, 255 }) {
        for (int step = 0; step <= 8; ++step) {
            const auto color = [&](int part) { return static_cast<std::uint8_t>(alpha * (part % 9) / 8); };
            kinds.push_back(
                { color(step), color(step + 3), color(step + 5), static_cast<std::uint8_t>(alpha) });
        }
    }
    return kinds;
}

const std::vector<Bytes> kinds = kindsOfPixels();

/// Each kind of pixel in its own column.
RetainPtr<UIImage> columns()
{
    return imageOf(kinds.size(), kinds.size(),
        pixels(kinds.size(), kinds.size(), [](std::size_t x, auto) { return kinds[x]; }));
}

/// Each kind of pixel in its own row, in an image context.
class Rows {
public:
    Rows()
    {
        const auto length = static_cast<double>(kinds.size());
        const CGRect all = CGRectMake(0, 0, length, length);
        UIGraphicsBeginImageContext(all.size);
        imageOf(kinds.size(), kinds.size(), pixels(kinds.size(), kinds.size(), [](auto, std::size_t y) {
            return kinds[y];
        }))->drawInRect(all);
    }
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    ~Rows() { UIGraphicsEndImageContext(); }

    Bytes bytes() const { return bytesOf(*UIGraphicsGetImageFromCurrentImageContext()); }
};

/// The expected byte, from 0 to 1, for source and destination pixels of those kinds.
double expected(const Mode& mode, const Bytes& source, const Bytes& destination, std::size_t channel)
{
    const double sa = source[3] / 255.0;
    const double da = destination[3] / 255.0;
    // These modes combine the alphas in the same way, whatever the colors are.
    if (channel == 3 && mode.mode < CGBlendMode::Clear)
        return sa + da - sa * da;
    return mode.formula(source[channel] / 255.0, sa, destination[channel] / 255.0, da);
}

/// The maximum difference of a byte from its formula.
double tolerance(const Mode& mode)
{
    return mode.mode == CGBlendMode::Multiply ? 2 : 1 + 1e-9;
}

std::ostream& operator<<(std::ostream& out, const Mode& mode)
{
    return out << mode.number;
}

class ABlendMode : public testing::TestWithParam<Mode> { };

TEST_P(ABlendMode, HasThePlatformsNumber)
{
    EXPECT_EQ(static_cast<int>(GetParam().mode), GetParam().number);
}

TEST_P(ABlendMode, FollowsItsFormulaForImages)
{
    const Rows rows;
    CGContextSetBlendMode(UIGraphicsGetCurrentContext(), GetParam().mode);
    columns()->drawInRect({ {}, columns()->size() });
    const auto bytes = rows.bytes();
    double largest = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto& source = kinds[i / 4 % kinds.size()];
        const auto& destination = kinds[i / 4 / kinds.size()];
        largest
            = std::max(largest, std::abs(expected(GetParam(), source, destination, i % 4) * 255 - bytes[i]));
    }
    EXPECT_LE(largest, tolerance(GetParam()));
}

TEST_P(ABlendMode, FollowsItsFormulaForFills)
{
    double largest = 0;
    for (const auto& source : kinds) {
        const Rows rows;
        const auto context = UIGraphicsGetCurrentContext();
        CGContextSetBlendMode(context, GetParam().mode);
        const double alpha = std::max<double>(source[3], 1);
        UIColor::colorWithRedGreenBlueAlpha(
            source[0] / alpha, source[1] / alpha, source[2] / alpha, source[3] / 255.0)
            ->setFill();
        CGContextFillRect(context, { {}, columns()->size() });
        const auto bytes = rows.bytes();
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const auto& destination = kinds[i / 4 / kinds.size()];
            largest = std::max(
                largest, std::abs(expected(GetParam(), source, destination, i % 4) * 255 - bytes[i]));
        }
    }
    EXPECT_LE(largest, tolerance(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(OfThePlatform, ABlendMode, testing::ValuesIn(modes),
    [](const auto& mode) { return "Number" + std::to_string(mode.param.number); });

/// An opaque pixel after filling with the color.
Bytes filled(const Bytes& pixel, CGBlendMode mode, const RetainPtr<UIColor>& color)
{
    UIGraphicsBeginImageContext({ 1, 1 });
    const auto context = UIGraphicsGetCurrentContext();
    imageOf(1, 1, pixel)->drawInRect(CGRectMake(0, 0, 1, 1));
    CGContextSetBlendMode(context, mode);
    color->setFill();
    CGContextFillRect(context, CGRectMake(0, 0, 1, 1));
    auto bytes = bytesOf(*UIGraphicsGetImageFromCurrentImageContext());
    UIGraphicsEndImageContext();
    return bytes;
}

/// An opaque gray, with a tolerance of one level.
MATCHER_P(IsGray, level, "")
{
    const auto isLevel = [&](std::uint8_t byte) { return std::abs(byte - level) <= 1; };
    return isLevel(arg[0]) && isLevel(arg[1]) && isLevel(arg[2]) && arg[3] == 255;
}

TEST(ABlendModeOfHueSaturationAndLuminosity, DistinguishesTheColors)
{
    const Bytes gray { 100, 100, 100, 255 };
    const Bytes red { 255, 0, 0, 255 };
    const auto color
        = [](double r, double g, double b) { return UIColor::colorWithRedGreenBlueAlpha(r, g, b, 1); };
    // The luminosity of a color is 0.30 of its red, 0.59 of its green and 0.11 of its blue.
    EXPECT_THAT(filled(gray, CGBlendMode::Luminosity, color(1, 0, 0)), IsGray(77));
    EXPECT_THAT(filled(gray, CGBlendMode::Luminosity, color(0, 1, 0)), IsGray(150));
    EXPECT_THAT(filled(gray, CGBlendMode::Luminosity, color(0, 0, 1)), IsGray(28));
    // Without saturation only the luminosity remains, and gray has no hue.
    EXPECT_THAT(filled(red, CGBlendMode::Saturation, color(0.5, 0.5, 0.5)), IsGray(77));
    EXPECT_THAT(filled(red, CGBlendMode::Color, color(0.2, 0.2, 0.2)), IsGray(77));
    EXPECT_THAT(filled(gray, CGBlendMode::Hue, color(1, 0, 0)), IsGray(100));
    EXPECT_EQ(static_cast<int>(CGBlendMode::Hue), 12);
    EXPECT_EQ(static_cast<int>(CGBlendMode::Luminosity), 15);
}

TEST(SettingABlendMode, ThatDoesNotExistKeepsThePreviousOne)
{
    UIGraphicsBeginImageContext({ 1, 1 });
    const auto context = UIGraphicsGetCurrentContext();
    CGContextSetBlendMode(context, CGBlendMode::Clear);
    CGContextSetBlendMode(context, static_cast<CGBlendMode>(28));
    CGContextSetBlendMode(context, static_cast<CGBlendMode>(-1));
    CGContextFillRect(context, CGRectMake(0, 0, 1, 1));
    EXPECT_THAT(bytesOf(*UIGraphicsGetImageFromCurrentImageContext()), ElementsAre(0, 0, 0, 0));
    UIGraphicsEndImageContext();
}

} // namespace

} // namespace brimsound::tests
