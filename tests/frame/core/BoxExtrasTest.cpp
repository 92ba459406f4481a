#include <ovoui/frame/core/BoxExtras.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::frame;

namespace
{

constexpr int kButtonHeight = 23;

BoxMetrics at(int dotsPerInch)
{
    BoxMetrics metrics;
    metrics.dotsPerInch = dotsPerInch;
    return metrics;
}

bool apart(const Box& a, const Box& b)
{
    return a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top;
}

bool within(const Box& box, const Extent& client)
{
    return box.left >= 0 && box.top >= 0 && box.right <= client.width && box.bottom <= client.height;
}

/// Every combination of controls, and of sizes that they are given.
std::vector<ExtraControls> allControls()
{
    std::vector<ExtraControls> all;
    for (const int bar : {0, 16})
        for (const Extent check : {Extent{}, Extent{150, 13}})
            for (const Extent button : {Extent{}, Extent{75, 23}})
                for (const int details : {0, 110})
                    all.push_back({bar, check, button, details});
    return all;
}

} // namespace

TEST(BoxExtras, ABoxWithoutExtrasKeepsItsSize)
{
    EXPECT_EQ(withExtras({300, 120}, boxExtras({}, at(96)), at(96)), (Extent{300, 120}));
}

TEST(BoxExtras, ARowBelowTheButtonsTakesItsHeightAndAGap)
{
    const BoxExtras extras = boxExtras({0, {150, 13}, {75, 23}, 0}, at(96));
    EXPECT_EQ(extras.width, 10 + 150 + 10 + 75 + 10);
    EXPECT_EQ(extras.above, 0);
    EXPECT_EQ(extras.below, 23 + 8);
}

TEST(BoxExtras, DistancesScaleWithTheResolution)
{
    const BoxExtras extras = boxExtras({16, {150, 13}, {75, 23}, 100}, at(192));
    EXPECT_EQ(extras.width, 2 * 20 + 480);
    EXPECT_EQ(extras.above, 16 + 16);
    EXPECT_EQ(extras.below, 23 + 16 + 100 + 16);
}

TEST(BoxExtras, WidenADialogThatIsNarrower)
{
    BoxMetrics metrics = at(96);
    metrics.frameWidth = 3;
    const BoxExtras extras{400, 20, 30};
    EXPECT_EQ(withExtras({300, 120}, extras, metrics), (Extent{406, 170}));
    EXPECT_EQ(withExtras({500, 120}, extras, metrics), (Extent{500, 170}));
}

TEST(BoxExtras, NoControlCoversAnotherOrTheButtons)
{
    for (const int dotsPerInch : {96, 120, 144, 192}) {
        for (const ExtraControls& controls : allControls()) {
            const BoxMetrics metrics = at(dotsPerInch);
            const BoxExtras extras = boxExtras(controls, metrics);
            const Extent client = withExtras({320, 110}, extras, metrics);
            const Box button =
                buttonBox(0, 1, {75, kButtonHeight}, {client.width, client.height - extras.below}, metrics);
            const ExtraPlaces places = extraPlaces(controls, client, kButtonHeight, metrics);

            std::vector<Box> there{button};
            if (controls.barHeight)
                there.push_back(places.bar);
            if (controls.check.height)
                there.push_back(places.check);
            if (controls.detailsButton.height)
                there.push_back(places.detailsButton);
            if (controls.detailsHeight)
                there.push_back(places.details);
            for (std::size_t i = 0; i < there.size(); ++i) {
                EXPECT_TRUE(within(there[i], client)) << i << " at " << dotsPerInch;
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_TRUE(apart(there[i], there[j])) << i << " and " << j << " at " << dotsPerInch;
            }
            EXPECT_TRUE(controls.barHeight == 0 || places.bar.bottom <= button.top);
            EXPECT_TRUE(controls.check.height == 0 || places.check.top >= button.bottom);
        }
    }
}
