// What controls share that call the host: holding redraws, a state that outlives them, exceptions, entries in
// the profile, memory of the system.
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/GlobalMemory.h>
#include <ovoui/frame/ProfileSection.h>
#include <ovoui/frame/RedrawHold.h>
#include <ovoui/frame/SharedState.h>

#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

using namespace ovoui::frame;
using namespace ovo::testkit;

namespace
{

/// A control with a state, as tree and toolbar have one.
class Control : public CStatic
{
public:
    struct State : SharedState<Control>
    {
        using SharedState::SharedState;
        int data = 7;
    };

    Control()
        : state(std::make_shared<State>(*this))
    {
    }
    ~Control() override
    {
        state->controlCloses();
        usableWhileClosing = state->usable();
        DestroyWindow();
        state->controlGoes();
    }

    static bool usableWhileClosing;
    const std::shared_ptr<State> state;
};

bool Control::usableWhileClosing = true;

bool isInvalid(HWND window)
{
    return ::GetUpdateRect(window, nullptr, FALSE) != FALSE;
}

} // namespace

TEST(SharedState, OutlivesItsControl)
{
    RecordingParent parent;
    auto control = std::make_unique<Control>();
    const std::shared_ptr<Control::State> state = control->state;
    EXPECT_FALSE(state->usable()) << "without a window there is nothing to be used";
    control->Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 5);
    EXPECT_TRUE(state->usable());
    EXPECT_EQ(state->control(), control.get());
    control.reset();
    EXPECT_FALSE(Control::usableWhileClosing);
    EXPECT_FALSE(state->usable());
    EXPECT_EQ(state->control(), nullptr);
    EXPECT_EQ(state->data, 7);
}

TEST(SharedState, KnowsThatTheWindowHasGone)
{
    RecordingParent parent;
    Control control;
    control.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 5);
    control.DestroyWindow();
    EXPECT_FALSE(control.state->usable());
    EXPECT_EQ(control.state->control(), &control);
}

TEST(RedrawHold, OfTheSystemDrawsTheWholeAtTheEnd)
{
    RecordingParent parent;
    parent.ShowWindow(SW_SHOW);
    CStatic control;
    control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 5);
    parent.UpdateWindow();
    control.ValidateRect(nullptr);
    {
        const RedrawHold hold(control);
        EXPECT_FALSE(::IsWindowVisible(control));
        const RedrawHold nested(control); // does nothing, and so lets nothing go
    }
    EXPECT_TRUE(::IsWindowVisible(control));
    EXPECT_TRUE(isInvalid(control));
}

TEST(RedrawHold, OfTheControlDrawsTheWholeAtTheEndWhereThatIsWanted)
{
    RecordingParent parent;
    parent.ShowWindow(SW_SHOW);
    CStatic control;
    control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 5);
    for (const RedrawHold::By by : {RedrawHold::By::Control, RedrawHold::By::ControlThenAll}) {
        parent.UpdateWindow();
        control.ValidateRect(nullptr);
        {
            const RedrawHold hold(control, by);
            EXPECT_FALSE(::IsWindowVisible(control)) << "as a control without drawing of its own holds it";
        }
        EXPECT_TRUE(::IsWindowVisible(control));
        EXPECT_EQ(isInvalid(control), by == RedrawHold::By::ControlThenAll);
    }
}

TEST(RedrawHold, LeavesAHiddenWindowHidden)
{
    RecordingParent parent;
    CStatic control;
    control.Create(L"", WS_CHILD, CRect(0, 0, 50, 50), &parent, 5);
    {
        const RedrawHold hold(control);
    }
    EXPECT_FALSE(control.GetStyle() & WS_VISIBLE);
}

namespace
{

std::vector<WPARAM> s_held; ///< what windows were told of drawing

template <class Function>
Function* systems(const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), name)));
}

void note(UINT message, WPARAM wParam)
{
    if (message == WM_SETREDRAW)
        s_held.push_back(wParam);
}

