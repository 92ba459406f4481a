// A window that goes with its object: what the host raises meanwhile may not leave the destructor, which
// would end the program.
#include <ovoui/colour/ColourButton.h>
#include <ovoui/colour/ColourDropper.h>
#include <ovoui/colour/ColourGrid.h>
#include <ovoui/toolbar/VantorToolBar.h>

#include <support/RaisingChild.h>
#include <testkit/RecordingParent.h>

#include <functional>
#include <ostream>

using namespace ovo::testkit;
using support::RaisingChild;

namespace
{

struct Ending
{
    const char* name;
    std::function<void(CWnd& parent, RaisingChild& child)> liveWith; ///< a control with that child
};

void PrintTo(const Ending& ending, std::ostream* out)
{
    *out << ending.name;
}

const CRect kPlace(0, 0, 80, 60);

const Ending kEndings[] = {
    {"ColourButton",
     [](CWnd& parent, RaisingChild& child) {
         CColourButton button;
         ASSERT_TRUE(button.Create(L"Pen", WS_CHILD, kPlace, &parent, 1));
         ASSERT_TRUE(child.createIn(button));
     }},
    {"ColourDropper",
     [](CWnd& parent, RaisingChild& child) {
         CColourDropper dropper;
         ASSERT_TRUE(dropper.Create(L"From the screen", WS_CHILD, kPlace, &parent, 1));
         ASSERT_TRUE(child.createIn(dropper));
     }},
    {"ColourGrid",
     [](CWnd& parent, RaisingChild& child) {
         CColourGrid grid;
         ASSERT_TRUE(grid.Create(WS_CHILD, kPlace, &parent, 1));
         ASSERT_TRUE(child.createIn(grid));
     }},
    {"ToolBar",
     [](CWnd& parent, RaisingChild& child) {
         CVantorToolBar bar;
         ASSERT_TRUE(bar.CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | CBRS_TOP));
         ASSERT_TRUE(child.createIn(bar));
     }},
};

class ObjectEnd : public ::testing::TestWithParam<Ending>
{
};

} // namespace

TEST_P(ObjectEnd, LetsWhatTheHostRaisesWaitForTheMessageLoop)
{
    RecordingParent parent;
    RaisingChild child;
    GetParam().liveWith(parent, child);
    child.expectRaisedInLoop();
}

INSTANTIATE_TEST_SUITE_P(OfControls, ObjectEnd, ::testing::ValuesIn(kEndings),
                         [](const auto& info) { return info.param.name; });
