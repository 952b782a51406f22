#include "platform/UIKit/UIImageView.h"

#include "tests/unit/platform/UIKit/Images.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

TEST(AUIImageView, KeepsItsImageObjects)
{
    const auto view = make<UIImageView>(CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(view->image(), nullptr);
    EXPECT_EQ(view->highlightedImage(), nullptr);
    const auto image = filledImage({ 5, 5 }, UIColor::whiteColor());
    const auto highlighted = filledImage({ 5, 5 }, UIColor::blackColor());
    view->setImage(image);
    view->setHighlightedImage(highlighted);
    EXPECT_EQ(view->image(), image.get());
    EXPECT_EQ(view->highlightedImage(), highlighted.get());
    EXPECT_EQ(image->retainCount(), 2u);
    view->setImage(nullptr);
    EXPECT_EQ(view->image(), nullptr);
    EXPECT_EQ(image->retainCount(), 1u);
}

TEST(AUIImageView, IsNotHighlightedAtFirst)
{
    const auto view = make<UIImageView>();
    EXPECT_FALSE(view->isHighlighted());
    view->setHighlighted(true);
    EXPECT_TRUE(view->isHighlighted());
}

} // namespace

} // namespace brimsound::tests
