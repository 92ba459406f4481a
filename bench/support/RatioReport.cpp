// After every test case: its benchmarks' medians, and their ratio to the first one, the baseline.
//
// A benchmark names its limit, where there is one, at the end of its name: "map of 100 handlers [at
// most 1.5]". One whose name ends with "[baseline]" is the baseline of those that follow, in the place of the
// first.
#define CATCH_CONFIG_EXTERNAL_INTERFACES
#include <catch2/catch.hpp>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

double medianNanoseconds(std::vector<double> samples)
{
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

class RatioReport : public Catch::TestEventListenerBase
{
public:
    using TestEventListenerBase::TestEventListenerBase;

    void testCaseStarting(const Catch::TestCaseInfo& info) override
    {
        TestEventListenerBase::testCaseStarting(info);
        m_rows.clear();
    }

    void benchmarkEnded(const Catch::BenchmarkStats<>& stats) override
    {
        std::vector<double> samples;
        for (const auto& sample : stats.samples)
            samples.push_back(sample.count());
        m_rows.push_back({stats.info.name, medianNanoseconds(samples)});
    }

    void testCaseEnded(const Catch::TestCaseStats& stats) override
    {
        if (!m_rows.empty())
            print(stats.testInfo.name);
        TestEventListenerBase::testCaseEnded(stats);
    }

private:
    struct Row
    {
        std::string name;
        double median;
    };

    void print(const std::string& title) const
    {
        std::printf("\nRATIOS %s\n", title.c_str());
        double baseline = m_rows.front().median;
        for (const Row& row : m_rows) {
            if (row.name.ends_with("[baseline]"))
                baseline = row.median;
            std::printf("  %-64s %14.1f ns  %8.3f\n", row.name.c_str(), row.median, row.median / baseline);
        }
        std::fflush(stdout);
    }

    std::vector<Row> m_rows;
};

CATCH_REGISTER_LISTENER(RatioReport)

} // namespace
