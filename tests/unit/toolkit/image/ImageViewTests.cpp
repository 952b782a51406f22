#include "toolkit/image/ImageView.h"

#include "tests/unit/toolkit/Images.h"
#include "tests/unit/toolkit/Redrawing.h"

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::ImageView;
using toolkit::makeRect;
using toolkit::Ref;
using toolkit::Size;

constexpr auto place = makeRect(10, 10, 30, 20);

TEST(AnImage, HasASizeInPoints)
{
    EXPECT_EQ(filledImage({ 5, 6 }, {})->size(), (Size { 5, 6 }));
}

/// An image view in a window, and images for it.
class AnImageView : public Redrawing {
protected:
    const Ref<ImageView> view = added<ImageView>(place);
    const Ref<toolkit::Image> red = filledImage({ 5, 5 }, { 1, 0, 0 });
    const Ref<toolkit::Image> black = filledImage({ 5, 5 }, { 0, 0, 0 });
};

TEST_F(AnImageView, HasNoImageAtFirst)
{
    EXPECT_EQ(view->image(), nullptr);
    EXPECT_EQ(view->highlightedImage(), nullptr);
    EXPECT_FALSE(view->isHighlighted());
}

TEST_F(AnImageView, HoldsItsImages)
{
    view->setImage(red);
    view->setHighlightedImage(black);
    EXPECT_EQ(view->image(), red.get());
    EXPECT_EQ(view->highlightedImage(), black.get());
    EXPECT_EQ(red->retainCount(), 2u);
    EXPECT_EQ(black->retainCount(), 2u);
    view->setImage(nullptr);
    view->setHighlightedImage(nullptr);
    EXPECT_EQ(red->retainCount(), 1u);
    EXPECT_EQ(black->retainCount(), 1u);
}

TEST_F(AnImageView, IsRedrawnWhenItLooksDifferent)
{
    view->setImage(red);
    EXPECT_THAT(parts(), ElementsAre(place));
    view->setHighlightedImage(black);
    EXPECT_THAT(parts(), ElementsAre(place));
    view->setHighlighted(true);
    EXPECT_THAT(parts(), ElementsAre(place));
    EXPECT_TRUE(view->isHighlighted());
}

TEST_F(AnImageView, IsNotRedrawnWhenItLooksTheSame)
{
    view->setImage(red);
    view->setHighlightedImage(black);
    view->setHighlighted(true);
    parts();
    view->setImage(red);
    view->setHighlightedImage(black);
    view->setHighlighted(true);
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(AnImageView, TellsWhenItsImageChanges)
{
    int changes = 0;
    view->onChange = [&] { ++changes; };
    view->setImage(red);
    EXPECT_EQ(changes, 1);
    view->setImage(red);
    view->setHighlightedImage(black);
    view->setHighlighted(true);
    EXPECT_EQ(changes, 1);
    view->setImage(nullptr);
    EXPECT_EQ(changes, 2);
}

} // namespace

} // namespace brimsound::tests
