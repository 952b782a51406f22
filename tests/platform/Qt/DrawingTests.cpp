#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UISlider.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/desktop/Qt/QtCanvas.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/UIKit/AlertPeer.h"
#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/ImagePeer.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/TextButton.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"
#include "platform/desktop/UIKit/Theme.h"
#include "platform/desktop/UIKit/ViewPeer.h"
#include "tests/platform/UIKit/Images.h"
#include "tests/platform/UIKit/Lists.h"
#include "tests/support/Images.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace brimsound::tests {

namespace {

using desktop::peerOf;
using desktop::pictureOf;
using desktop::Window;

RetainPtr<UIColor> red()
{
    return UIColor::colorWithRedGreenBlueAlpha(1, 0, 0, 1);
}

RetainPtr<UIView> box(const CGRect& frame, const RetainPtr<UIColor>& color)
{
    auto view = make<UIView>(frame);
    view->setBackgroundColor(color);
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

    const RetainPtr<Window> window = make<Window>(CGSize { 100, 80 });
};

TEST_F(APicture, HasAsManyPixelsAPointAsItsScale)
{
    EXPECT_EQ(pictureOf(*window, 1).size(), QSize(100, 80));
    EXPECT_EQ(pictureOf(*window, 2).size(), QSize(200, 160));
    window->addSubview(*box(CGRectMake(10, 10, 20, 20), red()));
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
    window->addSubview(*box(CGRectMake(10, 10, 10.4, 20), red()));
    window->addSubview(*box(CGRectMake(20.4, 10, 10.4, 20), red()));
    for (const double scale : { 1.0, 1.25, 1.5, 2.0, 3.0 })
        EXPECT_THAT(pixel(static_cast<int>(20.4 * scale), static_cast<int>(20 * scale), scale), isRed)
            << scale;
}

TEST_F(APicture, LeavesOutWhatHasNoPlace)
{
    const double nan = std::nan("");
    window->addSubview(*box(CGRectMake(10, 10, 20, nan), red()));
    window->addSubview(*box(CGRectMake(nan, 10, 20, 20), red()));
    window->addSubview(*box(CGRectMake(40, 10, 20, 20), red()));
    EXPECT_THAT(pixel(15, 15), isWhite);
    EXPECT_THAT(pixel(45, 15), isRed);
}

TEST_F(APicture, IsLaidOutFirst)
{
    class Filling : public UIView {
    public:
        void layoutSubviews() override { subviews().front()->setFrame(bounds()); }
    };
    const auto filling = make<Filling>();
    filling->setFrame(CGRectMake(0, 0, 100, 80));
    filling->addSubview(*box({}, red()));
    window->addSubview(*filling);
    EXPECT_THAT(pixel(99, 79), isRed);
}

TEST_F(APicture, ShowsTheFrontmostViewAndFollowsScrolledOrigins)
{
    const auto outer = box(CGRectMake(10, 10, 50, 50), UIColor::blackColor());
    outer->addSubview(*box(CGRectMake(0, 20, 10, 10), red()));
    window->addSubview(*outer);
    EXPECT_THAT(pixel(15, 35), isRed);
    desktop::setOrigin(*outer, { 0, 15 });
    EXPECT_THAT(pixel(15, 35), isBlack);
    EXPECT_THAT(pixel(15, 20), isRed);
}

TEST_F(APicture, DoesNotShowHiddenOrInvisibleViews)
{
    const auto outer = box(CGRectMake(0, 0, 50, 50), UIColor::blackColor());
    const auto inner = box(CGRectMake(10, 10, 10, 10), red());
    outer->addSubview(*inner);
    window->addSubview(*outer);
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
    const auto outer = make<UIView>(CGRectMake(10, 10, 10, 10));
    outer->addSubview(*box(CGRectMake(20, 0, 10, 10), red()));
    const auto empty = make<UIView>(CGRectMake(10, 50, 0, 0));
    empty->addSubview(*box(CGRectMake(0, 0, 10, 10), red()));
    window->addSubview(*outer);
    window->addSubview(*empty);
    EXPECT_THAT(pixel(35, 15), isRed);
    EXPECT_THAT(pixel(15, 55), isRed);
    peerOf(*outer).clipsToBounds = true;
    peerOf(*empty).clipsToBounds = true;
    EXPECT_THAT(pixel(35, 15), isWhite);
    EXPECT_THAT(pixel(15, 55), isWhite);
}

TEST_F(APicture, ShowsWhatSticksOutWhenOnlyThatPartIsDrawn)
{
    const auto outer = make<UIView>(CGRectMake(10, 10, 10, 10));
    outer->addSubview(*box(CGRectMake(20, 0, 10, 10), red()));
    window->addSubview(*outer);
    QImage picture(100, 80, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setClipRect(QRectF(25, 0, 50, 50));
    desktop::QtCanvas canvas(painter, 1);
    desktop::drawTree(*window, canvas);
    EXPECT_THAT(picture.pixelColor(35, 15), isRed);
}

TEST_F(APicture, FadesAViewTogetherWithEverythingInIt)
{
    const auto outer = make<UIView>(CGRectMake(0, 0, 60, 60));
    outer->addSubview(*box(CGRectMake(0, 0, 40, 40), UIColor::blackColor()));
    outer->addSubview(*box(CGRectMake(20, 20, 40, 40), red()));
    outer->setAlpha(0.5);
    window->addSubview(*outer);
    EXPECT_THAT(pixel(5, 5), IsColor(128, 128, 128));
    EXPECT_THAT(pixel(30, 30), IsColor(255, 128, 128));
    EXPECT_THAT(pixel(50, 50), IsColor(255, 128, 128));
    EXPECT_THAT(pixel(60, 60, 2), IsColor(255, 128, 128));
}

TEST_F(APicture, FadesWhatSticksOutOfAViewToo)
{
    const auto outer = make<UIView>(CGRectMake(10, 10, 10, 10));
    outer->addSubview(*box(CGRectMake(20, 0, 10, 10), red()));
    outer->setAlpha(0.5);
    window->addSubview(*outer);
    EXPECT_THAT(pixel(35, 15), IsColor(255, 128, 128));
}

TEST_F(APicture, FadesViewsWithinFadedViewsMore)
{
    const auto outer = make<UIView>(CGRectMake(10, 10, 60, 60));
    const auto inner = box(CGRectMake(10, 10, 30, 30), UIColor::blackColor());
    outer->addSubview(*inner);
    outer->setAlpha(0.5);
    inner->setAlpha(0.5);
    window->addSubview(*outer);
    for (const int scale : { 1, 2 }) {
        EXPECT_THAT(pixel(30 * scale, 30 * scale, scale), IsColor(191, 191, 191));
        EXPECT_THAT(pixel(20 * scale, 20 * scale, scale), IsColor(191, 191, 191));
        EXPECT_THAT(pixel(20 * scale - 1, 20 * scale, scale), isWhite);
        EXPECT_THAT(pixel(50 * scale, 50 * scale, scale), isWhite);
    }
}

TEST_F(APicture, CutsTheCornersOfARoundedView)
{
    const auto outer = make<UIView>(CGRectMake(10, 10, 60, 60));
    peerOf(*outer).clipsToBounds = true;
    peerOf(*outer).cornerRadius = 20;
    outer->addSubview(*box(CGRectMake(-10, -10, 100, 100), UIColor::blackColor()));
    window->addSubview(*outer);
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
    const auto outer = make<UITableView>(CGRectMake(10, 10, 40, 40), UITableViewStyle::Plain);
    outer->addSubview(*box(CGRectMake(-20, -20, 200, 200), red()));
    window->addSubview(*outer);
    EXPECT_THAT(pixel(10, 10), isRed);
    EXPECT_THAT(pixel(49, 49), isRed);
    EXPECT_THAT(pixel(9, 20), isWhite);
    EXPECT_THAT(pixel(20, 50), isWhite);
}

TEST_F(APicture, OfASliderShowsItsTintLeftOfTheThumbOnly)
{
    const auto slider = make<UISlider>();
    slider->setFrame(CGRectMake(0, 20, 100, 40));
    slider->setValue(0.5f);
    slider->setMinimumTrackTintColor(red());
    window->addSubview(*slider);
    EXPECT_THAT(pixel(20, 39), isRed);
    EXPECT_THAT(pixel(80, 39), IsThemed(desktop::theme::sliderTrack));
    EXPECT_THAT(pixel(50, 39), isWhite);
    slider->setMinimumTrackTintColor(nullptr);
    EXPECT_THAT(pixel(20, 39), IsThemed(desktop::theme::tint));
    slider->setValue(1);
    EXPECT_THAT(pixel(60, 39), IsThemed(desktop::theme::tint));
}

TEST_F(APicture, OfASwitchShowsItsKnobOnTheSideWhereItIs)
{
    const auto toggle = make<UISwitch>();
    toggle->setFrame(CGRectMake(10, 10, 51, 31));
    window->addSubview(*toggle);
    EXPECT_THAT(pixel(25, 25), isWhite);
    EXPECT_THAT(pixel(54, 25), IsThemed(desktop::theme::switchOff));
    toggle->setOn(true, Animated::No);
    EXPECT_THAT(pixel(46, 25), isWhite);
    EXPECT_THAT(pixel(18, 25), IsThemed(desktop::theme::switchOn));
}

TEST_F(APicture, OfATextButtonIsShadedWhileAFingerIsOnIt)
{
    const auto button = make<desktop::TextButton>("OK", UIFont::systemFontOfSize(17), [] {});
    button->setFrame(CGRectMake(10, 10, 60, 40));
    window->addSubview(*button);
    EXPECT_THAT(pixel(12, 12), isWhite);
    window->touchDown({ { 20, 20 }, desktop::Pointer::Finger });
    EXPECT_THAT(pixel(12, 12), IsThemed(desktop::theme::rowPressed));
    EXPECT_THAT(pixel(69, 49), IsThemed(desktop::theme::rowPressed));
    window->touchMove({ 20, 300 });
    EXPECT_THAT(pixel(12, 12), isWhite);
    window->touchMove({ 20, 20 });
    EXPECT_THAT(pixel(12, 12), IsThemed(desktop::theme::rowPressed));
    window->touchUp({ 20, 20 });
    EXPECT_THAT(pixel(12, 12), isWhite);
}

TEST_F(APicture, OfATextFieldShowsItsReturnKeyWhileItIsEditedAndPaleWhileItIsPressed)
{
    const auto field = make<UITextField>(CGRectMake(0, 10, 100, 28));
    field->setReturnKeyType(UIReturnKeyType::Done);
    window->addSubview(*field);
    // The key's color has no red and the white around it has all of it, so the least red tells how strong the
    // key is.
    const auto leastRed = [&] {
        const auto picture = pictureOf(*window, 4);
        const auto key = peerOf(*field).returnKey->frame();
        int least = 255;
        for (int y = 4 * 10; y < 4 * 38; ++y) {
            for (int x = static_cast<int>(4 * key.origin.x); x < 4 * 100; ++x)
                least = std::min(least, picture.pixelColor(x, y).red());
        }
        return least;
    };
    EXPECT_EQ(leastRed(), 255) << "no key yet";
    field->becomeFirstResponder();
    EXPECT_LE(leastRed(), 10);
    window->touchDown({ { 95, 24 }, desktop::Pointer::Mouse });
    EXPECT_NEAR(leastRed(), 255 * 0.7, 10);
    window->touchMove({ 95, 300 });
    EXPECT_LE(leastRed(), 10);
    window->touchCancel();
    field->resignFirstResponder();
    EXPECT_EQ(leastRed(), 255);
}

TEST_F(APicture, OfAnAlertInALowWindowHasNoTextOnTheButtons)
{
    const auto pictureWith = [&](const std::string& message) {
        make<UIAlertView>("", message, nullptr, "", std::vector<std::string> { "" })->show();
        desktop::Clock::shared().advance(1);
        auto picture = pictureOf(*window, 1);
        window->alerts().dismissAll();
        desktop::Clock::shared().advance(1);
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
    const auto panel = make<UIView>(CGRectMake(0, 0, 100, 80));
    panel->layer().setCornerRadius(20);
    panel->setClipsToBounds(true);
    window->addSubview(*panel);
    const auto button = make<UIButton>(CGRectMake(0, 0, 100, 80));
    panel->addSubview(*button);
    peerOf(*button).showsFocus = true;
    // The line's middle is an arc of 16 points around the corner's own middle.
    const auto picture = pictureOf(*window, 4);
    const int onTheArc = static_cast<int>(std::lround(4 * (20 - 16 / std::sqrt(2.0))));
    EXPECT_THAT(picture.pixelColor(onTheArc, onTheArc), IsThemed(desktop::theme::tint));
    EXPECT_THAT(picture.pixelColor(onTheArc - 7, onTheArc - 7), isWhite) << "nothing outside of it";
    EXPECT_THAT(picture.pixelColor(4 * 50, 4 * 4), IsThemed(desktop::theme::tint));
    EXPECT_THAT(picture.pixelColor(4 * 50, 4 * 2), isWhite);
    peerOf(*button).showsFocus = false;
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
    peerOf(*image).draw(canvas, CGRectMake(5, 0, 10, 20));
    EXPECT_THAT(picture.pixelColor(5, 0), isRed);
    EXPECT_THAT(picture.pixelColor(14, 2), isRed);
    EXPECT_THAT(picture.pixelColor(14, 19), IsColor(127, 127, 127));
    EXPECT_THAT(picture.pixelColor(4, 5), isWhite);
    EXPECT_THAT(picture.pixelColor(15, 5), isWhite);
}

TEST_F(APicture, CanBeWrittenToAFile)
{
    window->addSubview(*box(CGRectMake(10, 10, 20, 20), red()));
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
    const auto view = make<UIImageView>(CGRectMake(10, 10, 20, 20));
    window->addSubview(*view);
    EXPECT_THAT(pixel(15, 15), isWhite);
    view->setImage(filledImage({ 5, 5 }, { 1, 0, 0 }));
    EXPECT_THAT(pixel(10, 10), isRed);
    EXPECT_THAT(pixel(29, 29), isRed);
    EXPECT_THAT(pixel(30, 30), isWhite);
    view->setHighlighted(true);
    EXPECT_THAT(pixel(15, 15), isRed);
    view->setHighlightedImage(filledImage({ 5, 5 }, { 0, 0, 0 }));
    EXPECT_THAT(pixel(15, 15), isBlack);
    view->setHighlighted(false);
    EXPECT_THAT(pixel(15, 15), isRed);
}

class APictureOfATable : public testing::Test {
protected:
    void show(CGSize size, UITableViewStyle style = UITableViewStyle::Plain)
    {
        list.emplace(rows, size, style);
    }
    QColor pixel(int x, int y) const { return pictureOf(*list->window, 1).pixelColor(x, y); }
    UITableViewCell& cell(std::size_t row) const { return *list->table->cellForRowAtIndexPath({ 0, row }); }

    Rows rows { { 3 } };
    std::optional<TableInWindow> list;
};

TEST_F(APictureOfATable, ShowsHairlinesInTheColorThatItIsGiven)
{
    show({ 320, 200 });
    EXPECT_THAT(pixel(100, 43), IsThemed(desktop::theme::separator));
    EXPECT_THAT(pixel(100, 131), IsThemed(desktop::theme::separator));
    EXPECT_THAT(pixel(5, 43), isWhite);
    EXPECT_THAT(pixel(100, 42), isWhite);
    list->table->setSeparatorColor(red());
    EXPECT_THAT(pixel(100, 43), isRed);
    list->table->setSeparatorColor(UIColor::clearColor());
    EXPECT_THAT(pixel(100, 43), isWhite);
    list->table->setSeparatorColor(nullptr);
    EXPECT_THAT(pixel(100, 43), IsThemed(desktop::theme::separator));
}

TEST_F(APictureOfATable, ShowsASelectedRowAboveItsBackgroundView)
{
    show({ 320, 200 });
    cell(0).setBackgroundView(box({}, red()));
    EXPECT_THAT(pixel(200, 20), isRed);
    cell(0).setSelected(true, Animated::No);
    EXPECT_THAT(pixel(200, 20), IsThemed(desktop::theme::rowPressed));
    EXPECT_THAT(pixel(200, 60), isWhite);
    cell(0).selectedBackgroundView()->setBackgroundColor(UIColor::blackColor());
    EXPECT_THAT(pixel(200, 20), isBlack);
    cell(0).setSelected(false, Animated::No);
    EXPECT_THAT(pixel(200, 20), isRed);
}

TEST_F(APictureOfATable, ShowsASwipedRowsButton)
{
    show({ 320, 200 });
    rows.isEditable = [](const NSIndexPath&) { return true; };
    list->peer().revealDelete({ 0, 1 });
    desktop::Clock::shared().advance(1);
    EXPECT_THAT(pixel(240, 50), IsThemed(desktop::theme::destructive));
    EXPECT_THAT(pixel(319, 87), IsThemed(desktop::theme::destructive));
    EXPECT_THAT(pixel(236, 50), isWhite);
    EXPECT_THAT(pixel(300, 20), isWhite);
    list->window->touchDown({ { 300, 66 }, desktop::Pointer::Mouse });
    EXPECT_THAT(pixel(240, 50), IsThemed(desktop::theme::destructivePressed));
    list->window->touchCancel();
}

TEST_F(APictureOfATable, ShowsAPressedRowWithinTheRoundedCornersOfItsGroup)
{
    rows.counts = { 2 };
    show({ 600, 200 }, UITableViewStyle::Grouped);
    const auto rect = list->peer().rowRect({ 0, 0 });
    const int left = static_cast<int>(rect.origin.x);
    const int top = static_cast<int>(rect.origin.y);
    list->window->touchDown({ { 300, top + 20.0 }, desktop::Pointer::Mouse });
    EXPECT_THAT(pixel(300, top + 1), IsThemed(desktop::theme::rowPressed));
    EXPECT_THAT(pixel(left, top), IsThemed(desktop::theme::background));
    EXPECT_THAT(pixel(left, top + 42), IsThemed(desktop::theme::rowPressed)) << "no corner between two rows";
    EXPECT_THAT(pixel(300, top + 60), isWhite);
    EXPECT_THAT(pixel(300, top + 43), IsThemed(desktop::theme::separator));
    EXPECT_THAT(pixel(300, top + 87), isWhite) << "the last row has the group's edge";
    list->window->touchCancel();
}

} // namespace

} // namespace brimsound::tests
