// Whole drawings, by their pixels.
#include "Pixels.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <utility>

using namespace ovosvg;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr double kArea = 0.25; // what rounding to bytes may add up to

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

int channel(std::uint32_t pixel, int shift)
{
    return static_cast<int>(pixel >> shift & 0xFF);
}

} // namespace

// Shapes

TEST(SvgDrawing, ShapesCoverTheirAreas)
{
    const std::pair<const char*, double> shapes[] = {
        {"<rect x='2.5' y='3' width='7.25' height='4.5'/>", 7.25 * 4.5},
        {"<rect x='2' y='3' width='8' height='6' rx='2'/>", 48 - (4 - kPi) * 4},
        {"<rect x='2' y='3' width='8' height='6' ry='2' rx='4'/>", 48 - (4 - kPi) * 8},
        {"<rect x='2' y='3' width='8' height='6' rx='auto' ry='3'/>", 48 - (4 - kPi) * 9},
        {"<rect width='25%' height='50%'/>", 4 * 8},
        {"<circle cx='8' cy='8' r='5'/>", kPi * 25},
        {"<circle cx='50%' cy='50%' r='25%'/>", kPi * 16},
        {"<ellipse cx='8' cy='8' rx='6' ry='3'/>", kPi * 18},
        {"<ellipse cx='8' cy='8' rx='4'/>", kPi * 16},
        {"<polygon points='2,2 14,2 2,14'/>", 72},
        {"<polyline points='2,2 14,2 2,14'/>", 72},
        {"<line x1='2' y1='8' x2='14' y2='8' stroke='red' stroke-width='2'/>", 24},
        {"<line x1='2' y1='8' x2='14' y2='8'/>", 0},
        {"<path d='M2 2h12v12h-12zM5 5v6h6v-6z'/>", 144 - 36},
        {"<path d='M2 2h12v12h-12zM5 5h6v6h-6z'/>", 144},
        {"<path fill-rule='evenodd' d='M2 2h12v12h-12zM5 5h6v6h-6z'/>", 144 - 36},
        {"<path d='M2 8a6 6 0 0 1 12 0z'/>", kPi * 18},
        {"<path d='M8 2A6 6 0 0 1 8 14z'/>", kPi * 18},
        {"<path d='M2 2q6 12 12 0z'/>", 12 * 6 * 2 / 3.0},
        {"<rect width='5' height='0'/><circle/><ellipse rx='3' ry='0'/><path/><path d='none'/><polygon/>", 0},
    };
    for (const auto& [content, area] : shapes) {
        const Pixels pixels = drawn(content);
        EXPECT_NEAR(pixels.area(), area, kArea) << content;
        EXPECT_THAT(pixels.notes, IsEmpty()) << content;
    }
}

TEST(SvgDrawing, TurnedShapesCoverAsMuch)
{
    std::mt19937 random(8);
    std::uniform_real_distribution<double> at(0.4, 1.6);
    for (int round = 0; round < 30; ++round) {
        const double x = at(random);
        const double y = at(random);
        const double angle = 360 * at(random);
        const std::string transform = "translate(8 8) rotate(" + std::to_string(angle) + ") scale(" +
                                      std::to_string(x) + " " + std::to_string(y) + ")";
        const auto area = [&](const char* shape) {
            return drawn("<g transform='" + transform + "'>" + shape + "</g>").area();
        };
        ASSERT_NEAR(area("<rect x='-3' y='-2' width='6' height='4'/>"), 24 * x * y, kArea) << transform;
        ASSERT_NEAR(area("<circle r='4'/>"), kPi * 16 * x * y, kArea) << transform;
        ASSERT_NEAR(area("<path d='M-4 0H4' stroke='red' stroke-width='2'/>"), 16 * x * y, kArea)
            << transform;
    }
}

TEST(SvgDrawing, CurvesStayRoundWhereTheyAreStretched)
{
    // Two thirds of 12 by 6, whichever way the drawing is stretched.
    EXPECT_NEAR(drawn("<path d='M2 2q6 12 12 0z'/>").area(), 48, kArea);
    EXPECT_NEAR(drawn("<path d='M2 .002q6 .012 12 0z' transform='scale(1 1000)'/>").area(), 48, kArea);
    EXPECT_NEAR(drawn("<path d='M.002 2q.012 6 0 12z' transform='scale(1000 1)'/>").area(), 48, kArea);
    EXPECT_NEAR(drawn("<path d='M.02 200q.12 600 0 1200z' transform='scale(100 .01)'/>").area(), 48, kArea);
}

TEST(SvgDrawing, EdgesOnPixelsAreSharp)
{
    const Pixels pixels = drawn("<rect x='2' y='3' width='4' height='5' fill='red'/>");
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            EXPECT_EQ(pixels.at(x, y), x >= 2 && x < 6 && y >= 3 && y < 8 ? kRed : 0u);
    EXPECT_EQ(drawn("<rect x='2.5' y='3' width='4' height='5' fill='red'/>").at(2, 4), 0x80800000u)
        << "half a pixel, premultiplied";
}

TEST(SvgDrawing, StraightPixelsKeepTheirColour)
{
    std::vector<SvgNote> notes;
    const auto pixels = Drawing(svg("<rect x='2.5' y='3' width='4' height='5' fill='#ff8040'/>"))
                            .draw(16, 16, 0xFF000000, notes)
                            .straight();
    EXPECT_EQ(pixels[16 * 4 + 2], 0x80FF8040u);
    EXPECT_EQ(pixels[16 * 4 + 4], 0xFFFF8040u);
    EXPECT_EQ(pixels[0], 0u);
}

// Paint

