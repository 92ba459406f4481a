// Colours as texts, and how well they can be read.
#include <ovoui/colour/ColourHistory.h>
#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/Contrast.h>
#include <ovoui/colour/RecentColours.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

namespace
{

std::wstring again(const wchar_t* text)
{
    const auto colour = colourFromText(text);
    return colour ? textOfColour(*colour) : L"nothing";
}

} // namespace

TEST(ColourText, DigitsWithAndWithoutTheMark)
{
    EXPECT_EQ(again(L"#FF8000"), L"#FF8000");
    EXPECT_EQ(again(L"ff8000"), L"#FF8000");
    EXPECT_EQ(again(L"  #0a0B0c\r\n"), L"#0A0B0C");
    EXPECT_EQ(again(L"#FF800080"), L"#FF800080");
    EXPECT_EQ(again(L"00000000"), L"#00000000");
    EXPECT_EQ(colourFromText(L"#FF8000")->a(), -1);
    EXPECT_EQ(colourFromText(L"#FF8000FF")->a(), 1);
}

TEST(ColourText, NamesInAnyCase)
{
    EXPECT_EQ(again(L"red"), L"#FF0000");
    EXPECT_EQ(again(L" RebeccaPurple "), L"#663399");
    EXPECT_EQ(again(L"aliceblue"), L"#F0F8FF");
    EXPECT_EQ(again(L"yellowgreen"), L"#9ACD32");
    EXPECT_EQ(again(L"beads"), L"nothing");
    EXPECT_EQ(again(L"facade"), L"#FACADE") << "six digits, though a word";
}

TEST(ColourText, AnythingElseIsNothing)
{
    for (const wchar_t* const text :
         {L"", L"   ", L"#", L"#12345", L"#1234567", L"#123456789", L"12345G", L"##123456", L"# 123456",
          L"reddish", L"\u0661\u0661\u0661\u0661\u0661\u0661"})
        EXPECT_EQ(again(text), L"nothing") << text;
}

TEST(ColourText, EveryByteComesBack)
{
    for (unsigned value = 0; value < 0x1000000; value += 4099) {
        const Colour colour =
            Colour::rgb((value >> 16) / 255.0, (value >> 8 & 0xFF) / 255.0, (value & 0xFF) / 255.0);
        EXPECT_EQ(again(textOfColour(colour).c_str()), textOfColour(colour));
    }
}

TEST(ColourText, NamesOfColours)
{
    EXPECT_EQ(nameOfColour(Colour::rgb(1, 0, 0)), L"red");
    EXPECT_EQ(nameOfColour(Colour::rgb(0, 1, 1)), L"aqua") << "which is cyan, too";
    EXPECT_EQ(nameOfColour(Colour::rgba(1, 0, 0, 1)), L"red");
    EXPECT_EQ(nameOfColour(Colour::rgba(1, 0, 0, 0.5)), L"");
    EXPECT_EQ(nameOfColour(Colour::rgb(0.1, 0, 0)), L"");
    EXPECT_EQ(colourFromText(nameOfColour(Colour::rgb(1, 1, 0)))->colorref(), 0x00FFFFul);
}

TEST(Contrast, OfBlackAndWhiteAndOfEqualColours)
{
    const Colour black = Colour::rgb(0, 0, 0);
    const Colour white = Colour::rgb(1, 1, 1);
    EXPECT_NEAR(contrast(black, white), 21, 1e-9);
    EXPECT_NEAR(contrast(white, black), 21, 1e-9);
    EXPECT_EQ(contrast(white, white), 1);
    EXPECT_NEAR(contrast(Colour::rgb(1, 0, 0), white), 3.998, 0.001);
    EXPECT_NEAR(contrast(*colourFromText(L"#767676"), white), 4.54, 0.005);
}

TEST(Contrast, Grades)
{
    EXPECT_EQ(gradeOf(21), L"AAA");
    EXPECT_EQ(gradeOf(7), L"AAA");
    EXPECT_EQ(gradeOf(6.99), L"AA");
    EXPECT_EQ(gradeOf(4.5), L"AA");
    EXPECT_EQ(gradeOf(4.49), L"AA large");
    EXPECT_EQ(gradeOf(3), L"AA large");
    EXPECT_EQ(gradeOf(2.99), L"-");
}

