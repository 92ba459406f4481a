#include <ovoui/frame/core/MessageBoxLayout.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

namespace
{

BoxMetrics metrics()
{
    BoxMetrics m;
    m.edgeWidth = 2;
    m.borderWidth = 1;
    m.borderHeight = 1;
    m.frameWidth = 3;
    m.frameHeight = 4;
    m.captionHeight = 19;
    m.scrollBarWidth = 17;
    m.scrollBarHeight = 16;
    return m;
}

} // namespace

TEST(MessageBoxLayout, ButtonsAreSizedByTheFontAndTheWidestLabel)
{
    EXPECT_EQ(buttonSize(13, 5, {}, metrics()), (Extent{62, 22}));
    EXPECT_EQ(buttonSize(13, 5, {30, 58, 10}, metrics()), (Extent{62, 22}));
    EXPECT_EQ(buttonSize(13, 5, {30, 59, 10}, metrics()), (Extent{63, 22}));
    EXPECT_EQ(buttonSize(16, 7, {}, metrics()), (Extent{87, 28}));
}

TEST(MessageBoxLayout, ShortTextTakesItsOwnSize)
{
    const TextArea area = textArea({200, 26}, 13, 8, 800, metrics());
    EXPECT_EQ(area.client, (Extent{208, 26}));
    EXPECT_FALSE(area.vertical);
    EXPECT_FALSE(area.horizontal);
}

TEST(MessageBoxLayout, FifteenLinesAreNotScrolled)
{
    const TextArea area = textArea({200, 15 * 13}, 13, 8, 800, metrics());
    EXPECT_EQ(area.client.height, 15 * 13);
    EXPECT_FALSE(area.vertical);
}

TEST(MessageBoxLayout, SixteenLinesShowFifteenWithABar)
{
    const TextArea area = textArea({200, 16 * 13}, 13, 8, 800, metrics());
    EXPECT_EQ(area.client, (Extent{208 + 17, 15 * 13}));
    EXPECT_TRUE(area.vertical);
    EXPECT_FALSE(area.horizontal);
}

TEST(MessageBoxLayout, AWideTextGetsAHorizontalBarOnlyWhenItIsScrolled)
{
    EXPECT_FALSE(textArea({900, 15 * 13}, 13, 8, 800, metrics()).horizontal);
    EXPECT_TRUE(textArea({900, 16 * 13}, 13, 8, 800, metrics()).horizontal);
}

TEST(MessageBoxLayout, TheHorizontalBarComesWhenMarginsAndBarPassTheLimit)
{
    EXPECT_FALSE(textArea({775, 16 * 13}, 13, 8, 800, metrics()).horizontal);
    EXPECT_TRUE(textArea({776, 16 * 13}, 13, 8, 800, metrics()).horizontal);
}

TEST(MessageBoxLayout, TheControlGrowsByTheMissingClientAreaAndTheBorders)
{
    EXPECT_EQ(grownTextControl({10, 5, 110, 25}, {100, 20}, {{208, 26}}, metrics()), (Box{10, 5, 220, 33}));
    EXPECT_EQ(grownTextControl({10, 5, 110, 25}, {96, 16}, {{50, 10}}, metrics()), (Box{10, 5, 66, 21}));
    EXPECT_EQ(grownTextControl({10, 5, 110, 25}, {96, 16}, {{50, 10}, true, false}, metrics()),
              (Box{10, 5, 66, 21}));
}

TEST(MessageBoxLayout, AHorizontalBarTakesItsRoomFromTheLines)
{
    const TextArea area{{208, 15 * 13}, true, true};
    // 100 by 100 with both bars: a client area of 83 by 84.
    EXPECT_EQ(grownTextControl({0, 0, 100, 100}, {83, 84}, area, metrics()),
              (Box{0, 0, 208 + 17 + 2, 15 * 13 + 16 + 2 - 16}));
}

TEST(MessageBoxLayout, AControlThatTakesItsMarginsOffHasTheWantedFormatInTheEnd)
{
    const Box wanted{10, 5, 210, 70};
    for (int left = 0; left < 6; ++left)
        for (int right = 0; right < 6; ++right)
            for (int edge = 0; edge < 4; ++edge) {
                const auto given = [&](const Box& asked) {
                    return Box{asked.left + left, asked.top + edge, asked.right - right, asked.bottom - edge};
                };
                const auto larger = formatToAsk(wanted, given(wanted));
                ASSERT_EQ(larger.has_value(), left + right > 0);
                const Box got = larger ? given(*larger) : given(wanted);
                EXPECT_TRUE(got == wanted || left + right == 0) << left << ' ' << right << ' ' << edge;
            }
}

