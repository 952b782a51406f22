#include "platform/desktop/Qt/Fonts.h"

#include "platform/desktop/UIKit/Font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::qFont;

TEST(TheBoldTextFont, IsBold)
{
    const auto font = UIFont::fontWithNameSize("HelveticaNeue-Bold", 15);
    ASSERT_TRUE(font);
    EXPECT_EQ(font->fontName(), "HelveticaNeue-Bold");
    EXPECT_EQ(font->pointSize(), 15);
    EXPECT_EQ(qFont(*desktop::toolkitFont(font)).weight(), QFont::Bold);
    EXPECT_FALSE(qFont(*desktop::toolkitFont(font)).italic());
    EXPECT_GE(QFontInfo(qFont(*desktop::toolkitFont(font))).weight(), QFont::DemiBold);
}

TEST(ATextFont, TakesItsWeightAndSlantFromItsStyle)
{
    const auto face = [](const char* name) { return qFont({ name, 12 }); };
    EXPECT_EQ(face("HelveticaNeue").weight(), QFont::Normal);
    EXPECT_EQ(face("HelveticaNeue-Light").weight(), QFont::Light);
    EXPECT_EQ(face("HelveticaNeue-UltraLight").weight(), QFont::ExtraLight);
    EXPECT_EQ(face("HelveticaNeue-Medium").weight(), QFont::Medium);
    EXPECT_EQ(face("HelveticaNeue-BoldItalic").weight(), QFont::Bold);
    EXPECT_TRUE(face("HelveticaNeue-BoldItalic").italic());
    EXPECT_TRUE(face("HelveticaNeue-Italic").italic());
    EXPECT_EQ(face("HelveticaNeue-Italic").weight(), QFont::Normal);
}

TEST(ATextFont, IsAsManyPixelsHighAsItHasPoints)
{
    EXPECT_EQ(qFont({ {}, 17 }).pixelSize(), 17);
    EXPECT_EQ(qFont({ {}, 11 }).pixelSize(), 11);
    EXPECT_EQ(qFont({ {}, 0 }).pixelSize(), 1);
}

TEST(ATextFont, KeepsItsFaceInAnotherSize)
{
    const auto font = UIFont::fontWithNameSize("HelveticaNeue-Bold", 15)->fontWithSize(20);
    EXPECT_EQ(font->fontName(), "HelveticaNeue-Bold");
    EXPECT_EQ(font->pointSize(), 20);
}

TEST(AFontThatTheMachineDoesNotHave, IsNull)
{
    EXPECT_FALSE(UIFont::fontWithNameSize("NoSuchFontAnywhere-Bold", 15));
    EXPECT_FALSE(UIFont::fontWithNameSize("", 15));
    EXPECT_FALSE(UIFont::fontWithNameSize("-Bold", 15));
}

TEST(AFontThatTheMachineHas, IsFoundByItsFamily)
{
    const auto families = QFontDatabase::families();
    if (families.isEmpty())
        GTEST_SKIP() << "the machine has no fonts";
    EXPECT_TRUE(UIFont::fontWithNameSize(families.front().toStdString(), 15));
}

TEST(AParagraph, IsAsHighAsTheLinesThatItTakes)
{
    const toolkit::Font font { {}, 13 };
    const double one = toolkit::heightOfParagraph("word", font, 300);
    EXPECT_GT(one, 10);
    EXPECT_EQ(toolkit::heightOfParagraph("word word", font, 300), one);
    EXPECT_GT(toolkit::heightOfParagraph("word word word word word", font, 40), 3 * one);
}

} // namespace

} // namespace brimsound::tests