TEST(SvgDrawing, StyleComesFromTheElementAndWhatItLiesIn)
{
    const char* red[] = {
        "<rect width='16' height='16' fill='red'/>",
        "<rect width='16' height='16' style='fill:red'/>",
        "<rect width='16' height='16' fill='blue' style=' stroke : none ; fill : #f00 ;'/>",
        "<g fill='red'><rect width='16' height='16'/></g>",
        "<g style='fill:red'><rect width='16' height='16' fill='inherit'/></g>",
        "<g fill='red'><rect width='16' height='16' fill='blue' style='fill:inherit'/></g>",
        "<g color='red'><rect width='16' height='16' fill='currentColor' color='blue' "
        "style='color:currentColor'/></g>",
        "<path stroke='red' stroke-width='16' d='M0 8H16' stroke-dasharray='0 9' "
        "style='stroke-dasharray:inherit;display:inherit;opacity:inherit'/>",
        "<rect width='16' height='16' fill='blue' style='fill:red !important'/>",
        "<rect width='16' height='16' fill='red'/><g style='display:none! important'><circle r='99'/></g>",
        "<g style='color:red'><rect width='16' height='16' color='currentcolor' fill='CurrentColor'/></g>",
        "<g color='red'><rect width='16' height='16' fill='currentColor'/></g>",
        "<g color='red' fill='currentColor'><rect width='16' height='16' color='inherit'/></g>",
        "<g fill='blue'><g fill='red'><rect width='16' height='16'/></g></g>",
        "<path stroke='red' stroke-width='16' d='M0 8H16'/>",
        "<rect width='16' height='16' fill='blue'/><rect width='16' height='16' fill='red'/>",
        "<rect width='16' height='16' fill='red'/><rect width='16' height='16' fill='none'/>",
        "<rect width='16' height='16' fill='red'/><g display='none'><rect width='16' height='16'/></g>",
        "<rect width='16' height='16' fill='red'/><rect visibility='hidden' width='16' height='16'/>",
        "<g visibility='hidden'><rect visibility='visible' fill='red' width='16' height='16'/></g>",
        "<rect width='16' height='16' fill='red'/><rect opacity='0' width='16' height='16'/>"};
    for (const char* content : red) {
        const Pixels pixels = drawn(content);
        EXPECT_EQ(pixels.at(8, 8), kRed) << content;
        EXPECT_THAT(pixels.notes, IsEmpty()) << content;
    }
    EXPECT_EQ(Pixels(svg("<rect width='16' height='16' fill='currentColor'/>"), 16, kBlue).at(3, 3), kBlue);
    EXPECT_EQ(drawn("<rect width='16' height='16'/>").at(3, 3), 0xFF000000u) << "black unless told";
}

TEST(SvgDrawing, AnImportantDeclarationCountsMoreThanALaterOne)
{
    const auto at = [](const std::string& style) {
        return drawn("<rect width='16' height='16' style='" + style + "'/>").at(8, 8);
    };
    EXPECT_EQ(at("fill:red!important;fill:blue"), kRed);
    EXPECT_EQ(at("fill:blue;fill:red"), kRed) << "else the later one counts";
    EXPECT_EQ(at("fill:blue!important;fill:red !important;fill:blue"), kRed);
    EXPECT_EQ(drawn("<linearGradient id='a'><stop style='stop-color:red!important;stop-color:blue'/>"
                    "</linearGradient><rect width='16' height='16' fill='url(#a)'/>")
                  .at(8, 8),
              kRed);
}

TEST(SvgDrawing, WordsOfPropertiesMayHaveCapitals)
{
    const std::pair<const char*, const char*> same[] = {
        {"fill='None' stroke='red'", "fill='none' stroke='red'"},
        {"fill-rule='EvenOdd'", "fill-rule='evenodd'"},
        {"stroke='red' style='stroke-linejoin:ROUND'", "stroke='red' stroke-linejoin='round'"},
        {"stroke='red' stroke-dasharray='None' clip-path='None'", "stroke='red'"},
        {"fill='blue' style='fill:Inherit'", ""},
        {"display='None'", "display='none'"},
        {"visibility='Hidden'", "visibility='hidden'"}};
    const auto path = [](const std::string& attributes) {
        return drawn("<path stroke-width='2' d='M2 2H14L2 14zM3 4H8L3 9z' " + attributes + "/>");
    };
    for (const auto& [capitals, without] : same) {
        EXPECT_TRUE(path(capitals) == path(without)) << capitals;
        EXPECT_THAT(path(capitals).notes, IsEmpty()) << capitals;
    }
}

TEST(SvgDrawing, CommentsAmongDeclarationsArePassedOver)
{
    for (const char* style :
         {"/* fill */fill:red", "/* a; fill:blue */ fill:red", "stroke:none; /* x *//* y */ fill:red",
          "fill:red;/* fill:blue;", "fill:red; /**/", "fill:red;/*/fill:blue"}) {
        const Pixels pixels = drawn("<rect width='16' height='16' style='" + std::string(style) + "'/>");
        EXPECT_EQ(pixels.at(8, 8), kRed) << style;
        EXPECT_THAT(pixels.notes, IsEmpty()) << style;
    }
}

TEST(SvgDrawing, EachPropertyCanBeInheritedInsteadOfItsAttribute)
{
    struct Property
    {
        const char* name;
        const char* ofTheGroup;
        const char* ofTheShape;
    };
    const Property properties[] = {{"fill", "red", "blue"},
                                   {"fill-opacity", "0.5", "1"},
                                   {"fill-rule", "evenodd", "nonzero"},
                                   {"stroke", "lime", "blue"},
                                   {"stroke-opacity", "0.25", "1"},
                                   {"stroke-width", "3", "1"},
                                   {"stroke-linecap", "square", "butt"},
                                   {"stroke-linejoin", "bevel", "round"},
                                   {"stroke-miterlimit", "1", "9"},
                                   {"stroke-dasharray", "1 2", "none"},
                                   {"stroke-dashoffset", "1", "0"},
                                   {"color", "red", "blue"},
                                   {"visibility", "hidden", "visible"},
                                   {"opacity", "0.5", "1"}};
    const std::string base = "fill='currentColor' stroke='black' stroke-width='2' stroke-dasharray='9 1' ";
    for (const auto& [name, ofTheGroup, ofTheShape] : properties) {
        const std::string group = "<g " + base + "><g " + name + "='" + ofTheGroup + "'>";
        const auto with = [&](const std::string& own) {
            return drawn(group + "<path " + own + " d='M2 14V2L14 14zM4 12V8L8 12z'/></g></g>");
        };
        const std::string attribute = std::string(name) + "='" + ofTheShape + "'";
        const std::string inherit = " style='" + std::string(name) + ":inherit'";
        EXPECT_FALSE(with(attribute + inherit) == with(attribute)) << name << " counts";
        EXPECT_TRUE(with(attribute + inherit) == with(inherit)) << name;
    }
}

