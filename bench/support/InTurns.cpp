#include "InTurns.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

namespace
{

using Clock = std::chrono::steady_clock;

double nanosecondsOf(const InTurns::Work& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

double median(std::vector<double> samples)
{
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

} // namespace

void InTurns::add(std::string name, Work work, Work before)
{
    m_entries.push_back({std::move(name), std::move(work), std::move(before), {}});
}

void InTurns::run(const char* title, int rounds)
{
    for (int round = 0; round <= rounds; ++round)
        for (Entry& entry : m_entries) {
            if (entry.before)
                entry.before();
            const double time = nanosecondsOf(entry.work);
            if (round > 0)
                entry.samples.push_back(time);
        }
    std::printf("\nRATIOS %s\n", title);
    const double baseline = median(m_entries.front().samples);
    for (const Entry& entry : m_entries)
        std::printf("  %-64s %14.1f ns  %8.3f\n", entry.name.c_str(), median(entry.samples),
                    median(entry.samples) / baseline);
    std::fflush(stdout);
}
