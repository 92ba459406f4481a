// Measures several pieces of work in turn: what else the machine does meanwhile touches all of them alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

/// The first one added is the baseline. A limit stands at the end of a name: "AddItem [at most 1.3]".
///
///     InTurns turns;
///     turns.add("the raw messages [baseline]", [&] { raw(); });
///     turns.add("AddItem [at most 1.3]", [&] { ours(); });
///     turns.run("adding rows", 31);
class InTurns
{
public:
    using Work = std::function<void()>;

    /// `before` is done before each turn and is not measured.
    void add(std::string name, Work work, Work before = {});

    /// Prints the medians and their ratios to the baseline's, after one round that does not count.
    void run(const char* title, int rounds);

private:
    struct Entry
    {
        std::string name;
        Work work;
        Work before;
        std::vector<double> samples; ///< nanoseconds
    };

    std::vector<Entry> m_entries;
};