TEST(SvgDrawing, OpacityMultiplies)
{
    const auto alpha = [](const char* content) { return channel(drawn(content).at(8, 8), 24); };
    EXPECT_EQ(alpha("<rect width='16' height='16' fill-opacity='.5'/>"), 128);
    EXPECT_EQ(alpha("<rect width='16' height='16' opacity='50%'/>"), 128);
    EXPECT_EQ(alpha("<g opacity='.5'><rect width='16' height='16' fill-opacity='.5'/></g>"), 64);
    EXPECT_EQ(alpha("<g opacity='.5'><rect width='16' height='16' opacity='inherit'/></g>"), 64);
    EXPECT_EQ(alpha("<rect width='16' height='16' fill='#00000040' fill-opacity='.5'/>"), 32);
    EXPECT_EQ(alpha("<path d='M0 8H16' stroke='red' stroke-width='9' stroke-opacity='.25'/>"), 64);
    // Of a group as a whole: where its shapes overlap nothing is seen of it.
    const char* two = "<rect width='16' height='16' fill='blue'/><rect width='16' height='16' fill='red'/>";
    EXPECT_EQ(drawn(std::string("<g opacity='.5'>") + two + "</g>").at(8, 8), 0x80800000u);
    EXPECT_EQ(drawn(std::string("<g fill-opacity='.5'>") + two + "</g>").at(8, 8), 0xBF800040u);
    EXPECT_EQ(
        drawn(
            "<rect x='4' y='4' width='8' height='8' fill='blue' stroke='red' stroke-width='4' opacity='.5'/>")
            .at(5, 8),
        0x80800000u)
        << "the stroke and the fill beneath it are one";
}

TEST(SvgDrawing, StrokePropertiesReachThePen)
{
    const auto area = [](const std::string& attributes, const char* d = "M4 8H12") {
        return drawn("<path fill='none' stroke='red' stroke-width='2' d='" + std::string(d) + "' " +
                     attributes + "/>")
            .area();
    };
    EXPECT_NEAR(area(""), 16, kArea);
    EXPECT_NEAR(area("stroke-linecap='square'"), 20, kArea);
    EXPECT_NEAR(area("stroke-linecap='round'"), 16 + kPi, kArea);
    EXPECT_NEAR(area("style='stroke-width:3px'"), 24, kArea);
    EXPECT_NEAR(area("style='stroke-width:12.5%'"), 16, kArea) << "of the mean side";
    EXPECT_NEAR(area("stroke-dasharray='2 1'"), 12, kArea);
    EXPECT_NEAR(area("stroke-dasharray='2 1' stroke-dashoffset='1'"), 10, kArea);
    EXPECT_NEAR(area("stroke-linejoin='bevel'", "M4 12V4H12"), 2 * 8 * 2 - 1 + 0.5, kArea);
    EXPECT_NEAR(area("stroke-linejoin='round'", "M4 12V4H12"), 2 * 8 * 2 - 1 + kPi / 4, kArea);
    EXPECT_NEAR(area("stroke-miterlimit='1'", "M4 12V4H12"), 2 * 8 * 2 - 1 + 0.5, kArea);
}

// Gradients

TEST(SvgDrawing, LinearGradientsGoAlongTheirLine)
{
    const char* stops = "<stop offset='0' stop-color='#000'/><stop offset='1' stop-color='#fff'/>";
    const auto row = [&](const std::string& attributes) {
        const Pixels pixels = drawn("<defs><linearGradient id='a' " + attributes + ">" + stops +
                                    "</linearGradient></defs><rect width='16' height='16' fill='url(#a)'/>");
        EXPECT_THAT(pixels.notes, IsEmpty());
        std::vector<int> all;
        for (int x = 0; x < 16; ++x)
            all.push_back(channel(pixels.at(x, 5), 0));
        return all;
    };
    const auto expect = [&](const std::string& attributes, const std::function<double(double)>& shareAt) {
        const std::vector<int> all = row(attributes);
        for (int x = 0; x < 16; ++x)
            EXPECT_NEAR(all[static_cast<std::size_t>(x)], 255 * shareAt(x + 0.5), 0.51)
                << attributes << " at " << x;
    };
    const auto limited = [](double share) { return std::clamp(share, 0.0, 1.0); };
    expect("", [](double x) { return x / 16; });
    expect("x1='25%' x2='0.75'", [&](double x) { return limited((x - 4) / 8); });
    expect("gradientUnits='userSpaceOnUse' x1='4' x2='12'", [&](double x) { return limited((x - 4) / 8); });
    expect("gradientUnits='userSpaceOnUse' x1='25%' x2='75%'",
           [&](double x) { return limited((x - 4) / 8); });
    expect("x2='0.25' spreadMethod='repeat'", [](double x) { return x / 4 - std::floor(x / 4); });
    expect("x2='0.25' spreadMethod='reflect'",
           [](double x) { return 1 - std::abs(std::fmod(x / 4, 2) - 1); });
    expect("gradientTransform='translate(0.5)'", [&](double x) { return limited(x / 16 - 0.5); });
    expect("x1='0' y1='0' x2='0' y2='1'", [](double) { return 5.5 / 16; });
    expect("gradientTransform='rotate(90)'", [](double) { return 5.5 / 16; });
    expect("x1='1' x2='1'", [](double) { return 1; }); // no way to go: the last colour
}

