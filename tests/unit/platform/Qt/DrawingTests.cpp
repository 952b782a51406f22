#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/Qt/QtCanvas.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "tests/support/Images.h"
#include "tests/unit/toolkit/Rows.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/control/Slider.h"
#include "toolkit/control/Switch.h"
#include "toolkit/drawing/Theme.h"
#include "toolkit/image/ImageView.h"
#include "toolkit/text/TextField.h"
#include "toolkit/time/Clock.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace brimsound::tests {

namespace {

using desktop::pictureOf;
using toolkit::Button, toolkit::Cell, toolkit::Color, toolkit::Font, toolkit::make, toolkit::makeRect,
    toolkit::Rect;
using toolkit::Ref, toolkit::RowPath, toolkit::Size, toolkit::Slider, toolkit::Switch, toolkit::Table;
using toolkit::TextButton, toolkit::TextField, toolkit::View, toolkit::Window;

constexpr Color red { 1, 0, 0 };

/// An image of that size in points, of one color.
class FilledImage : public toolkit::Image {
public:
    FilledImage(Size size, Color color)
        : Image(size)
        , _color(color)
    {
    }

    void draw(toolkit::Canvas& canvas, const Rect& rect) const override { canvas.fillRect(rect, _color); }

private:
    const Color _color;
};

Ref<View> box(const Rect& frame, Color color)
{
    auto view = make<View>(frame);
    view->setBackground(color);
    return view;
}

/// Components from 0 to 255, each off by one at the most.
MATCHER_P3(IsColor, redPart, greenPart, bluePart, "")
{
    *result_listener << arg.red() << ", " << arg.green() << ", " << arg.blue();
    return std::abs(arg.red() - redPart) <= 1 && std::abs(arg.green() - greenPart) <= 1
        && std::abs(arg.blue() - bluePart) <= 1;
}

MATCHER_P(IsThemed, color, "")
{
    return testing::ExplainMatchResult(IsColor(static_cast<int>(std::lround(color.red * 255)),
                                           static_cast<int>(std::lround(color.green * 255)),
                                           static_cast<int>(std::lround(color.blue * 255))),
        arg, result_listener);
}

const auto isWhite = IsColor(255, 255, 255);
const auto isRed = IsColor(255, 0, 0);
const auto isBlack = IsColor(0, 0, 0);

class APicture : public testing::Test {
protected:
    QColor pixel(int x, int y, double scale = 1) const { return pictureOf(*window, scale).pixelColor(x, y); }

