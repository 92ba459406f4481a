#pragma once

#include "Watchdog.h"

#include <gtest/gtest.h>

namespace ovo::testkit
{

/// Watches over every test: the watchdog counts while it runs, the application starts out fresh, and a test
/// that leaves a window on the screen fails.
class TestGuard : public ::testing::EmptyTestEventListener
{
public:
    void OnTestStart(const ::testing::TestInfo& test) override;
    void OnTestEnd(const ::testing::TestInfo& test) override;

private:
    static void handleLeftMessages();
    static void closeLeftWindows();

    Watchdog m_watchdog;
};

} // namespace ovo::testkit