LRESULT WINAPI sendNoted(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    note(message, wParam);
    return systems<decltype(::SendMessageW)>("SendMessageW")(window, message, wParam, lParam);
}

LRESULT WINAPI defaultNoted(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    note(message, wParam);
    return systems<decltype(::DefWindowProcW)>("DefWindowProcW")(window, message, wParam, lParam);
}

} // namespace

TEST(RedrawHold, TheWindowMayGoMeanwhile)
{
    RecordingParent parent;
    parent.ShowWindow(SW_SHOW);
    const ImportPatch byControl(nullptr, "SendMessageW", reinterpret_cast<void*>(&sendNoted));
    const ImportPatch bySystem(nullptr, "DefWindowProcW", reinterpret_cast<void*>(&defaultNoted));
    for (const RedrawHold::By by : {RedrawHold::By::System, RedrawHold::By::Control}) {
        CStatic control;
        control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 5);
        s_held.clear();
        {
            const RedrawHold hold(control, by);
            EXPECT_EQ(s_held, std::vector<WPARAM>{FALSE});
            control.DestroyWindow();
        }
        EXPECT_EQ(s_held, std::vector<WPARAM>{FALSE}) << "a window that has gone is told nothing";
    }
}

TEST(Exceptions, OfTheLibraryAndTheStandardOneHaveATextForTheUser)
{
    EXPECT_EQ(errorOf([] {}), std::nullopt);
    EXPECT_EQ(errorOf([] { throw OvoError(L"ours"); }), L"ours");
    EXPECT_EQ(errorOf([] { throw std::runtime_error("theirs"); }), L"theirs");
    EXPECT_THROW(errorOf([] { throw 5; }), int);
}

TEST(Exceptions, OfACallThatNoneMayLeaveAreLost)
{
    bool goesOn = false;
    dropping([] { throw 5; });
    dropping([&] { goesOn = true; });
    EXPECT_TRUE(goesOn);
}

TEST(Exceptions, TheFirstIsKept)
{
    std::exception_ptr kept;
    keepFirst(kept, [] {});
    EXPECT_FALSE(kept);
    keepFirst(kept, [] { throw 1; });
    keepFirst(kept, [] { throw 2; });
    EXPECT_THROW(
        {
            try {
                raise(kept);
            } catch (const int number) {
                EXPECT_EQ(number, 1);
                throw;
            }
        },
        int);
    raise(nullptr);
    EXPECT_TRUE(keeping([] { throw 3; }));
}

TEST(Exceptions, AQuietQuestionHasNoAnswerThen)
{
    EXPECT_TRUE(quietly([] {}));
    EXPECT_FALSE(quietly([] { throw OvoError(L"no"); }));
    EXPECT_THROW(quietly([] { throw 5; }), int);
}

TEST(ProfileSection, KeepsTextsAndNumbersUntilTheyAreRemoved)
{
    for (const TemporaryProfile::Kind kind :
         {TemporaryProfile::Kind::Registry, TemporaryProfile::Kind::IniFile}) {
        const TemporaryProfile profile(kind);
        const ProfileSection section(L"Section");
        EXPECT_EQ(section.text(L"a"), L"");
        EXPECT_EQ(section.number(L"b"), 0);
        section.write(L"a", std::wstring(L"x y"));
        section.write(L"b", -5);
        EXPECT_EQ(section.text(L"a"), L"x y");
        EXPECT_EQ(section.number(L"b"), -5);
        section.remove(L"a");
        EXPECT_EQ(section.text(L"a"), L"");
        EXPECT_EQ(section.number(L"b"), -5);
        section.removeAll();
        EXPECT_EQ(section.number(L"b"), 0);
    }
}

TEST(GlobalMemory, HoldsACopy)
{
    const char text[] = "copied";
    const GlobalMemory memory = globalCopy(text, sizeof text);
    ASSERT_TRUE(memory);
    EXPECT_GE(::GlobalSize(memory.get()), sizeof text);
    EXPECT_STREQ(static_cast<const char*>(::GlobalLock(memory.get())), text);
    ::GlobalUnlock(memory.get());
}
