#pragma once

#include "Story.h"

namespace ovo::testkit
{

/// A user made of code: real input from a thread of its own, while the test's thread runs the message loop.
///
///     Robot robot;
///     robot.click(Spot{button});
///     robot.holding(VK_CONTROL).press(Spot{tree, CPoint(20, 8)}).moveBy(0, 40).release();
///
///     const auto shown = [] { return shownDialog() != nullptr; };
///     auto answering = robot.waitFor("the box", shown).key(VK_RETURN).start();
///     EXPECT_EQ(AfxMessageBox(L"Really?"), IDOK);
///
/// A statement is one story and is over, with everything it set off handled, when the next one begins;
/// start() lets it go on meanwhile. What is held is let go at the end of the story.
class Robot : public Verbs<Robot>
{
private:
    friend class Verbs<Robot>;
    static Story add(Step step);
};

} // namespace ovo::testkit
