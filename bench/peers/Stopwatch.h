// What the programs of the comparison share: one piece of work timed, one line written for the table.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace peers
{

constexpr int kRows = 1000000; ///< of the list; none of them is stored
constexpr int kColumns = 4;
constexpr int kWidth = 640; ///< of either control, in pixels
constexpr int kHeight = 480;

/// How many items the tree gets: the program's first argument, 100,000 without one.
inline int treeItems(int argc, char** argv)
{
    const int asked = argc > 1 ? std::atoi(argv[1]) : 0;
    return asked > 0 ? asked : 100000;
}

/// One program's lines: "widget <tab> figure <tab> median in milliseconds".
class Stopwatch
{
public:
    explicit Stopwatch(const char* widget)
        : m_widget(widget)
    {
    }

    /// The median of `rounds` times that `work` takes. `before` is done before each and is not timed.
    template <class Before, class Work>
    void time(const char* figure, int rounds, Before before, Work work) const
    {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            before();
            const auto start = std::chrono::steady_clock::now();
            work();
            const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
            times.push_back(taken.count());
        }
        std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
        std::printf("%s\t%s\t%.4f\n", m_widget, figure, times[static_cast<std::size_t>(rounds) / 2]);
        std::fflush(stdout);
    }

private:
    const char* m_widget;
};

constexpr const char* kInsertTree = "tree: insert all items";
constexpr const char* kSelectTree = "tree: select all";
constexpr const char* kRepaintTree = "tree: repaint";
constexpr const char* kInsertList = "list: a million rows";
constexpr const char* kSelectList = "list: select all";
constexpr const char* kRepaintList = "list: repaint";

constexpr int kInsertRounds = 3;
constexpr int kSelectRounds =
    1; ///< minutes on a platform whose tree walks over all items for each one that changes
constexpr int kRepaintRounds = 101;

} // namespace peers
