#include <ovoui/update/JobAnswer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <thread>

using namespace ovoui::update;

namespace
{

enum class State
{
    Running,
    Found,
    Cancelled
};

/// Somebody who comes with an answer: claims first, and gives it only when the claim was granted.
struct Giver
{
    State answer;
    bool granted = false;
    int steps = 0;

    void step(JobAnswer<State>& job)
    {
        if (steps++ == 0)
            granted = job.claim();
        else if (granted)
            job.give(answer);
    }
};

} // namespace

TEST(JobAnswer, TheFirstWhoComesGivesItInWhateverOrderTheStepsAreTaken)
{
    std::string order = "ccww"; // the steps of cancelling and of the work
    int orders = 0;
    do {
        JobAnswer<State> job{State::Running};
        Giver work{State::Found};
        Giver cancel{State::Cancelled};
        for (const char who : order) {
            const bool settled = job.state() != State::Running;
            const State before = job.state();
            (who == 'w' ? work : cancel).step(job);
            EXPECT_TRUE(!settled || job.state() == before) << order << ": an answer stays";
        }
        EXPECT_NE(work.granted, cancel.granted) << order;
        EXPECT_EQ(work.granted, order[0] == 'w') << order;
        EXPECT_EQ(job.state(), work.granted ? State::Found : State::Cancelled) << order;
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(orders, 6);
}

TEST(JobAnswer, OfManyThreadsOneIsGrantedTheAnswer)
{
    for (int round = 0; round < 50; ++round) {
        JobAnswer<State> job{State::Running};
        std::array<bool, 4> granted{};
        std::array<std::thread, 4> threads;
        for (std::size_t i = 0; i < threads.size(); ++i)
            threads[i] = std::thread([&, i] {
                granted[i] = job.claim();
                if (granted[i])
                    job.give(State::Found);
            });
        for (std::thread& thread : threads)
            thread.join();
        EXPECT_EQ(std::count(granted.begin(), granted.end(), true), 1);
        EXPECT_EQ(job.state(), State::Found);
    }
}

TEST(ProgressNotes, OneAtATimeIsOnItsWay)
{
    ProgressNotes notes;
    EXPECT_TRUE(notes.toBeSent());
    EXPECT_FALSE(notes.toBeSent());
    EXPECT_FALSE(notes.toBeSent());
    notes.seen();
    EXPECT_TRUE(notes.toBeSent());
    notes.seen();
    notes.seen();
    EXPECT_TRUE(notes.toBeSent());
    EXPECT_FALSE(notes.toBeSent());
}