TEST(SvgDrawing, RadialGradientsGoFromTheFocusToTheCircle)
{
    const auto at = [](const std::string& attributes, int x, int y) {
        const Pixels pixels =
            drawn("<radialGradient id='a' " + attributes +
                  "><stop stop-color='#000'/><stop offset='1' stop-color='#fff'/></radialGradient>"
                  "<rect width='16' height='16' fill='url(#a)'/>");
        EXPECT_THAT(pixels.notes, IsEmpty());
        return channel(pixels.at(x, y), 0) / 255.0;
    };
    EXPECT_NEAR(at("", 8, 8), std::hypot(0.5, 0.5) / 8, 0.003);
    EXPECT_NEAR(at("", 13, 10), std::hypot(5.5, 2.5) / 8, 0.003);
    EXPECT_NEAR(at("", 0, 0), 1, 0.003) << "beyond the circle";
    EXPECT_NEAR(at("r='25%' spreadMethod='repeat'", 13, 8), std::hypot(5.5, 0.5) / 4 - 1, 0.003);
    EXPECT_NEAR(at("gradientUnits='userSpaceOnUse' cx='4' cy='4' r='8'", 6, 9), std::hypot(2.5, 5.5) / 8,
                0.003);
    // With a focus at the left the way to the right of it is longer.
    EXPECT_NEAR(at("gradientUnits='userSpaceOnUse' cx='8' cy='8' r='8' fx='4' fy='7.5'", 10, 7), 0.5424,
                0.003);
    EXPECT_NEAR(at("gradientUnits='userSpaceOnUse' cx='8' cy='8' r='8' fx='-20' fy='8'", 15, 7), 1, 0.07)
        << "a focus outside comes to the circle";
}

TEST(SvgDrawing, ARadiusBelowZeroOfAGradientIsAsIfItWereNotThere)
{
    const auto gradient = [](const std::string& attributes) {
        return drawn("<radialGradient id='a' " + attributes +
                     "><stop stop-color='red'/><stop offset='1' stop-color='blue'/></radialGradient>"
                     "<rect width='16' height='16' fill='url(#a)'/>");
    };
    for (const std::string units : {"", " gradientUnits='userSpaceOnUse'"}) {
        const Pixels pixels = gradient("r='-2'" + units);
        EXPECT_TRUE(pixels == gradient(units)) << units;
        ASSERT_EQ(pixels.notes.size(), 1u);
        EXPECT_EQ(pixels.notes[0].issue, SvgIssue::BadValue);
        EXPECT_EQ(pixels.notes[0].what, "r");
    }
}

TEST(Gradients, ReportWordsThatNobodyKnows)
{
    const auto gradient = [](const std::string& attribute) {
        return drawn("<linearGradient id='a' " + attribute +
                     "><stop stop-color='red'/><stop offset='.5' stop-color='blue'/></linearGradient>"
                     "<rect width='16' height='16' fill='url(#a)'/>");
    };
    const std::pair<const char*, std::vector<const char*>> known[] = {
        {"spreadMethod", {"pad", "reflect", "repeat"}},
        {"gradientUnits", {"objectBoundingBox", "userSpaceOnUse"}}};
    for (const auto& [name, words] : known) {
        for (const char* word : words)
            EXPECT_THAT(gradient(std::string(name) + "='" + word + "'").notes, IsEmpty()) << word;
        for (const char* word : {"", "mirror"}) {
            const Pixels pixels = gradient(std::string(name) + "='" + word + "'");
            EXPECT_TRUE(pixels == gradient("")) << name;
            ASSERT_EQ(pixels.notes.size(), 1u) << name;
            EXPECT_EQ(pixels.notes[0].issue, SvgIssue::BadValue);
            EXPECT_EQ(pixels.notes[0].what, name);
        }
    }
}

TEST(SvgDrawing, StopsHaveColoursOfTheirOwn)
{
    const auto at = [](const std::string& stops, int x) {
        return drawn("<linearGradient id='a'>" + stops +
                     "</linearGradient><rect width='16' height='16' fill='url(#a)' color='red'/>")
            .at(x, 3);
    };
    EXPECT_EQ(at("<stop stop-color='red'/>", 3), kRed) << "one stop";
    EXPECT_EQ(at("<stop offset='.5' stop-color='red'/><stop offset='.5' stop-color='blue'/>", 7), kRed);
    EXPECT_EQ(at("<stop offset='.5' stop-color='red'/><stop offset='.5' stop-color='blue'/>", 8), kBlue);
    EXPECT_EQ(at("<stop offset='.5' stop-color='red'/><stop offset='.2' stop-color='blue'/>", 8), kBlue)
        << "an offset is no less than the one before";
    EXPECT_EQ(at("<stop style='stop-color:red;stop-opacity:.5'/>", 3), 0x80800000u);
    EXPECT_EQ(at("<stop stop-color='currentColor'/>", 3), 0xFF000000u) << "what is painted has no say";
    EXPECT_EQ(at("<stop stop-color='currentColor' color='blue'/>", 3), kBlue);
    EXPECT_EQ(at("<stop stop-color='currentcolor' style='color:blue!important'/>", 3), kBlue);
    EXPECT_EQ(at("", 3), 0u) << "without stops nothing is painted";
}

TEST(SvgDrawing, InFrontOfAGradientIsTheFirstOfTwoStopsAtTheSamePlace)
{
    const Pixels pixels = drawn("<linearGradient id='a' gradientUnits='userSpaceOnUse' x1='4' x2='12'>"
                                "<stop stop-color='red'/><stop stop-color='lime'/>"
                                "<stop offset='1' stop-color='lime'/><stop offset='1' stop-color='blue'/>"
                                "</linearGradient><rect width='16' height='16' fill='url(#a)'/>");
    EXPECT_EQ(pixels.at(2, 8), kRed);
    EXPECT_EQ(pixels.at(4, 8), 0xFF00FF00u);
    EXPECT_EQ(pixels.at(11, 8), 0xFF00FF00u);
    EXPECT_EQ(pixels.at(13, 8), kBlue);
}

TEST(SvgDrawing, AStopHasTheCurrentColourOfWhatItLiesIn)
{
    const auto at = [](const std::string& gradients) {
        return Pixels(svg(gradients + "<rect width='16' height='16' fill='url(#a)' color='lime'/>"), 16,
                      kBlue)
            .at(3, 3);
    };
    const std::string stop = "<stop stop-color='currentColor'/></linearGradient>";
    EXPECT_EQ(at("<linearGradient id='a'>" + stop), kBlue) << "the host's";
    EXPECT_EQ(at("<linearGradient id='a' color='red'>" + stop), kRed);
    EXPECT_EQ(at("<defs style='color:red'><linearGradient id='a' color='inherit'>" + stop + "</defs>"), kRed);
    EXPECT_EQ(at("<g color='red'><linearGradient id='b'>" + stop + "</g><radialGradient id='a' href='#b'/>"),
              kRed)
        << "of the gradient that it stands in";
}

