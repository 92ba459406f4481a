// Random operations, input and misdeeds of nodes in every call-out, against one tree with a model beside it.
// OVO_SEED repeats a failure; OVO_MONKEY_STEPS and OVO_MONKEY_SEEDS make a long run of it.
#include "Monkey.h"

#include <gtest/gtest.h>

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

/// A crash ends the program: what led there is told first.
LONG CALLBACK tellStory(EXCEPTION_POINTERS* exception)
{
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION && g_running) {
        std::cout << "crash after:\n" << g_running->story() << std::flush;
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

} // namespace

TEST(TreeMonkey, FindsTheTreeAsTheModelHasItWhateverNodesDo)
{
    const unsigned first = fromEnvironment("OVO_SEED", std::random_device{}() % 1'000'000);
    const unsigned seeds = fromEnvironment("OVO_MONKEY_SEEDS", 4);
    const auto steps = static_cast<int>(fromEnvironment("OVO_MONKEY_STEPS", 5000));
    for (unsigned seed = first; seed < first + seeds; ++seed) {
        std::cout << "seed " << seed << " (OVO_SEED repeats it)" << std::endl;
        Monkey monkey(seed);
        const Watching watching(monkey);
        monkey.run(steps);
        ASSERT_TRUE(monkey.failure().empty()) << "seed " << seed << ", " << monkey.failure();
        EXPECT_GT(monkey.misdeeds(), steps / 50);
    }
}
