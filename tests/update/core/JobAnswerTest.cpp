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
    EXPECT_TRUE(notes.sent());
    notes.seen();
    notes.seen();
    EXPECT_TRUE(notes.toBeSent());
    EXPECT_FALSE(notes.toBeSent());
}

TEST(ProgressNotes, WhatWasSeenBeforeItsSenderIsDoneIsNoMoreOnItsWay)
{
    ProgressNotes notes;
    EXPECT_TRUE(notes.toBeSent());
    notes.seen();
    EXPECT_TRUE(notes.sent());
    EXPECT_TRUE(notes.toBeSent());
}

TEST(ProgressNotes, TheEndIsToldOnceAndLastInWhateverOrderTheStepsAreTaken)
{
    std::string order = "esss"; // the end, and the steps of a sender
    int orders = 0;
    do {
        ProgressNotes notes;
        std::string told;
        bool sending = false;
        int step = 0;
        for (const char who : order) {
            if (who == 'e')
                told += notes.end() ? "E" : "";
            else if (++step == 1)
                sending = notes.toBeSent();
            else if (sending)
                told += step == 2 ? "P" : notes.sent() ? "" : "E";
        }
        EXPECT_EQ(told, order[0] == 'e' ? "E" : "PE") << order;
        EXPECT_FALSE(notes.toBeSent()) << order;
        notes.seen();
        EXPECT_FALSE(notes.toBeSent()) << order << ": nothing comes after the end";
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(orders, 4);
}

TEST(ProgressNotes, OfTwoThreadsOneTellsOfTheEnd)
{
    for (int round = 0; round < 50; ++round) {
        ProgressNotes notes;
        int ends = 0;
        std::thread sender([&] {
            while (notes.toBeSent()) {
                if (!notes.sent())
                    ++ends;
                notes.seen();
            }
        });
        const bool own = notes.end();
        sender.join();
        EXPECT_EQ(ends + (own ? 1 : 0), 1);
    }
}
