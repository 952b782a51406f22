#include "tests/unit/toolkit/BlankCanvas.h"
#include "toolkit/text/Label.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Alignment;
using toolkit::Color;
using toolkit::Font;
using toolkit::Label;
using toolkit::make;
using toolkit::Role;

/// Records what a label draws.
class Look : public BlankCanvas {
public:
    explicit Look(const Label& label) { label.draw(*this); }

    void drawLine(const std::string& text, const toolkit::Rect&, const Font&, const Color& textColor,
        Alignment textAlignment) override
    {
        texts.push_back(text);
        color = textColor;
        alignment = textAlignment;
    }

    std::vector<std::string> texts;
    Color color;
    Alignment alignment = Alignment::Left;
};

TEST(ALabel, IsEmptyAndBlackAtFirst)
{
    const auto label = make<Label>();
    EXPECT_EQ(label->text(), "");
    EXPECT_EQ(label->font(), (Font { "", 17 }));
    EXPECT_EQ(label->color(), (Color { 0, 0, 0, 1 }));
    EXPECT_FALSE(label->highlightedColor());
    EXPECT_FALSE(label->isHighlighted());
    EXPECT_EQ(label->alignment(), std::nullopt);
    EXPECT_THAT(Look(*label).texts, IsEmpty());
}

TEST(ALabel, DrawsItsTextInItsColorAndAlignment)
{
    const auto label = make<Label>();
    label->setText("Bass");
    label->setColor({ 1, 0, 0 });
    label->setAlignment(Alignment::Right);
    const Look look(*label);
    EXPECT_THAT(look.texts, ElementsAre("Bass"));
    EXPECT_EQ(look.color, (Color { 1, 0, 0 }));
    EXPECT_EQ(look.alignment, Alignment::Right);
}

TEST(ALabel, DrawsItsTextInTheHighlightedColorWhileItIsHighlighted)
{
    const auto label = make<Label>();
    label->setText("Bass");
    label->setHighlighted(true);
    EXPECT_EQ(Look(*label).color, label->color()) << "without a highlighted color";
    label->setHighlightedColor(Color { 1, 1, 1 });
    EXPECT_EQ(Look(*label).color, (Color { 1, 1, 1 }));
    label->setHighlighted(false);
    EXPECT_EQ(Look(*label).color, label->color());
}

TEST(ALabel, DrawsNothingWithoutAFont)
{
    const auto label = make<Label>();
    label->setText("Bass");
    label->setFont(std::nullopt);
    EXPECT_THAT(Look(*label).texts, IsEmpty());
}

TEST(ALabel, TellsWhenItsTextOrFontChanges)
{
    const auto label = make<Label>();
    int changes = 0;
    label->onChange = [&] { ++changes; };
    label->setText("Bass");
    EXPECT_EQ(changes, 1);
    label->setFont(Font { "", 20 });
    EXPECT_EQ(changes, 2);
    label->setText("Bass");
    label->setFont(Font { "", 20 });
    label->setColor({ 1, 0, 0 });
    EXPECT_EQ(changes, 2);
}

TEST(ALabel, IsReadByItsTextUnlessItIsEmptyOrNamesAControl)
{
    const auto label = make<Label>();
    EXPECT_EQ(label->role(), Role::None);
    label->setText("Bass");
    EXPECT_EQ(label->accessible().role, Role::Label);
    EXPECT_EQ(label->accessible().name, "Bass");
    label->setRead(false);
    EXPECT_EQ(label->role(), Role::None);
}

} // namespace

} // namespace brimsound::tests