    const Ref<Window> window = make<Window>(Size { 100, 80 });
};

TEST_F(APicture, HasAsManyPixelsAPointAsItsScale)
{
    EXPECT_EQ(pictureOf(*window, 1).size(), QSize(100, 80));
    EXPECT_EQ(pictureOf(*window, 2).size(), QSize(200, 160));
    window->add(*box(makeRect(10, 10, 20, 20), red));
    EXPECT_THAT(pixel(10, 10), isRed);
    EXPECT_THAT(pixel(9, 10), isWhite);
    EXPECT_THAT(pixel(30, 10), isWhite);
    EXPECT_THAT(pixel(20, 20, 2), isRed);
    EXPECT_THAT(pixel(19, 20, 2), isWhite);
    EXPECT_THAT(pixel(59, 59, 2), isRed);
    EXPECT_THAT(pixel(60, 59, 2), isWhite);
}

TEST_F(APicture, ShowsNoSeamBetweenViewsThatTouch)
{
    window->add(*box(makeRect(10, 10, 10.4, 20), red));
    window->add(*box(makeRect(20.4, 10, 10.4, 20), red));
    for (const double scale : { 1.0, 1.25, 1.5, 2.0, 3.0 })
        EXPECT_THAT(pixel(static_cast<int>(20.4 * scale), static_cast<int>(20 * scale), scale), isRed)
            << scale;
}

TEST_F(APicture, LeavesOutWhatHasNoPlace)
{
    const double nan = std::nan("");
    window->add(*box(makeRect(10, 10, 20, nan), red));
    window->add(*box(makeRect(nan, 10, 20, 20), red));
    window->add(*box(makeRect(40, 10, 20, 20), red));
    EXPECT_THAT(pixel(15, 15), isWhite);
    EXPECT_THAT(pixel(45, 15), isRed);
}

TEST_F(APicture, IsLaidOutFirst)
{
    class Filling : public View {
    public:
        void layOut() override { children().front()->setFrame(bounds()); }
    };
    const auto filling = make<Filling>();
    filling->setFrame(makeRect(0, 0, 100, 80));
    filling->add(*box({}, red));
    window->add(*filling);
    EXPECT_THAT(pixel(99, 79), isRed);
}

TEST_F(APicture, ShowsTheFrontmostViewAndFollowsScrolledOrigins)
{
    const auto outer = box(makeRect(10, 10, 50, 50), Color {});
    outer->add(*box(makeRect(0, 20, 10, 10), red));
    window->add(*outer);
    EXPECT_THAT(pixel(15, 35), isRed);
    outer->setOrigin({ 0, 15 });
    EXPECT_THAT(pixel(15, 35), isBlack);
    EXPECT_THAT(pixel(15, 20), isRed);
}

TEST_F(APicture, DoesNotShowHiddenOrInvisibleViews)
{
    const auto outer = box(makeRect(0, 0, 50, 50), Color {});
    const auto inner = box(makeRect(10, 10, 10, 10), red);
    outer->add(*inner);
    window->add(*outer);
    inner->setHidden(true);
    EXPECT_THAT(pixel(15, 15), isBlack);
    inner->setHidden(false);
    outer->setAlpha(0);
    EXPECT_THAT(pixel(15, 15), isWhite);
    outer->setAlpha(1);
    outer->setHidden(true);
    EXPECT_THAT(pixel(15, 15), isWhite);
}

TEST_F(APicture, ShowsWhatSticksOutOfAViewThatDoesNotClip)
{
    const auto outer = make<View>(makeRect(10, 10, 10, 10));
    outer->add(*box(makeRect(20, 0, 10, 10), red));
    const auto empty = make<View>(makeRect(10, 50, 0, 0));
    empty->add(*box(makeRect(0, 0, 10, 10), red));
    window->add(*outer);
    window->add(*empty);
    EXPECT_THAT(pixel(35, 15), isRed);
    EXPECT_THAT(pixel(15, 55), isRed);
    outer->setClips(true);
    empty->setClips(true);
    EXPECT_THAT(pixel(35, 15), isWhite);
    EXPECT_THAT(pixel(15, 55), isWhite);
}

TEST_F(APicture, ShowsWhatSticksOutWhenOnlyThatPartIsDrawn)
{
    const auto outer = make<View>(makeRect(10, 10, 10, 10));
    outer->add(*box(makeRect(20, 0, 10, 10), red));
    window->add(*outer);
    QImage picture(100, 80, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setClipRect(QRectF(25, 0, 50, 50));
    desktop::QtCanvas canvas(painter, 1);
    window->drawTree(canvas);
    EXPECT_THAT(picture.pixelColor(35, 15), isRed);
}

TEST_F(APicture, FadesAViewTogetherWithEverythingInIt)
{
    const auto outer = make<View>(makeRect(0, 0, 60, 60));
    outer->add(*box(makeRect(0, 0, 40, 40), Color {}));
    outer->add(*box(makeRect(20, 20, 40, 40), red));
    outer->setAlpha(0.5);
    window->add(*outer);
    EXPECT_THAT(pixel(5, 5), IsColor(128, 128, 128));
    EXPECT_THAT(pixel(30, 30), IsColor(255, 128, 128));
    EXPECT_THAT(pixel(50, 50), IsColor(255, 128, 128));
    EXPECT_THAT(pixel(60, 60, 2), IsColor(255, 128, 128));
}

TEST_F(APicture, FadesWhatSticksOutOfAViewToo)
{
    const auto outer = make<View>(makeRect(10, 10, 10, 10));
    outer->add(*box(makeRect(20, 0, 10, 10), red));
    outer->setAlpha(0.5);
    window->add(*outer);
    EXPECT_THAT(pixel(35, 15), IsColor(255, 128, 128));
}

TEST_F(APicture, FadesViewsWithinFadedViewsMore)
{
    const auto outer = make<View>(makeRect(10, 10, 60, 60));
    const auto inner = box(makeRect(10, 10, 30, 30), Color {});
    outer->add(*inner);
    outer->setAlpha(0.5);
    inner->setAlpha(0.5);
    window->add(*outer);
    for (const int scale : { 1, 2 }) {
        EXPECT_THAT(pixel(30 * scale, 30 * scale, scale), IsColor(191, 191, 191));
        EXPECT_THAT(pixel(20 * scale, 20 * scale, scale), IsColor(191, 191, 191));
        EXPECT_THAT(pixel(20 * scale - 1, 20 * scale, scale), isWhite);
        EXPECT_THAT(pixel(50 * scale, 50 * scale, scale), isWhite);
    }
}

TEST_F(APicture, CutsTheCornersOfARoundedView)
{
    const auto outer = make<View>(makeRect(10, 10, 60, 60));
    outer->setClips(true);
    outer->setCornerRadius(20);
    outer->add(*box(makeRect(-10, -10, 100, 100), Color {}));
    window->add(*outer);
    for (const int scale : { 1, 2 }) {
        const auto picture = pictureOf(*window, scale);
        const auto at = [&](int x, int y) { return picture.pixelColor(x * scale, y * scale); };
        EXPECT_THAT(at(11, 11), isWhite);
        EXPECT_THAT(at(68, 11), isWhite);
        EXPECT_THAT(at(11, 68), isWhite);
        EXPECT_THAT(at(68, 68), isWhite);
        EXPECT_THAT(at(14, 14), isWhite);
        EXPECT_THAT(at(17, 17), isBlack);
        EXPECT_THAT(at(40, 10), isBlack);
        EXPECT_THAT(at(10, 40), isBlack);
        EXPECT_THAT(at(40, 9), isWhite);
        EXPECT_THAT(at(70, 40), isWhite);
    }
}

TEST_F(APicture, ClipsAScrollingViewToItsFrame)
{
    const auto outer = make<Table>(makeRect(10, 10, 40, 40), Table::Style::List);
    outer->add(*box(makeRect(-20, -20, 200, 200), red));
    window->add(*outer);
    EXPECT_THAT(pixel(10, 10), isRed);
    EXPECT_THAT(pixel(49, 49), isRed);
    EXPECT_THAT(pixel(9, 20), isWhite);
    EXPECT_THAT(pixel(20, 50), isWhite);
}

TEST_F(APicture, OfASliderShowsItsTintLeftOfTheThumbOnly)
{
    const auto slider = make<Slider>();
    slider->setFrame(makeRect(0, 20, 100, 40));
    slider->setValue(0.5f);
    slider->setTint(red);
    window->add(*slider);
    EXPECT_THAT(pixel(20, 39), isRed);
    EXPECT_THAT(pixel(80, 39), IsThemed(toolkit::theme::sliderTrack));
    EXPECT_THAT(pixel(50, 39), isWhite);
    slider->setTint(std::nullopt);
    EXPECT_THAT(pixel(20, 39), IsThemed(toolkit::theme::tint));
    slider->setValue(1);
    EXPECT_THAT(pixel(60, 39), IsThemed(toolkit::theme::tint));
}

TEST_F(APicture, OfASwitchShowsItsKnobOnTheSideWhereItIs)
{
    const auto toggle = make<Switch>();
    toggle->setFrame(makeRect(10, 10, 51, 31));
    window->add(*toggle);
    EXPECT_THAT(pixel(25, 25), isWhite);
    EXPECT_THAT(pixel(54, 25), IsThemed(toolkit::theme::switchOff));
    toggle->setOn(true, false);
    EXPECT_THAT(pixel(46, 25), isWhite);
    EXPECT_THAT(pixel(18, 25), IsThemed(toolkit::theme::switchOn));
}

TEST_F(APicture, OfATextButtonIsShadedWhileAFingerIsOnIt)
{
    const auto button = make<TextButton>("OK", Font { {}, 17 }, [] {});
    button->setFrame(makeRect(10, 10, 60, 40));
    window->add(*button);
    EXPECT_THAT(pixel(12, 12), isWhite);
    window->touchDown({ { 20, 20 }, toolkit::Pointer::Finger });
    EXPECT_THAT(pixel(12, 12), IsThemed(toolkit::theme::rowPressed));
    EXPECT_THAT(pixel(69, 49), IsThemed(toolkit::theme::rowPressed));
    window->touchMove({ 20, 300 });
    EXPECT_THAT(pixel(12, 12), isWhite);
    window->touchMove({ 20, 20 });
    EXPECT_THAT(pixel(12, 12), IsThemed(toolkit::theme::rowPressed));
    window->touchUp({ 20, 20 });
    EXPECT_THAT(pixel(12, 12), isWhite);
}

TEST_F(APicture, OfATextFieldShowsItsReturnKeyWhileItIsEditedAndPaleWhileItIsPressed)
{
    const auto field = make<TextField>(makeRect(0, 10, 100, 28));
    field->setReturnTitle("Done");
    window->add(*field);
    // The key's color has no red and the white around it has all of it, so the least red tells how strong the
    // key is.
    const auto leastRed = [&] {
        const auto picture = pictureOf(*window, 4);
        const auto key = field->returnKey().frame();
        int least = 255;
        for (int y = 4 * 10; y < 4 * 38; ++y) {
            for (int x = static_cast<int>(4 * key.left()); x < 4 * 100; ++x)
                least = std::min(least, picture.pixelColor(x, y).red());
        }
        return least;
    };
    EXPECT_EQ(leastRed(), 255) << "no key yet";
    window->focus().giveTo(*field);
    EXPECT_LE(leastRed(), 10);
    window->touchDown({ { 95, 24 }, toolkit::Pointer::Mouse });
    EXPECT_NEAR(leastRed(), 255 * 0.7, 10);
    window->touchMove({ 95, 300 });
    EXPECT_LE(leastRed(), 10);
    window->touchCancel();
    window->focus().takeFrom(*field);
    EXPECT_EQ(leastRed(), 255);
}

TEST_F(APicture, OfAnAlertInALowWindowHasNoTextOnTheButtons)
{
    const auto pictureWith = [&](const std::string& message) {
        window->alerts().add(*make<toolkit::Alert>("", message, std::vector<std::string> { "", "" }));
        toolkit::Clock::shared().advance(1);
        auto picture = pictureOf(*window, 1);
        window->alerts().dismissAll();
        toolkit::Clock::shared().advance(1);
        return picture;
    };
    const auto lower = [](const QImage& picture) { return picture.copy(0, 36, 100, 44); };
    const auto without = pictureWith("");
    const auto with = pictureWith("mmm mmm mmm mmm mmm mmm mmm mmm mmm mmm mmm mmm");
    EXPECT_NE(with, without);
    EXPECT_EQ(lower(with), lower(without));
}

TEST_F(APicture, OfAFocusRingFollowsTheRoundedCornersAroundItsView)
{
    const auto panel = make<View>(makeRect(0, 0, 100, 80));
    panel->setCornerRadius(20);
    panel->setClips(true);
    window->add(*panel);
    const auto button = make<Button>(makeRect(0, 0, 100, 80));
    button->setLabel("Button");
    panel->add(*button);
    window->keyPressed(toolkit::Key::Tab, toolkit::KeyStroke::First);
    // The line's middle is an arc of 16 points around the corner's own middle.
    const auto picture = pictureOf(*window, 4);
    const int onTheArc = static_cast<int>(std::lround(4 * (20 - 16 / std::sqrt(2.0))));
    EXPECT_THAT(picture.pixelColor(onTheArc, onTheArc), IsThemed(toolkit::theme::tint));
    EXPECT_THAT(picture.pixelColor(onTheArc - 7, onTheArc - 7), isWhite) << "nothing outside of it";
    EXPECT_THAT(picture.pixelColor(4 * 50, 4 * 4), IsThemed(toolkit::theme::tint));
    EXPECT_THAT(picture.pixelColor(4 * 50, 4 * 2), isWhite);
}

TEST(ACanvas, StretchesImagesUprightOverTheirRectangle)
{
    // Red above, half transparent black below.
    const auto image = imageOf(1, 2, { 255, 0, 0, 255, 0, 0, 0, 128 });
    QImage picture(20, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setClipRect(picture.rect());
    desktop::QtCanvas canvas(painter, 1);
    desktop::nativeOf<toolkit::Image>(*image).draw(canvas, makeRect(5, 0, 10, 20));
    EXPECT_THAT(picture.pixelColor(5, 0), isRed);
    EXPECT_THAT(picture.pixelColor(14, 2), isRed);
    EXPECT_THAT(picture.pixelColor(14, 19), IsColor(127, 127, 127));
    EXPECT_THAT(picture.pixelColor(4, 5), isWhite);
    EXPECT_THAT(picture.pixelColor(15, 5), isWhite);
}

/// The columns that something is drawn in, in a part of a picture.
std::vector<int> drawnColumns(const QImage& picture, const QRect& part)
{
    std::vector<int> columns;
    for (int x = part.left(); x <= part.right(); ++x) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            if (picture.pixelColor(x, y) != Qt::white) {
                columns.push_back(x);
                break;
            }
        }
    }
    return columns;
}

/// "Save" in Hebrew.
const std::string hebrew = "\u05e9\u05de\u05d9\u05e8\u05d4";

/// Draws the text into a picture of 200 by 20 pixels.
QImage pictureOfText(const std::string& text, toolkit::Alignment alignment, bool asParagraph)
{
    QImage picture(200, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    {
        QPainter painter(&picture);
        desktop::QtCanvas canvas(painter, 1);
        const auto place = makeRect(0, 0, 200, 20);
        if (asParagraph)
            canvas.drawParagraph(text, place, {}, {}, alignment);
        else
            canvas.drawLine(text, place, {}, {}, alignment);
    }
    return picture;
}

TEST(ACanvas, DrawsTextsOfBothDirectionsAtTheGivenSide)
{
    const auto columns = [](const std::string& text, toolkit::Alignment alignment, bool asParagraph) {
        const auto picture = pictureOfText(text, alignment, asParagraph);
        return drawnColumns(picture, picture.rect());
    };
    for (const bool asParagraph : { false, true }) {
        for (const std::string& text : { std::string("Save"), hebrew }) {
            const auto left = columns(text, toolkit::Alignment::Left, asParagraph);
            ASSERT_FALSE(left.empty());
            EXPECT_LT(left.front(), 5) << text;
            EXPECT_LT(left.back(), 100) << text;
            const auto right = columns(text, toolkit::Alignment::Right, asParagraph);
            ASSERT_FALSE(right.empty());
            EXPECT_GT(right.front(), 100) << text;
            EXPECT_GT(right.back(), 194) << text;
        }
    }
}

TEST(ACanvas, DrawsTheEndOfATextInItsOwnDirection)
{
    const auto rightEnd = [](const std::string& text, bool asParagraph) {
        return pictureOfText(text, toolkit::Alignment::Right, asParagraph).copy(170, 0, 30, 20);
    };
    for (const bool asParagraph : { false, true }) {
        EXPECT_EQ(rightEnd(hebrew + ".", asParagraph), rightEnd(hebrew, asParagraph));
        EXPECT_NE(rightEnd("Save.", asParagraph), rightEnd("Save", asParagraph));
    }
}

TEST(ACanvas, DrawsAllLinesOfAParagraphFromTheSameEdge)
{
    for (const std::string& word : { std::string("Save"), hebrew }) {
        // One word in each of three lines.
        const auto text = word + " " + word + " " + word;
        const Font font { {}, 20 };
        const double width = 1.5 * widthOfLine(word, font);
        const double height = heightOfParagraph(text, font, width);
        for (const auto alignment :
            { toolkit::Alignment::Left, toolkit::Alignment::Center, toolkit::Alignment::Right }) {
            QImage picture(200, static_cast<int>(height), QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            desktop::QtCanvas canvas(painter, 1);
            canvas.drawParagraph(text, makeRect(0, 0, width, height), font, {}, alignment);
            const int line = static_cast<int>(height) / 3;
            const auto first = drawnColumns(picture, { 0, 0, 200, line });
            ASSERT_FALSE(first.empty());
            for (const int number : { 1, 2 }) {
                const auto columns = drawnColumns(picture, { 0, number * line, 200, line });
                EXPECT_EQ(columns.front(), first.front()) << word;
                EXPECT_EQ(columns.back(), first.back()) << word;
            }
        }
    }
}

TEST_F(APicture, CanBeWrittenToAFile)
{
    window->add(*box(makeRect(10, 10, 20, 20), red));
    const QTemporaryDir folder;
    const auto path = folder.filePath("picture.png");
    EXPECT_TRUE(desktop::writeSnapshot(*window, 2, path));
    const QImage written(path);
    EXPECT_EQ(written.size(), QSize(200, 160));
    EXPECT_THAT(written.pixelColor(30, 30), isRed);
    EXPECT_FALSE(desktop::writeSnapshot(*window, 2, folder.filePath("missing/picture.png")));
}

TEST_F(APicture, OfAnImageViewShowsTheHighlightedImageWhileItIsHighlighted)
{
    const auto view = make<toolkit::ImageView>(makeRect(10, 10, 20, 20));
    window->add(*view);
    EXPECT_THAT(pixel(15, 15), isWhite);
    view->setImage(make<FilledImage>(Size { 5, 5 }, red));
    EXPECT_THAT(pixel(10, 10), isRed);
    EXPECT_THAT(pixel(29, 29), isRed);
    EXPECT_THAT(pixel(30, 30), isWhite);
    view->setHighlighted(true);
    EXPECT_THAT(pixel(15, 15), isRed);
    view->setHighlightedImage(make<FilledImage>(Size { 5, 5 }, Color {}));
    EXPECT_THAT(pixel(15, 15), isBlack);
    view->setHighlighted(false);
    EXPECT_THAT(pixel(15, 15), isRed);
}

class APictureOfATable : public testing::Test {
protected:
    void show(Size size, Table::Style style = Table::Style::List) { list.emplace(rows, size, style); }
    QColor pixel(int x, int y) const { return pictureOf(*list->window, 1).pixelColor(x, y); }
    Cell& cell(std::size_t row) const { return *list->table->cellOf({ 0, row }); }

    Rows rows { { 3 } };
    std::optional<TableInWindow> list;
};

TEST_F(APictureOfATable, ShowsHairlinesInTheColorThatItIsGiven)
{
    show({ 320, 200 });
    EXPECT_THAT(pixel(100, 43), IsThemed(toolkit::theme::separator));
    EXPECT_THAT(pixel(100, 131), IsThemed(toolkit::theme::separator));
    EXPECT_THAT(pixel(5, 43), isWhite);
    EXPECT_THAT(pixel(100, 42), isWhite);
    list->table->setSeparatorColor(red);
    EXPECT_THAT(pixel(100, 43), isRed);
    list->table->setSeparatorColor(toolkit::transparent);
    EXPECT_THAT(pixel(100, 43), isWhite);
    list->table->setSeparatorColor(std::nullopt);
    EXPECT_THAT(pixel(100, 43), IsThemed(toolkit::theme::separator));
}

TEST_F(APictureOfATable, ShowsASelectedRowAboveItsBackgroundView)
{
    show({ 320, 200 });
    cell(0).setBackgroundView(box({}, red));
    EXPECT_THAT(pixel(200, 20), isRed);
    cell(0).setSelected(true, false);
    EXPECT_THAT(pixel(200, 20), IsThemed(toolkit::theme::rowPressed));
    EXPECT_THAT(pixel(200, 60), isWhite);
    cell(0).selectedBackgroundView()->setBackground(Color {});
    EXPECT_THAT(pixel(200, 20), isBlack);
    cell(0).setSelected(false, false);
    EXPECT_THAT(pixel(200, 20), isRed);
}

TEST_F(APictureOfATable, ShowsASwipedRowsButton)
{
    show({ 320, 200 });
    rows.isDeletable = [](RowPath) { return true; };
    list->table->swipe().open({ 0, 1 });
    toolkit::Clock::shared().advance(1);
    EXPECT_THAT(pixel(240, 50), IsThemed(toolkit::theme::destructive));
    EXPECT_THAT(pixel(319, 87), IsThemed(toolkit::theme::destructive));
    EXPECT_THAT(pixel(236, 50), isWhite);
    EXPECT_THAT(pixel(300, 20), isWhite);
    list->window->touchDown({ { 300, 66 }, toolkit::Pointer::Mouse });
    EXPECT_THAT(pixel(240, 50), IsThemed(toolkit::theme::destructivePressed));
    list->window->touchCancel();
}

TEST_F(APictureOfATable, ShowsAPressedRowWithinTheRoundedCornersOfItsGroup)
{
    rows.counts = { 2 };
    show({ 600, 200 }, Table::Style::Grouped);
    const auto rect = list->table->rows().rowRect({ 0, 0 });
    const int left = static_cast<int>(rect.left());
    const int top = static_cast<int>(rect.top());
    list->window->touchDown({ { 300, top + 20.0 }, toolkit::Pointer::Mouse });
    EXPECT_THAT(pixel(300, top + 1), IsThemed(toolkit::theme::rowPressed));
    EXPECT_THAT(pixel(left, top), IsThemed(toolkit::theme::background));
    EXPECT_THAT(pixel(left, top + 42), IsThemed(toolkit::theme::rowPressed)) << "no corner between two rows";
    EXPECT_THAT(pixel(300, top + 60), isWhite);
    EXPECT_THAT(pixel(300, top + 43), IsThemed(toolkit::theme::separator));
    EXPECT_THAT(pixel(300, top + 87), isWhite) << "the last row has the group's edge";
    list->window->touchCancel();
}

} // namespace

} // namespace brimsound::tests