TEST(SvgDrawing, GradientsTakeOverFromOthers)
{
    const Pixels pixels =
        drawn("<linearGradient id='a' x2='0' y2='1'><stop stop-color='red'/></linearGradient>"
              "<linearGradient id='b' href='#a'/><radialGradient id='c' xlink:href='#b'/>"
              "<linearGradient id='d' href='#d'/>"
              "<rect width='8' height='8' fill='url(#b)'/><rect x='8' width='8' height='8' "
              "fill='url(&quot;#c&quot;)'/>"
              "<rect y='8' width='8' height='8' fill='url(#d)'/>");
    EXPECT_EQ(pixels.at(3, 3), kRed);
    EXPECT_EQ(pixels.at(11, 3), kRed);
    EXPECT_EQ(pixels.at(3, 11), 0u) << "one that refers to itself has no stops";
}

TEST(SvgDrawing, AReferenceThatLeadsNowhereGivesWayToTheColourBehindIt)
{
    const auto at = [](const std::string& fill) {
        return drawn("<linearGradient id='a'><stop stop-color='red'/></linearGradient><pattern id='p'/>"
                     "<g color='blue'><rect width='16' height='16' fill='" +
                     fill + "'/></g>")
            .at(3, 3);
    };
    EXPECT_EQ(at("url(#a) blue"), kRed);
    EXPECT_EQ(at("url(#b) blue"), kBlue);
    EXPECT_EQ(at("url(#b)blue"), kBlue);
    EXPECT_EQ(at("url(&quot;#b&quot;) currentColor"), kBlue);
    EXPECT_EQ(at("url(#p) #00f"), kBlue) << "what is not drawn is not there";
    EXPECT_EQ(at("url(#b) none"), 0u);
    EXPECT_EQ(at("url(#b)"), 0u);
    EXPECT_EQ(at("url(#a) blueish"), 0xFF000000u) << "which cannot be read";
    EXPECT_THAT(notesOf("<rect width='9' height='9' fill='url(#b) blue'/>"), ElementsAre("bad value: #b"));
    EXPECT_THAT(notesOf("<rect width='9' height='9' fill='url(#b) url(#c)'/>"),
                ElementsAre("bad value: fill"));
}

TEST(SvgDrawing, AStrokeWithAGradientGoesByTheShape)
{
    const Pixels pixels = drawn(
        "<linearGradient id='a'><stop offset='.5' stop-color='red'/><stop offset='.5' "
        "stop-color='blue'/></linearGradient>"
        "<path d='M4 4L12 12' stroke='url(#a)' stroke-width='4'/><path d='M0 15H16' stroke='url(#a)'/>");
    EXPECT_EQ(pixels.at(5, 5), kRed);
    EXPECT_EQ(pixels.at(10, 10), kBlue);
    EXPECT_EQ(pixels.at(5, 15), 0u) << "a shape without a height has no room for it";
}

// The viewport

TEST(SvgDrawing, FillsThePictureByItsViewBox)
{
    const auto rectangle = [](const std::string& attributes, int width, int height) {
        std::vector<SvgNote> notes;
        const auto pixels = Drawing("<svg " + attributes + "><rect width='8' height='8'/></svg>")
                                .draw(width, height, 0xFF000000, notes)
                                .premultiplied();
        EXPECT_THAT(notes, IsEmpty());
        int left = width, top = height, right = 0, bottom = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (pixels[static_cast<std::size_t>(y * width + x)]) {
                    left = std::min(left, x);
                    right = std::max(right, x + 1);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y + 1);
                }
        return std::vector<int>{left, top, right, bottom};
    };
    EXPECT_THAT(rectangle("viewBox='0 0 16 16'", 32, 32), ElementsAre(0, 0, 16, 16));
    EXPECT_THAT(rectangle("viewBox='-4 -4 16 16'", 32, 32), ElementsAre(8, 8, 24, 24));
    EXPECT_THAT(rectangle("viewBox='0 0 8 8'", 40, 20), ElementsAre(10, 0, 30, 20));
    EXPECT_THAT(rectangle("viewBox='0 0 8 8' preserveAspectRatio='xMaxYMid'", 40, 20),
                ElementsAre(20, 0, 40, 20));
    EXPECT_THAT(rectangle("viewBox='0 0 8 8' preserveAspectRatio='none'", 40, 20), ElementsAre(0, 0, 40, 20));
    EXPECT_THAT(rectangle("width='16' height='16'", 32, 32), ElementsAre(0, 0, 16, 16))
        << "the size is the view box";
    EXPECT_THAT(rectangle("width='100' height='7' viewBox='0 0 16 16'", 32, 32), ElementsAre(0, 0, 16, 16));
    EXPECT_THAT(rectangle("", 32, 32), ElementsAre(0, 0, 8, 8)) << "pixels, without either";
    EXPECT_THAT(rectangle("viewBox='0 0 0 8'", 32, 32), ElementsAre(32, 32, 0, 0)) << "nothing to see";
}

// References

TEST(SvgDrawing, UseDrawsWhatItRefersTo)
{
    const char* same[] = {
        "<defs><rect id='a' width='4' height='4' fill='red'/></defs><use href='#a' x='3' y='5'/>",
        "<defs><rect id='a' width='4' height='4'/></defs><use xlink:href='#a' transform='translate(3 5)' "
        "fill='red'/>",
        "<defs><g id='a' fill='red'><rect width='4' height='4'/></g></defs><use href='#b'/><use id='b' "
        "href='#a' x='3' y='5' display='inline'/>",
        "<symbol id='a' viewBox='0 0 8 8'><rect width='8' height='8' fill='red'/></symbol><use href='#a' "
        "x='3' y='5' width='4' height='4'/>",
        "<symbol id='a' width='4' height='4' viewBox='0 0 2 2'><rect width='2' height='2' "
        "fill='red'/></symbol><use href='#a' x='3' y='5'/>",
        "<svg x='3' y='5' width='4' height='4' viewBox='0 0 1 1'><rect width='1' height='1' "
        "fill='red'/></svg>",
        "<svg x='3' y='5'><rect width='4' height='4' fill='red'/></svg>",
    };
    for (const char* content : same) {
        const Pixels pixels = drawn(content);
        EXPECT_TRUE(pixels == drawn("<rect x='3' y='5' width='4' height='4' fill='red'/>")) << content;
        EXPECT_THAT(pixels.notes, IsEmpty()) << content;
    }
}

