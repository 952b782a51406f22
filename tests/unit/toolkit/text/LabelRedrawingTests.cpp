#include "toolkit/text/Label.h"

#include "tests/unit/toolkit/Redrawing.h"

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Alignment;
using toolkit::Color;
using toolkit::Font;
using toolkit::Label;
using toolkit::makeRect;

constexpr Color white { 1, 1, 1 };
constexpr Color yellow { 1, 1, 0 };
constexpr auto place = makeRect(10, 10, 100, 20);

/// A label in a window.
class ALabelInAWindow : public Redrawing {
protected:
    const toolkit::Ref<Label> label = added<Label>(place);
};

TEST_F(ALabelInAWindow, IsRedrawnWhenItLooksDifferent)
{
    label->setText("12.0");
    EXPECT_THAT(parts(), ElementsAre(place));
    label->setColor(yellow);
    EXPECT_THAT(parts(), ElementsAre(place));
    label->setFont(Font { {}, 10 });
    EXPECT_THAT(parts(), ElementsAre(place));
    label->setAlignment(Alignment::Center);
    EXPECT_THAT(parts(), ElementsAre(place));
    EXPECT_EQ(label->text(), "12.0");
    EXPECT_EQ(label->alignment(), Alignment::Center);
}

TEST_F(ALabelInAWindow, IsNotRedrawnWhenItLooksTheSame)
{
    label->setText("60");
    parts();
    label->setText("60");
    label->setColor({ 0, 0, 0 });
    label->setFont(label->font());
    label->setAlignment(std::nullopt);
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(ALabelInAWindow, IsRedrawnWhenHighlightingChangesItsColor)
{
    label->setHighlighted(true);
    EXPECT_TRUE(label->isHighlighted());
    EXPECT_THAT(parts(), IsEmpty()) << "it has no color of its own for that";
    label->setHighlightedColor(white);
    EXPECT_THAT(parts(), ElementsAre(place));
    label->setColor(yellow);
    EXPECT_THAT(parts(), IsEmpty());
    label->setHighlighted(false);
    EXPECT_THAT(parts(), ElementsAre(place));
}

} // namespace

} // namespace brimsound::tests
