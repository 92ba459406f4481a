#include <ovoui/sliders/core/SliderNumbers.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ovoui::sliders;

namespace
{

SliderNumbers real(Mapping mapping, double low, double high, int decimals)
{
    SliderNumbers numbers;
    numbers.whole = false;
    numbers.mapping = mapping;
    numbers.range = {low, high};
    numbers.decimals = decimals;
    return numbers;
}

SliderNumbers whole(int low, int high)
{
    SliderNumbers numbers;
    numbers.low = low;
    numbers.high = high;
    return numbers;
}

/// Cubes from 0 to 1000.
const HostMapping kCubes{[](double number) { return std::cbrt(number) / 10; },
                         [](double share) { return std::pow(share * 10, 3); }};

} // namespace

TEST(SliderNumbers, WholeNumbersAreThePositions)
{
    const SliderNumbers numbers = whole(1, 24);
    EXPECT_EQ(numbers.positions().maximum, 24);
    EXPECT_EQ(numbers.positionOf(L"8"), 8);
    EXPECT_EQ(numbers.positionOf(L"eight"), 1);
    EXPECT_EQ(numbers.textAt(17), L"17");
}

TEST(SliderNumbers, RealNumbersHaveAHundredSteps)
{
    const SliderNumbers numbers = real(Mapping::Linear, -10, 10, 1);
    EXPECT_EQ(numbers.positions().maximum, 100);
    EXPECT_EQ(numbers.positionOf(L"0"), 50);
    EXPECT_EQ(numbers.positionOf(L""), 0);
    EXPECT_EQ(numbers.textAt(75), L"5.0");
}

TEST(SliderNumbers, StepsMoveByPositionsAndStopAtTheEnds)
{
    EXPECT_EQ(whole(1, 24).stepped(L"8", 1), L"9");
    EXPECT_EQ(whole(1, 24).stepped(L"8", -0.1), L"7") << "nothing is finer than a whole number";
    EXPECT_EQ(whole(1, 24).stepped(L"24", 3), L"24");
    EXPECT_EQ(whole(24, 1).stepped(L"30", 1), L"24");
    const SliderNumbers linear = real(Mapping::Linear, 0, 50, 2);
    EXPECT_EQ(linear.stepped(L"10", 1), L"10.50");
    EXPECT_EQ(linear.stepped(L"10", 0.1), L"10.05");
    EXPECT_EQ(linear.stepped(L"50", 1), L"50.00");
    EXPECT_EQ(linear.stepped(L"99", 1), L"50.00");
    EXPECT_EQ(linear.stepped(L"x", -1), L"0.00");
    EXPECT_EQ(real(Mapping::Logarithmic, 1, 100, 3).stepped(L"10", 50), L"100.000");
    EXPECT_EQ(real(Mapping::Logarithmic, 1, 100, 0).stepped(L"10", -50), L"1");
}

TEST(SliderNumbers, AStepChangesTheNumberThatIsSeen)
{
    const SliderNumbers coarse = real(Mapping::Linear, 0, 10, 1);
    EXPECT_EQ(coarse.stepped(L"5.0", 0.1), L"5.1") << "a hundredth would not be seen";
    EXPECT_EQ(coarse.stepped(L"5.0", -0.1), L"4.9");
    EXPECT_EQ(coarse.stepped(L"10.0", 0.1), L"10.0");
    EXPECT_EQ(real(Mapping::Linear, 10, 0, 1).stepped(L"5.0", 0.1), L"4.9") << "a range that falls";
    EXPECT_EQ(real(Mapping::Linear, 0, 10, 0).stepped(L"5", 1), L"6") << "a tenth would not be seen";
    EXPECT_EQ(real(Mapping::Linear, 0, 10, 0).stepped(L"5", -1), L"4");
}

TEST(SliderNumbers, StepsOfEveryMappingGoTheRightWay)
{
    for (const Mapping mapping : {Mapping::Linear, Mapping::Logarithmic, Mapping::SquareRoot}) {
        const SliderNumbers numbers = real(mapping, 2, 500, 3);
        std::wstring text = L"2.000";
        for (int i = 0; i < 300; ++i) {
            const std::wstring next = numbers.stepped(text, 1);
            ASSERT_GE(std::stod(next), std::stod(text));
            ASSERT_TRUE(next != text || text == L"500.000") << testing::PrintToString(text);
            text = next;
        }
        EXPECT_EQ(text, L"500.000");
    }
}

TEST(SliderNumbers, TheHostsMappingTakesThePlaceOfTheTypes)
{
    SliderNumbers numbers = real(Mapping::Linear, 1, 2, 0);
    numbers.host = kCubes;
    EXPECT_EQ(numbers.positionOf(L"125"), 50);
    EXPECT_EQ(numbers.textAt(20), L"8");
    EXPECT_EQ(numbers.positionOf(L"none"), 0);
    EXPECT_EQ(numbers.stepped(L"125", 10), L"216");
    EXPECT_EQ(numbers.stepped(L"1000", 10), L"1000");
}