TEST(SvgDrawing, PrefixesAndForeignElements)
{
    const Pixels prefixed("<s:svg xmlns:s='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>"
                          "<s:rect width='16' height='16' fill='red'/><rect width='16' height='16'/></s:svg>",
                          16);
    EXPECT_EQ(prefixed.at(4, 4), kRed);
    EXPECT_THAT(prefixed.notes, IsEmpty());
    EXPECT_THAT(Pixels("<s:svg><s:/></s:svg>", 16).notes, IsEmpty()) << "a prefix alone is no name";
    EXPECT_THAT(notesOf("<title>t</title><desc/><metadata><x:y/></metadata><edit:view a='b'/>"), IsEmpty());
}

TEST(SvgDrawing, ElementsMayHaveAnyPrefixThatIsOneOfDrawings)
{
    const std::string ofDrawings = "'http://www.w3.org/2000/svg'";
    const auto at = [](const std::string& text) { return Pixels(text, 16).at(4, 4); };
    EXPECT_EQ(at("<svg xmlns=" + ofDrawings + " xmlns:s=" + ofDrawings +
                 "><s:rect width='16' height='16' fill='red'/></svg>"),
              kRed);
    EXPECT_EQ(at("<s:svg xmlns=" + ofDrawings + " xmlns:s=" + ofDrawings +
                 "><rect width='16' height='16' fill='red'/></s:svg>"),
              kRed);
    EXPECT_EQ(at("<svg xmlns:s='http://example.org'><s:rect width='16' height='16'/></svg>"), 0u);
    EXPECT_EQ(at("<svg><s:rect width='16' height='16'/></svg>"), 0u);
}

TEST(SvgDrawing, ReferencesMayHaveAnyPrefix)
{
    const Pixels pixels("<n:svg xmlns:n='http://www.w3.org/2000/svg' xmlns:m='http://www.w3.org/1999/xlink'>"
                        "<n:defs><n:rect id='a' width='8' height='8' fill='red'/>"
                        "<n:rect id='b' width='8' height='8' fill='blue'/></n:defs>"
                        "<n:use m:href='#a'/><n:use x='8' m:href='#a' href='#b'/></n:svg>",
                        16);
    EXPECT_EQ(pixels.at(4, 4), kRed);
    EXPECT_EQ(pixels.at(12, 4), kBlue) << "without a prefix it counts more";
    EXPECT_THAT(pixels.notes, IsEmpty());
}

TEST(SvgDrawing, OfASwitchTheFirstChildThatMayBeIsDrawn)
{
    const std::string red = " width='16' height='16' fill='red'/>";
    const std::string blue = "<rect width='16' height='16' fill='blue'/>";
    const auto chosen = [&](const std::string& first) {
        return drawn("<switch>" + first + blue + "</switch>");
    };
    const char* const holding[] = {"", "requiredFeatures='http://www.w3.org/TR/SVG11/feature#Shape'",
                                   "requiredFeatures=' http://www.w3.org/TR/SVG11/feature#Shape\n"
                                   "http://www.w3.org/TR/SVG11/feature#Gradient '"};
    for (const char* condition : holding)
        EXPECT_EQ(chosen(std::string("<rect ") + condition + red).at(4, 4), kRed) << condition;
    const char* const failing[] = {"requiredExtensions='http://example.org/extension'",
                                   "requiredExtensions=''",
                                   "systemLanguage='en, de'",
                                   "requiredFeatures=''",
                                   "requiredFeatures='Shape#'",
                                   "requiredFeatures='http://www.w3.org/TR/SVG11/feature#Text'",
                                   "requiredFeatures='http://www.w3.org/TR/SVG11/feature#Shape "
                                   "http://www.w3.org/TR/SVG11/feature#Text'"};
    for (const char* condition : failing) {
        const Pixels pixels = chosen(std::string("<rect ") + condition + red);
        EXPECT_EQ(pixels.at(4, 4), kBlue) << condition;
        EXPECT_THAT(pixels.notes, IsEmpty()) << condition;
    }
    EXPECT_EQ(chosen("<title>t</title><defs/><x:rect" + red).at(4, 4), kBlue) << "what shows nothing";
    EXPECT_EQ(chosen("<g display='none'/>").area(), 0) << "chosen, and not displayed";
    EXPECT_EQ(drawn("<switch transform='translate(8)' opacity='.5'>" + blue + "</switch>").at(4, 4), 0u);
    EXPECT_EQ(drawn("<switch/>").area(), 0);
}

TEST(SvgDrawing, OfASwitchWhatIsNotChosenIsNotMissed)
{
    EXPECT_THAT(notesOf("<switch><foreignObject requiredExtensions='x'/><g/></switch>"), IsEmpty());
    EXPECT_THAT(notesOf("<switch><g/><text/></switch>"), IsEmpty());
    EXPECT_THAT(notesOf("<switch><text/><g/></switch>"), ElementsAre("not supported: text"));
}

// What is not drawn

