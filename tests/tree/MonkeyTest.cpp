// Random operations, input and misdeeds of nodes in every call-out, against one tree with a model beside it.
// OVO_SEED names the first seed; OVO_MONKEY_STEPS and OVO_MONKEY_SEEDS make a long run of it. With
// OVO_MONKEY_EVERY=1 all is looked at after every step, which finds the step that a failure comes from.
#include "Monkey.h"

#include <testkit/Watchdog.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace
{

unsigned fromEnvironment(const char* name, unsigned standard)
{
    const char* const given = std::getenv(name);
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : standard;
}

Monkey* g_running = nullptr;

/// A crash ends the program, or goes unnoticed where the system swallows it: what led there is told first,
/// and the monkey fails.
LONG CALLBACK tellStory(EXCEPTION_POINTERS* exception)
{
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION && g_running) {
        std::cout << "crash after:\n" << g_running->story() << std::flush;
        g_running->noteCrash();
        g_running = nullptr;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

class Watching
{
public:
    explicit Watching(Monkey& monkey)
        : m_handler(::AddVectoredExceptionHandler(1, &tellStory))
    {
        g_running = &monkey;
    }
    ~Watching()
    {
        g_running = nullptr;
        ::RemoveVectoredExceptionHandler(m_handler);
    }
    Watching(const Watching&) = delete;
    Watching& operator=(const Watching&) = delete;

private:
    void* m_handler;
};

/// The same seeds in every run.
constexpr unsigned kFirstSeed = 101;

class TreeMonkey : public ::testing::TestWithParam<unsigned>
{
};

} // namespace

TEST_P(TreeMonkey, FindsTheTreeAsTheModelHasItWhateverNodesDo)
{
    const unsigned seed = fromEnvironment("OVO_SEED", kFirstSeed) + GetParam();
    const auto steps = static_cast<int>(fromEnvironment("OVO_MONKEY_STEPS", 5000));
    std::cout << "seed " << seed << " (OVO_SEED repeats it)" << std::endl;
    Monkey monkey(seed, static_cast<int>(fromEnvironment("OVO_MONKEY_EVERY", 16)));
    const Watching watching(monkey);
    for (int done = 0; done < steps && monkey.failure().empty(); done += 1000) {
        ovo::testkit::Watchdog::progress();
        monkey.run(std::min(steps - done, 1000));
    }
    monkey.finish();
    EXPECT_TRUE(monkey.failure().empty()) << "seed " << seed << ", " << monkey.failure();
    EXPECT_GT(monkey.misdeeds(), steps / 50);
}

INSTANTIATE_TEST_SUITE_P(Seeds, TreeMonkey, ::testing::Range(0u, fromEnvironment("OVO_MONKEY_SEEDS", 4)));
