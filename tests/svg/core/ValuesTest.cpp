// Lengths, colours, transforms, and how a picture fits.
#include <ovosvg/core/Values.h>

#include <gtest/gtest.h>

#include <random>

using namespace ovosvg;

namespace
{

void expectNear(const Matrix& one, const Matrix& other, const std::string& what)
{
    for (const Point p : {Point{0, 0}, Point{1, 0}, Point{0, 1}})
        EXPECT_LT(length(one.map(p) - other.map(p)), 1e-9) << what;
}

} // namespace

TEST(Lengths, HaveUnits)
{
    const std::pair<const char*, double> known[] = {
        {"1", 1},       {" 2.5px ", 2.5}, {"72pt", 96}, {"6pc", 96},  {"25.4mm", 96},
        {"2.54CM", 96}, {"1in", 96},      {"-3", -3},   {"1e2", 100}, {"+.5", 0.5}};
    for (const auto& [text, value] : known) {
        ASSERT_TRUE(lengthFrom(text)) << text;
        EXPECT_NEAR(lengthFrom(text)->of(1000), value, 1e-9) << text;
    }
    EXPECT_EQ(lengthFrom("25%")->of(200), 50);
    for (const char* text :
         {"", " ", "px", "1em", "2ex", "1 px", "1px2", "1e999", "--1", "1,", "nan", "inf", "0x1"})
        EXPECT_FALSE(lengthFrom(text)) << text;
}

TEST(Shares, AreLimited)
{
    EXPECT_EQ(shareFrom("0.25"), 0.25);
    EXPECT_EQ(shareFrom("25%"), 0.25);
    EXPECT_EQ(shareFrom("7"), 1);
    EXPECT_EQ(shareFrom("-7"), 0);
    EXPECT_FALSE(shareFrom("half"));
    EXPECT_FALSE(shareFrom("1 2"));
}

TEST(Lists, AreApartByBlanksOrCommas)
{
    EXPECT_EQ(numbersFrom("1 2,3 , 4\n-5-6"), (std::vector<double>{1, 2, 3, 4, -5, -6}));
    EXPECT_EQ(numbersFrom(""), std::vector<double>{});
    EXPECT_FALSE(numbersFrom("1,,2"));
    EXPECT_FALSE(numbersFrom("1 x"));
    EXPECT_EQ(lengthsFrom("1px 50%")->at(1).of(10), 5);
}

TEST(Colours, AreWrittenInManyWays)
{
    const std::pair<const char*, std::uint32_t> known[] = {
        {"#1a2b3c", 0xFF1A2B3C},
        {"#1A2B3C80", 0x801A2B3C},
        {"#f80", 0xFFFF8800},
        {"#f808", 0x88FF8800},
        {"red", 0xFFFF0000},
        {"RebeccaPurple", 0xFF663399},
        {" teal ", 0xFF008080},
        {"transparent", 0},
        {"rgb(1,2,3)", 0xFF010203},
        {"rgb( 100%, 0% ,50% )", 0xFFFF0080},
        {"rgba(1, 2, 3, 0.5)", 0x80010203},
        {"rgb(1 2 3 / 50%)", 0x80010203},
        {"rgb(300, -5, 3)", 0xFFFF0003},
        {"hsl(0, 100%, 50%)", 0xFFFF0000},
        {"hsl(120 100% 25%)", 0xFF008000},
        {"hsl(-120, 100%, 50%)", 0xFF0000FF},
        {"hsla(60, 100%, 50%, 0.2)", 0x33FFFF00},
        {"hsl(77, 0%, 50%)", 0xFF808080},
        {"hsl(120deg, 100%, 50%)", 0xFF00FF00},
        {"HSL(240DEG 100% 50% / 50%)", 0x800000FF},
        {"hsl(-240deg 100% 50%)", 0xFF00FF00},
        {"hsl(133.33333grad, 100%, 50%)", 0xFF00FF00},
        {"hsl(4.1887902rad, 100%, 50%)", 0xFF0000FF},
        {"hsla(.5turn, 100%, 50%, 1)", 0xFF00FFFF},
        {"hsl(1e300turn, 0%, 50%)", 0xFF808080},
    };
    for (const auto& [text, value] : known)
        EXPECT_EQ(colourFrom(text), value) << text;
    for (const char* text : {"",
                             "#",
                             "#12",
                             "#12345",
                             "#gggggg",
                             "reddish",
                             "rgb(1,2)",
                             "rgb(1,2,3",
                             "rgb(1,2,3,4,5)",
                             "rgb(a,b,c)",
                             "currentColor",
                             "none",
                             "url(#a)",
                             "cmyk(1,2,3)",
                             "hsl(120 deg, 100%, 50%)",
                             "hsl(120px, 100%, 50%)",
                             "hsl(50%, 100%, 50%)",
                             "hsl(deg, 100%, 50%)",
                             "rgb(1deg, 2, 3)",
                             "hsl(0, 1deg, 50%)"})
        EXPECT_FALSE(colourFrom(text)) << text;
}