TEST(SvgDrawing, SaysWhatItDoesNotDraw)
{
    EXPECT_THAT(notesOf("<text>a</text>"), ElementsAre("not supported: text"));
    EXPECT_THAT(notesOf("<image href='a.png'/><style>a{}</style>"),
                ElementsAre("not supported: image", "not supported: style"));
    EXPECT_THAT(notesOf("<rect width='1' height='1' filter='url(#f)'/>"),
                ElementsAre("not supported: filter"));
    EXPECT_THAT(notesOf("<rect width='1' height='1' style='mask:url(#m);clip-path:none'/>"),
                ElementsAre("not supported: mask"));
    EXPECT_THAT(notesOf("<path d='M0 0H9' marker-end='url(#m)' pathLength='9'/>"),
                ElementsAre("not supported: marker-end", "not supported: pathLength"));
    EXPECT_THAT(notesOf("<circle r='9' pathLength='9'/><line x2='9' pathLength='9'/>"),
                ElementsAre("not supported: pathLength", "not supported: pathLength"));
    EXPECT_THAT(notesOf("<pattern id='p'/><rect width='9' height='9' fill='url(#p)'/>"),
                ElementsAre("not supported: #p"));
    EXPECT_THAT(notesOf("<defs><filter id='f'/><clipPath id='c'/></defs>"), IsEmpty()) << "what is not used";
    EXPECT_THAT(
        notesOf("<g style='paint-order:markers fill stroke'/><g paint-order='fill'/><g paint-order='normal'/>"
                "<g paint-order='markers'/>"),
        IsEmpty())
        << "as it is drawn here";
    EXPECT_THAT(notesOf("<g style='paint-order:stroke fill markers'/><g paint-order='markers stroke'/>"),
                ElementsAre("not supported: paint-order", "not supported: paint-order"));
    EXPECT_THAT(notesOf("<circle r='9'><title>t</title><animate/><x:y/></circle>"),
                ElementsAre("not supported: animate"));
    EXPECT_THAT(notesOf("<defs><style>.a{fill:red}</style></defs><rect class='a' width='9' height='9'/>"),
                ElementsAre("not supported: style"))
        << "among the definitions it counts as well";
    EXPECT_THAT(notesOf("<g display='none'><style/></g><metadata><x:style/></metadata>"),
                ElementsAre("not supported: style"));
    EXPECT_THAT(notesOf("<symbol id='a'><style/></symbol><use href='#a'/><use href='#a'/>"),
                ElementsAre("not supported: style"));
    const Pixels pixels(svg("\n <g>\n  <text/></g>"), 16);
    EXPECT_THAT(pixels.notes, ElementsAre(SvgNote{SvgIssue::NotSupported, 3, 3, "text"}));
}

TEST(SvgDrawing, SaysThatTheOutermostElementIsNotTransformed)
{
    const auto notes = [](const std::string& attribute) {
        return Pixels("<svg " + attribute + "/>", 16).notes;
    };
    const SvgNote unsupported{SvgIssue::NotSupported, 1, 1, "transform"};
    EXPECT_THAT(notes("transform='rotate(90)'"), ElementsAre(unsupported));
    EXPECT_THAT(notes("style='transform:scale(-1 1)'"), ElementsAre(unsupported));
    EXPECT_THAT(notes("transform='turn(90)'"), ElementsAre(SvgNote{SvgIssue::BadValue, 1, 1, "transform"}));
    EXPECT_THAT(notes("transform='translate(0)'"), IsEmpty());
    EXPECT_THAT(notes("transform='none'"), IsEmpty());
}

TEST(SvgDrawing, SaysWhatItCannotRead)
{
    EXPECT_THAT(notesOf("<rect width='wide' height='9'/>"), ElementsAre("bad value: width"));
    EXPECT_THAT(notesOf("<rect width='-4' height='9'/>"), ElementsAre("bad value: width"));
    EXPECT_THAT(notesOf("<circle r='1em'/>"), ElementsAre("bad value: r"));
    EXPECT_THAT(notesOf("<path d='M1 1L2'/>"), ElementsAre("bad value: d"));
    EXPECT_THAT(notesOf("<polygon points='1 2 3'/>"), ElementsAre("bad value: points"));
    EXPECT_THAT(notesOf("<g transform='turn(3)' fill='reddish' opacity='x'/>"),
                ElementsAre("bad value: fill", "bad value: opacity", "bad value: transform"));
    EXPECT_THAT(notesOf("<use href='#none'/><use/>"), ElementsAre("bad value: href", "bad value: href"));
    EXPECT_THAT(notesOf("<rect width='9' height='9' fill='url(#none)'/>"), ElementsAre("bad value: #none"));
    EXPECT_THAT(notesOf("<g stroke-width='-1' stroke-miterlimit='0' stroke-dasharray='1 -1' fill-rule='odd' "
                        "stroke-linecap='x'/>"),
                ElementsAre("bad value: stroke-width", "bad value: stroke-miterlimit",
                            "bad value: stroke-dasharray", "bad value: fill-rule",
                            "bad value: stroke-linecap"));
    EXPECT_THAT(notesOf("<linearGradient id='a' x1='q' gradientTransform='q'><stop offset='q' "
                        "stop-color='q'/></linearGradient>"
                        "<rect width='9' height='9' fill='url(#a)'/>"),
                ElementsAre("bad value: offset", "bad value: stop-color", "bad value: x1",
                            "bad value: gradientTransform"));
    EXPECT_THAT(notesOf("<linearGradient id='a' href='#none'/><radialGradient id='b' href='other.svg#a'/>"
                        "<rect width='9' height='9' fill='url(#a)' stroke='url(#b)'/>"),
                ElementsAre("bad value: href", "bad value: href"))
        << "of gradients, which show nothing then";
    EXPECT_EQ(drawn("<g fill='red'><rect width='16' height='16' fill='reddish'/></g>").at(4, 4), kRed)
        << "what cannot be read changes nothing";
    EXPECT_EQ(drawn("<path d='M0 0H16V16H0Z L9' fill='red'/>").at(4, 4), kRed)
        << "a path as far as it can be read";
}

TEST(SvgDrawing, WhatCannotBeReadIsAsIfItWereNotThere)
{
    const std::pair<const char*, const char*> same[] = {
        {"<rect width='9' height='9' rx='1em' ry='3'/>", "<rect width='9' height='9' ry='3'/>"},
        {"<rect width='9' height='9' rx='3' ry='-3'/>", "<rect width='9' height='9' rx='3'/>"},
        {"<ellipse cx='8' cy='8' rx='5' ry='wide'/>", "<ellipse cx='8' cy='8' rx='5'/>"}};
    for (const auto& [content, without] : same) {
        EXPECT_TRUE(drawn(content) == drawn(without)) << content;
        EXPECT_EQ(notesOf(content).size(), 1u) << content;
    }
    const auto root = [](const std::string& attributes) {
        return Pixels("<svg " + attributes + "><rect width='50%' height='8'/></svg>", 32);
    };
    EXPECT_TRUE(root("viewBox='0 0 16' width='16' height='16'") == root("width='16' height='16'"));
    EXPECT_THAT(root("viewBox='0 0 16' width='16' height='16'").notes,
                ElementsAre(SvgNote{SvgIssue::BadValue, 1, 1, "viewBox"}));
    EXPECT_TRUE(root("width='1em' height='1em'") == root(""));
}