TEST(ColourHistory, GoesBackAndForwardAndForgetsWhatWasUndone)
{
    const Colour red = Colour::rgb(1, 0, 0);
    const Colour green = Colour::rgb(0, 1, 0);
    const Colour blue = Colour::rgb(0, 0, 1);
    ColourHistory history(red);
    EXPECT_EQ(history.back(), nullptr);
    EXPECT_EQ(history.forward(), nullptr);
    history.add(green);
    history.add(green); // nothing new
    history.add(blue);
    EXPECT_EQ(history.back()->colorref(), green.colorref());
    EXPECT_EQ(history.back()->colorref(), red.colorref());
    EXPECT_EQ(history.back(), nullptr);
    EXPECT_EQ(history.forward()->colorref(), green.colorref());
    history.add(red);
    EXPECT_EQ(history.forward(), nullptr);
    EXPECT_EQ(history.back()->colorref(), green.colorref());
}

TEST(ColourHistory, TheHueOfAGreyCounts)
{
    ColourHistory history(Colour::hls(Angle::degrees(10), 0.5, 0));
    history.add(Colour::hls(Angle::degrees(200), 0.5, 0));
    ASSERT_NE(history.back(), nullptr);
}

// Lists of colours

TEST(ColourText, ANameOrElseTheCode)
{
    EXPECT_EQ(nameOrCodeOfColour(Colour::rgb(1, 0, 0)), L"red");
    EXPECT_EQ(nameOrCodeOfColour(Colour::rgb(1, 0, 1.0 / 255)), L"#FF0001");
    EXPECT_EQ(nameOrCodeOfColour(Colour::rgba(1, 0, 0, 0)), L"#FF000000");
}

TEST(ColourText, ListsOfColoursComeBack)
{
    EXPECT_EQ(textOfColours({}), L"");
    EXPECT_EQ(textOfColours({Colour::rgb(1, 0, 0), Colour::rgba(0, 0, 1, 1)}), L"#FF0000 #0000FFFF");
    const auto read = coloursFromText(L" #FF0000  rubbish #0000FFFF ");
    ASSERT_EQ(read.size(), 3u);
    ASSERT_TRUE(read[0]);
    EXPECT_EQ(read[0]->colorref(), 0x0000FFu);
    EXPECT_FALSE(read[1]) << "the others keep their places";
    ASSERT_TRUE(read[2]);
    EXPECT_EQ(read[2]->a(), 1);
    EXPECT_TRUE(coloursFromText(L"").empty());
    EXPECT_TRUE(coloursFromText(L"   ").empty());
}

TEST(RecentColours, TheLastOneUsedIsFirstAndEachIsThereOnce)
{
    RecentColours recent(3);
    recent.use(Colour::rgb(1, 0, 0));
    recent.use(Colour::rgb(0, 1, 0));
    recent.use(Colour::rgba(1, 0, 0, 0.5));
    EXPECT_EQ(recent.text(), L"#FF0000 #00FF00") << "without alpha";
    recent.use(Colour::rgb(0, 0, 1));
    recent.use(Colour::rgb(1, 1, 1));
    EXPECT_EQ(recent.text(), L"#FFFFFF #0000FF #FF0000") << "as many as there is room for";
}

TEST(RecentColours, ComeBackFromTheirText)
{
    RecentColours recent(3);
    recent.setText(L"#FFFFFF rubbish #0000FF #FFFFFF #FF0000 #00FF00");
    EXPECT_EQ(recent.text(), L"#FFFFFF #0000FF #FF0000");
    recent.setText(L"");
    EXPECT_TRUE(recent.colours().empty());
}

TEST(RecentColours, WithoutRoomNoneIsKept)
{
    RecentColours recent(0);
    recent.use(Colour::rgb(1, 0, 0));
    EXPECT_TRUE(recent.colours().empty());
}
