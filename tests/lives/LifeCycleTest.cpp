// Every control is created, shown, used and destroyed many times: nothing grows.
//
//   OVO_LIFE_CYCLES=10000 ./test_lives.exe --gtest_filter='*LifeCycle*'     so many lives of each control
//
// By default they are 1,000.
#include "Leftovers.h"
#include "Lives.h"
#include "support/HeapCounter.h"

#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/Watchdog.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

using namespace ovo::testkit;

namespace
{

constexpr int kUsualCycles = 1000;
constexpr int kWarm = 30; // what the system and the library keep is made by then
/// Blocks that the system's own lists and caches may take meanwhile, whatever the number of cycles.
constexpr int kSlack = 40;

int cycles()
{
    const char* const text = std::getenv("OVO_LIFE_CYCLES");
    return text && std::atoi(text) > 0 ? std::atoi(text) : kUsualCycles;
}

class LifeCycle : public ::testing::TestWithParam<Life>
{
protected:
    using Live = std::function<void(CWnd&)>;

    LifeCycle() { m_parent.ShowWindow(SW_SHOWNOACTIVATE); }

    /// The blocks that so many lives have left.
    int growth(const Live& live, int times)
    {
        const HeapCounter blocks;
        for (int i = 0; i < times; ++i) {
            live(m_parent);
            m_parent.log().clear();
            if (i % 50 == 0)
                Watchdog::progress();
        }
        GuiThread::settle();
        return blocks.grown();
    }

    /// Those that so many lives of the platform's own would leave, known from some of them. Not counted is
    /// what the first ones make once and for all, which would be taken for a loss of each.
    int platformGrowth(const Live& live, int times)
    {
        if (!live)
            return 0;
        growth(live, kWarm);
        const int sample = std::min(times, std::max(kWarm, times / 10));
        return growth(live, sample) * times / sample;
    }

private:
    RecordingParent m_parent;
};

} // namespace

TEST_P(LifeCycle, LeavesNothingBehind)
{
    const int times = cycles();
    growth(GetParam().live, kWarm);
    const int platform = platformGrowth(GetParam().platform, times);
    const Leftovers leftovers;
    EXPECT_LE(growth(GetParam().live, times), platform + kSlack);
    leftovers.expectNone();
}

INSTANTIATE_TEST_SUITE_P(Controls, LifeCycle, ::testing::ValuesIn(lives()),
                         [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(FileDialogs, LifeCycle, ::testing::ValuesIn(livesOfFileDialogs()),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(LifeCycleCounter, SeesABlockThatStays)
{
    const HeapCounter blocks;
    void* const kept = ::HeapAlloc(::GetProcessHeap(), 0, 100);
    EXPECT_EQ(blocks.grown(), 1);
    ::HeapFree(::GetProcessHeap(), 0, kept);
    EXPECT_EQ(blocks.grown(), 0);
}