TEST(SvgDrawing, WhatIsNotedTwiceIsNotedOnce)
{
    EXPECT_THAT(notesOf("<g id='a'><text/></g><use href='#a'/><use href='#a'/>"),
                ElementsAre("not supported: text"));
}

TEST(SvgDrawing, WhatIsNoDrawingIsAFailure)
{
    EXPECT_EQ(failureOf("<svg>"), "1:1 0 svg without an end");
    EXPECT_EQ(failureOf("\n <html/>"), "2:2 1 html");
    EXPECT_EQ(failureOf("<svg/>", 0), "0:0 2 size");
    EXPECT_EQ(failureOf("<svg/>", 4000), "0:0 2 size");
}

// Limits

TEST(SvgDrawing, ReferencesInACircleEnd)
{
    EXPECT_EQ(failureOf(svg("<g id='a'><use href='#a'/></g>")).substr(4), " 2 depth");
    EXPECT_EQ(failureOf(svg("<symbol id='a'><use href='#a'/></symbol><use href='#a'/>")).substr(4),
              " 2 depth");
    EXPECT_EQ(failureOf(svg("<use id='a' href='#b'/><use id='b' href='#a'/>")).substr(4), " 2 depth");
}

TEST(SvgDrawing, ReferencesThatMultiplyEnd)
{
    std::string laughs = "<defs><g id='a0'><rect width='1' height='1'/></g>";
    for (int i = 1; i < 12; ++i) {
        const std::string before = "<use href='#a" + std::to_string(i - 1) + "'/>";
        laughs += "<g id='a" + std::to_string(i) + "'>" + before + before + before + before + "</g>";
    }
    EXPECT_NE(failureOf(svg(laughs + "</defs><use href='#a11'/>")), "");
}

TEST(SvgDrawing, WhatIsReadAgainAndAgainEnds)
{
    const auto many = [](const char* text) {
        std::string all;
        for (int i = 0; i < 2000; ++i)
            all += text;
        return all;
    };
    const auto isTooMuch = [](const std::string& content) {
        std::vector<SvgNote> notes;
        try {
            Drawing(svg(content)).draw(16, 16, 0xFF000000, notes, Budget(2'000'000));
            return false;
        } catch (const SvgFailure& failure) {
            return failure.note.what == "work";
        }
    };
    const std::string uses = many("<use href='#a'/>");
    EXPECT_FALSE(isTooMuch("<g id='a'/>" + uses)) << "little, often";
    EXPECT_TRUE(isTooMuch("<g id='a' transform='" + many(" ") + "'/>" + uses));
    EXPECT_TRUE(isTooMuch("<path id='a' visibility='hidden' d='M0 0" + many("m0 0") + "'/>" + uses));
    EXPECT_TRUE(isTooMuch("<symbol id='a' x='0" + many(" ") + "'/>" + uses));
    EXPECT_TRUE(isTooMuch("<g id='a'>" + many("<x:a/>") + "</g>" + uses)) << "not drawn, and walked over";
    EXPECT_TRUE(isTooMuch("<g stroke-dasharray='" + many("1 ") + "'>" + many("<g/>") + "</g>"));
    EXPECT_TRUE(isTooMuch("<g fill='url(#" + many("x") + ")'>" + many("<g/>") + "</g>"));
    const std::string rows = many("m-1 1h1");
    EXPECT_FALSE(isTooMuch("<path fill='none' stroke='red' stroke-dasharray='1' d='M1 0" + rows + "'/>"));
    EXPECT_TRUE(isTooMuch("<path fill='none' stroke='red' stroke-dasharray='" + many("1 ") + "' d='M1 0" +
                          rows + "'/>"));
    const std::string squares = many("<path d='M0 0h1v1z' fill='url(#b)'/>");
    EXPECT_FALSE(isTooMuch("<linearGradient id='b'/>" + squares));
    EXPECT_TRUE(isTooMuch("<linearGradient id='b'>" + many("<stop/>") + "</linearGradient>" + squares));
}

TEST(SvgDrawing, ThousandsOfSmallShapesFitIntoALargePicture)
{
    std::string dots;
    for (int i = 0; i < 4000; ++i)
        dots += "<rect x='" + std::to_string(i % 100 * 10) + "' y='" + std::to_string(i / 100 * 10) +
                "' width='4' height='4' fill='red'/>";
    const Pixels pixels(svg(dots, 1000), 1000);
    EXPECT_EQ(pixels.area(), 4000 * 16);
    EXPECT_EQ(pixels.at(993, 393), kRed);
}

TEST(SvgDrawing, LayersEnd)
{
    std::string nested;
    for (int i = 0; i < 60; ++i)
        nested += "<g opacity='.9'>";
    for (int i = 0; i < 60; ++i)
        nested += "</g>";
    EXPECT_EQ(failureOf(svg(nested), 16), "");
    EXPECT_EQ(failureOf(svg(nested), 1000), "0:0 2 layers");
}

TEST(SvgDrawing, NumbersBeyondAllBoundsDoNoHarm)
{
    for (const char* content :
         {"<rect width='1e300' height='1e300'/>", "<g transform='scale(1e300)'><circle r='1e300'/></g>",
          "<g transform='scale(1e200)'><g transform='scale(1e200)'><circle r='1'/></g></g>",
          "<circle r='1e-300' stroke='red'/>", "<g transform='scale(1e-300)'><circle r='1e300'/></g>",
          "<path d='M0 0A1e300 1e-300 1e300 0 1 5 5' stroke='red' stroke-width='1e300'/>",
          "<path d='M-1e308 0L1e308 1e308' stroke='red'/>", "<g transform='scale(0)'><circle r='5'/></g>"})
        EXPECT_EQ(failureOf(svg(content)), "") << content;
    EXPECT_EQ(drawn("<rect x='-1e9' y='-1e9' width='2e9' height='2e9' fill='red'/>").at(5, 5), kRed);
}