TEST(SliderNumbers, AMappingOfTheHostsMustBeOne)
{
    const Positions hundred{0, 100};
    EXPECT_TRUE(isUsable(kCubes, hundred));
    EXPECT_TRUE(isUsable({[](double n) { return 1 - n; }, [](double s) { return 1 - s; }}, hundred))
        << "falling";
    const auto share = [](double number) { return number; };
    EXPECT_FALSE(isUsable({}, hundred));
    EXPECT_FALSE(isUsable({share, nullptr}, hundred));
    EXPECT_FALSE(isUsable({share, [](double s) { return s < 0.5 ? s : 1 - s; }}, hundred))
        << "rises and falls";
    EXPECT_FALSE(isUsable({share, [](double) { return 3.0; }}, hundred)) << "constant";
    EXPECT_FALSE(isUsable({share, [](double s) { return s * s; }}, hundred))
        << "the way back leads elsewhere";
    EXPECT_FALSE(isUsable({share, [](double s) { return std::log(s); }}, hundred)) << "no number";
    const auto zigzag = [](double s) { return s < 0.5 ? s : 1.5 - s; };
    EXPECT_FALSE(isUsable({zigzag, zigzag}, hundred)) << "every number once, but not in order";
    EXPECT_FALSE(isUsable({[](double n) { return std::isinf(n) ? 1.0 : n; },
                           [](double s) { return s < 1 ? s : std::numeric_limits<double>::infinity(); }},
                          hundred))
        << "no end";
    EXPECT_FALSE(isUsable(kCubes, {5, 5})) << "no way to go";
}

TEST(SliderNumbers, TicksAreWhereTheirNumbersAre)
{
    const SliderNumbers numbers = real(Mapping::Logarithmic, 0.1, 1000, 1);
    EXPECT_EQ(numbers.positionsOf({0.1, 1, 10, 100, 1000, 2000, -1}),
              (std::vector<int>{0, 25, 50, 75, 100, 0}))
        << "a number that is not positive counts as the low end";
    EXPECT_EQ(whole(1, 24).positionsOf({0, 1, 6, 24, 25}), (std::vector<int>{1, 6, 24}));
    EXPECT_TRUE(whole(3, 3).positionsOf({4}).empty());
}

TEST(SliderNumbers, NothingIsUndefined)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Mapping mapping : {Mapping::Linear, Mapping::Logarithmic, Mapping::SquareRoot})
        for (const double low : {0.0, 1.0, -1.0, infinity, std::nan("")})
            for (const double high : {0.0, 1.0, -5.0, infinity}) {
                const SliderNumbers numbers = real(mapping, low, high, 2);
                for (const wchar_t* text : {L"", L"nan", L"inf", L"-inf", L"0", L"1e308"}) {
                    const int position = numbers.positionOf(text);
                    EXPECT_GE(position, 0);
                    EXPECT_LE(position, 100);
                    EXPECT_FALSE(numbers.stepped(text, 1).empty());
                }
            }
}

TEST(SliderNumbers, DataExchangeTakesANumberThatIsNotBeyondTheEnds)
{
    for (const double number : {-2.0, -1.0, 0.0, 1.0, 2.0})
        EXPECT_EQ(isTaken(number, -1, 1), number >= -1 && number <= 1) << number;
    EXPECT_FALSE(isTaken(std::nullopt, -1, 1));
    EXPECT_FALSE(isTaken(std::numeric_limits<double>::quiet_NaN(), -1, 1));
}

TEST(SliderNumbers, DataExchangeTakesAnEndForItsOwnText)
{
    constexpr double kNearly = 999.9999999999998; // what a mapping by logarithms makes of 1000
    EXPECT_EQ(takenNumber(1000, 1, kNearly, 2), kNearly);
    EXPECT_EQ(takenNumber(0.34, 0, 0.336, 2), 0.336);
    EXPECT_EQ(takenNumber(0.33, 0.333, 1, 2), 0.333);
    EXPECT_EQ(takenNumber(0.5, 0.333, 1, 2), 0.5);
    EXPECT_EQ(takenNumber(0.337, 0, 0.336, 2), std::nullopt) << "beyond the end, and not its text";
    EXPECT_EQ(takenNumber(0.35, 0, 0.336, 2), std::nullopt);
    EXPECT_EQ(takenNumber(std::nullopt, 0, 1, 2), std::nullopt);
    EXPECT_EQ(takenNumber(std::numeric_limits<double>::quiet_NaN(), 0, 1, 2), std::nullopt);
}

TEST(SliderNumbers, AnIntTakesThePartOfARangeThatItCanHold)
{
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    const double ends[] = {-1e300, kLeast - 1, kLeast, -0.5, 0, 7.5, kMost, kMost + 1, 1e300};
    for (const double low : ends)
        for (const double high : ends) {
            const auto [first, last] = limitsOfWhole({low, high});
            for (const double number : ends)
                EXPECT_EQ(isTaken(number, first, last),
                          isTaken(number, low, high) && number >= kLeast && number <= kMost)
                    << number << " of " << low << " to " << high;
        }
}