TEST(MessageBoxLayout, AFormatThatIsWideEnoughIsNotAskedForAgain)
{
    const Box wanted{10, 5, 210, 70};
    for (int wider = 0; wider < 5; ++wider)
        for (int higher = -5; higher < 5; ++higher)
            EXPECT_EQ(formatToAsk(wanted, {10, 5, 210 + wider, 70 + higher}), std::nullopt);
}

TEST(MessageBoxLayout, TheDialogFitsTheText)
{
    EXPECT_EQ(dialogSize(400, 100, {75, 22}, 1, metrics()), (Extent{400 + 6 + 62, 8 + 24 + 19 + 100 + 22}));
}

TEST(MessageBoxLayout, TheDialogFitsTheButtonsAndTheIcon)
{
    EXPECT_EQ(dialogSize(20, 13, {75, 22}, 4, metrics()), (Extent{85 * 4 + 6 + 10, 19 + 8 + 56 + 22}));
    EXPECT_EQ(dialogSize(20, 32, {75, 22}, 1, metrics()).height, 19 + 8 + 56 + 22);
    EXPECT_EQ(dialogSize(20, 33, {75, 22}, 1, metrics()).height, 19 + 8 + 57 + 22);
}

TEST(MessageBoxLayout, ButtonsStandAtTheRightInOrder)
{
    const Extent client{300, 120};
    EXPECT_EQ(buttonBox(0, 2, {75, 22}, client, metrics()), (Box{130, 90, 205, 112}));
    EXPECT_EQ(buttonBox(1, 2, {75, 22}, client, metrics()), (Box{215, 90, 290, 112}));
}

TEST(MessageBoxLayout, DistancesAreScaledWithTheResolution)
{
    BoxMetrics large = metrics();
    EXPECT_EQ(iconPlace(large), (Point{10, 8}));
    EXPECT_EQ(textPlace(large), (Point{52, 8}));
    large.dotsPerInch = 144;
    EXPECT_EQ(iconPlace(large), (Point{15, 12}));
    EXPECT_EQ(textPlace(large), (Point{78, 12})); // the icon is 48 pixels wide: 15 of them to the text
    EXPECT_EQ(dialogSize(400, 100, {75, 22}, 1, large), (Extent{400 + 6 + 93, 8 + 36 + 19 + 100 + 22}));
    EXPECT_EQ(dialogSize(20, 13, {75, 22}, 4, large), (Extent{90 * 4 + 6 + 15, 19 + 8 + 84 + 22}));
    EXPECT_EQ(buttonBox(1, 2, {75, 22}, {300, 120}, large), (Box{210, 86, 285, 108}));
    large.dotsPerInch = 120;
    EXPECT_EQ(iconPlace(large), (Point{13, 10}));
    large.dotsPerInch = 192;
    EXPECT_EQ(textPlace(large), (Point{104, 16}));
}

TEST(MessageBoxLayout, LinesAreJoinedByWindowsLineEnds)
{
    EXPECT_EQ(joinLines({}), L"");
    EXPECT_EQ(joinLines({L"oak"}), L"oak");
    EXPECT_EQ(joinLines({L"oak", L"", L"elm"}), L"oak\r\n\r\nelm");
}

TEST(MessageBoxLayout, AreaToCentreInIsTheParentsOrTheWorkArea)
{
    constexpr Box kParent{0, 0, 400, 300};
    constexpr Box kWork{0, 0, 1280, 984};
    EXPECT_EQ(areaToCentreIn(kParent, kWork), kParent);
    EXPECT_EQ(areaToCentreIn(kParent, std::nullopt), kParent);
    for (const Box& empty : {Box{}, Box{0, 0, 400, 0}, Box{0, 0, 0, 300}}) {
        EXPECT_EQ(areaToCentreIn(empty, kWork), kWork);
        EXPECT_EQ(areaToCentreIn(empty, std::nullopt), (Box{0, 0, 1280, 1024}));
    }
}

TEST(MessageBoxLayout, OpensWhereItWasOrInTheMiddle)
{
    constexpr Box kArea{0, 0, 400, 300};
    for (const int x : {-1, 0, 50})
        for (const int y : {-1, 0, 70}) {
            const Box box = startPlace({x, y}, {100, 60}, kArea);
            EXPECT_EQ(box.width(), 100);
            EXPECT_EQ(box.height(), 60);
            const bool remembered = x != -1 && y != -1;
            EXPECT_EQ(box.left, remembered ? x : 150);
            EXPECT_EQ(box.top, remembered ? y : 120);
        }
}
