#pragma once

#include "Stage.h"

#include <atomic>
#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace ovo::testkit
{

/// One step of a story: what it is called in a failure, and what it does.
struct Step
{
    /// For the failure, should it go wrong.
    std::string name;
    /// What is done, on the robot's thread.
    std::function<void(Stage&)> act;
};

/// A story under way in a thread of its own.
class Performance
{
public:
    /// Begins to act `steps` out.
    explicit Performance(std::vector<Step> steps);
    Performance(Performance&&) noexcept = default;
    Performance& operator=(Performance&&) = delete;

    /// Finishes, unless an exception is on its way out; then the story is cut short.
    ~Performance() noexcept(false);

    /// Runs the message loop until the story is over and everything it set off has been handled. A story
    /// that went wrong is a failure of the running test.
    void finish();

private:
    struct State;

    std::exception_ptr leave();
    static void act(State& state);
    static void freeTheLoop(State& state, Stage& stage);

    std::shared_ptr<State> m_state;
    std::thread m_thread;
};

} // namespace ovo::testkit