TEST(Colours, OfHslNumbersWithoutASignArePercentages)
{
    EXPECT_EQ(colourFrom("hsl(120 100 25)"), 0xFF008000);
    EXPECT_EQ(colourFrom("hsl(0 100 50 / .5)"), 0x80FF0000);
    EXPECT_EQ(colourFrom("hsl(240deg 100% 50)"), 0xFF0000FF);
}

TEST(Transforms, AreCarriedOutFromTheRight)
{
    expectNear(*transformFrom("matrix(1 2 3 4 5 6)"), {1, 2, 3, 4, 5, 6}, "matrix");
    expectNear(*transformFrom("translate(3)"), {1, 0, 0, 1, 3, 0}, "translate");
    expectNear(*transformFrom("translate(3,4)"), {1, 0, 0, 1, 3, 4}, "translate");
    expectNear(*transformFrom("scale(2)"), {2, 0, 0, 2, 0, 0}, "scale");
    expectNear(*transformFrom("scale(2 -3)"), {2, 0, 0, -3, 0, 0}, "scale");
    expectNear(*transformFrom("rotate(90)"), {0, 1, -1, 0, 0, 0}, "rotate");
    expectNear(*transformFrom("rotate(90, 1, 1)"), {0, 1, -1, 0, 2, 0}, "rotate around");
    expectNear(*transformFrom("skewX(45)"), {1, 0, 1, 1, 0, 0}, "skewX");
    expectNear(*transformFrom("skewY(45)"), {1, 1, 0, 1, 0, 0}, "skewY");
    expectNear(*transformFrom(" translate(1,2) , scale(3)\nrotate( 90 )"),
               Matrix::translation(1, 2) * Matrix::scaling(3, 3) * Matrix::rotation(90), "a list");
    expectNear(*transformFrom(""), {}, "nothing");
    expectNear(*transformFrom("none"), {}, "none");
    for (const char* text : {"scale", "scale(", "scale()", "scale(1 2 3)", "matrix(1 2 3 4 5)", "turn(3)",
                             "scale(2) x", "rotate(1 2)", "scale(2)(3)", "(1)", "translate(1px)"})
        EXPECT_FALSE(transformFrom(text)) << text;
}

TEST(Transforms, AreUndoneByTheirInverse)
{
    std::mt19937 random(6);
    std::uniform_real_distribution<double> at(-3, 3);
    for (int round = 0; round < 500; ++round) {
        const Matrix one{at(random), at(random), at(random), at(random), at(random), at(random)};
        const Matrix other{at(random), at(random), at(random), at(random), at(random), at(random)};
        const Point p{at(random), at(random)};
        ASSERT_LT(length((one * other).map(p) - one.map(other.map(p))), 1e-9);
        if (std::abs(one.determinant()) > 0.01) {
            ASSERT_LT(length(one.inverse().map(one.map(p)) - p), 1e-9);
        }
        ASSERT_NEAR((one * other).determinant(), one.determinant() * other.determinant(), 1e-9);
    }
    EXPECT_FALSE((Matrix{1, 2, 2, 4, 0, 0}).invertible());
}

TEST(Transforms, HaveAGreatestStretch)
{
    EXPECT_NEAR(transformFrom("scale(3 -5)")->stretch(), 5, 1e-12);
    EXPECT_NEAR(transformFrom("rotate(20) scale(3 5) rotate(40)")->stretch(), 5, 1e-12);
    EXPECT_NEAR(transformFrom("skewX(45)")->stretch(), (1 + std::sqrt(5)) / 2, 1e-12);
    EXPECT_EQ(transformFrom("scale(0)")->stretch(), 0);
}

TEST(Fits, PutAPictureIntoARoom)
{
    const Box from{10, 20, 40, 20};
    const Box to{0, 0, 100, 100};
    const auto mapped = [&](const char* text) {
        const Matrix matrix = fitFrom(text)->matrix(from, to);
        const Point corner = matrix.map({from.x, from.y});
        const Point end = matrix.map({from.x + from.width, from.y + from.height});
        return Box{corner.x, corner.y, end.x - corner.x, end.y - corner.y};
    };
    EXPECT_EQ(mapped("xMidYMid meet"), (Box{0, 25, 100, 50}));
    EXPECT_EQ(mapped("xMinYMin"), (Box{0, 0, 100, 50}));
    EXPECT_EQ(mapped("xMaxYMax"), (Box{0, 50, 100, 50}));
    EXPECT_EQ(mapped("xMidYMid slice"), (Box{-50, 0, 200, 100}));
    EXPECT_EQ(mapped("xMinYMid slice"), (Box{0, 0, 200, 100}));
    EXPECT_EQ(mapped(" xMaxYMin  slice "), (Box{-100, 0, 200, 100}));
    EXPECT_EQ(mapped("none"), (Box{0, 0, 100, 100}));
    EXPECT_EQ(mapped("none meet"), (Box{0, 0, 100, 100}));
    for (const char* text : {"", "xMid", "xMidYMid stretch", "xmidymid", "xMinYMin meet slice", "xTopYMid"})
        EXPECT_FALSE(fitFrom(text)) << text;
}
