// COleDropTarget: what a drag over a window asks, in which order, and what it is told.
#include "FakeDataObject.h"
#include "NextStep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

#include "support/Perishing.h"

#include <functional>
#include <stdexcept>

using ovo::testkit::RecordingParent;
using ::testing::ElementsAre;

namespace
{

constexpr DROPEFFECT kNotHandled = static_cast<DROPEFFECT>(-1);

/// Takes down what it is asked, and gives the answers set.
class Target : public COleDropTarget
{
public:
    std::vector<std::string> asked;
    DROPEFFECT enter = DROPEFFECT_COPY;
    DROPEFFECT over = DROPEFFECT_COPY;
    DROPEFFECT scroll = DROPEFFECT_NONE;
    DROPEFFECT dropEx = kNotHandled;
    BOOL takes = TRUE;
    const char* throwsIn = "";
    std::function<void(const std::string& what)> misdeed;

    CWnd* window = nullptr;
    CPoint point;
    DWORD keys = 0;
    DROPEFFECT dropDefault = 0;
    DROPEFFECT dropList = 0;
    DROPEFFECT dropped = 0;
    std::wstring text;

    DROPEFFECT OnDragEnter(CWnd* wnd, COleDataObject* data, DWORD keyState, CPoint pt) override
    {
        return note("enter", enter, wnd, data, keyState, pt);
    }
    DROPEFFECT OnDragOver(CWnd* wnd, COleDataObject* data, DWORD keyState, CPoint pt) override
    {
        return note("over", over, wnd, data, keyState, pt);
    }
    DROPEFFECT OnDragScroll(CWnd* wnd, DWORD keyState, CPoint pt) override
    {
        return note("scroll", scroll, wnd, nullptr, keyState, pt);
    }
    void OnDragLeave(CWnd* wnd) override { note("leave", 0, wnd, nullptr, 0, CPoint()); }
    DROPEFFECT OnDropEx(CWnd* wnd, COleDataObject* data, DROPEFFECT usual, DROPEFFECT list,
                        CPoint pt) override
    {
        dropDefault = usual;
        dropList = list;
        return note("dropEx", dropEx, wnd, data, 0, pt);
    }
    BOOL OnDrop(CWnd* wnd, COleDataObject* data, DROPEFFECT effect, CPoint pt) override
    {
        dropped = effect;
        return note("drop", takes, wnd, data, 0, pt);
    }

private:
    /// Gives `answer`, also where the misdeed deletes the target.
    template <class Answer>
    Answer note(const char* what, Answer answer, CWnd* wnd, COleDataObject* data, DWORD keyState, CPoint pt)
    {
        asked.push_back(what);
        window = wnd;
        point = pt;
        keys = keyState;
        if (data)
            text = takeText(data->GetGlobalData(CF_UNICODETEXT));
        if (std::string(throwsIn) == what)
            throw std::runtime_error(what);
        if (misdeed)
            misdeed(what);
        return answer;
    }
};

/// What the system was given for a window's target, with a reference, as a drag holds it.
IDropTarget* heldTarget(HWND window)
{
    auto* const held = static_cast<IDropTarget*>(::GetPropW(window, L"OleDropTargetInterface"));
    if (held)
        held->AddRef();
    return held;
}

/// A window with a target, and a hand that drags over it.
struct DropTargetTest : ::testing::Test
{
    DropTargetTest() { EXPECT_TRUE(target.Register(&window)); }
    ~DropTargetTest() override { EXPECT_EQ(data.references, 1) << "the target must not keep the data"; }

    IDropTarget* part() { return static_cast<IDropTarget*>(target.GetInterface(&IID_IDropTarget)); }

    /// A client point on the screen.
    POINTL at(CPoint client)
    {
        window.ClientToScreen(&client);
        return {client.x, client.y};
    }
    DROPEFFECT enter(CPoint client = CPoint(10, 20), DWORD keys = MK_LBUTTON)
    {
        DWORD effect = allowed;
        status = part()->DragEnter(&data, keys, at(client), &effect);
        return effect;
    }
    DROPEFFECT over(CPoint client = CPoint(10, 20), DWORD keys = MK_LBUTTON)
    {
        DWORD effect = allowed;
        status = part()->DragOver(keys, at(client), &effect);
        return effect;
    }
    DROPEFFECT drop(CPoint client = CPoint(10, 20), DWORD keys = 0)
    {
        DWORD effect = allowed;
        status = part()->Drop(&data, keys, at(client), &effect);
        return effect;
    }
    void leave() { status = part()->DragLeave(); }

    FakeDataObject data{L"dragged"};
    RecordingParent window;
    Target target;
    DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    HRESULT status = S_OK;
};

} // namespace

TEST_F(DropTargetTest, EnteringAsksForScrollingFirst)
{
    EXPECT_EQ(enter(), static_cast<DROPEFFECT>(DROPEFFECT_COPY));

    EXPECT_THAT(target.asked, ElementsAre("scroll", "enter"));
    EXPECT_EQ(target.window, &window);
    EXPECT_EQ(target.text, L"dragged");
    leave();
}

TEST_F(DropTargetTest, PointsAreClientCoordinates)
{
    enter(CPoint(33, 44));
    EXPECT_EQ(target.point, CPoint(33, 44));
    over(CPoint(-5, 7));
    EXPECT_EQ(target.point, CPoint(-5, 7));
    target.dropEx = DROPEFFECT_COPY;
    drop(CPoint(1, 2));
    EXPECT_EQ(target.point, CPoint(1, 2));
}

TEST_F(DropTargetTest, OnlyWhatTheSourceAllowsIsTold)
{
    target.enter = DROPEFFECT_LINK | DROPEFFECT_MOVE;
    EXPECT_EQ(enter(), static_cast<DROPEFFECT>(DROPEFFECT_MOVE));
    target.over = DROPEFFECT_LINK;
    EXPECT_EQ(over(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    leave();
}

TEST_F(DropTargetTest, ScrollingTakesThePlaceOfTheOtherQuestions)
{
    target.scroll = DROPEFFECT_SCROLL | DROPEFFECT_COPY;

    EXPECT_EQ(enter(), DROPEFFECT_SCROLL | DROPEFFECT_COPY) << "scrolling is always allowed";
    EXPECT_EQ(over(), DROPEFFECT_SCROLL | DROPEFFECT_COPY);
    EXPECT_THAT(target.asked, ElementsAre("scroll", "scroll"));
    target.scroll = DROPEFFECT_COPY; // without the scroll bit it is no answer
    target.over = DROPEFFECT_MOVE;
    EXPECT_EQ(over(), static_cast<DROPEFFECT>(DROPEFFECT_MOVE));
    leave();
}

TEST_F(DropTargetTest, KeysAndButtonsAreTold)
{
    enter(CPoint(1, 1), MK_RBUTTON | MK_CONTROL);
    EXPECT_EQ(target.keys, static_cast<DWORD>(MK_RBUTTON | MK_CONTROL));
    leave();
}

TEST_F(DropTargetTest, TheAltKeyIsAdded)
{
    BYTE keys[256]{};
    ::GetKeyboardState(keys);
    keys[VK_MENU] = 0x80;
    ::SetKeyboardState(keys);

    enter(CPoint(1, 1), MK_LBUTTON);

    EXPECT_EQ(target.keys, static_cast<DWORD>(MK_LBUTTON | MK_ALT));
    keys[VK_MENU] = 0;
    ::SetKeyboardState(keys);
    leave();
}

TEST_F(DropTargetTest, TheDataIsKeptBetweenEnterAndLeave)
{
    enter();
    EXPECT_EQ(data.references, 2);
    over();
    EXPECT_EQ(target.text, L"dragged");
    leave();
    EXPECT_EQ(data.references, 1);
    EXPECT_THAT(target.asked, ElementsAre("scroll", "enter", "scroll", "over", "leave"));
}

TEST_F(DropTargetTest, WithoutAnEnterThereIsNothingToDragOver)
{
    EXPECT_EQ(over(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_TRUE(FAILED(status));
    EXPECT_TRUE(target.asked.empty());
}

TEST_F(DropTargetTest, ADropThatTheExtendedFormTakesIsOver)
{
    target.over = DROPEFFECT_MOVE | DROPEFFECT_LINK;
    target.dropEx = DROPEFFECT_LINK;
    enter();
    target.asked.clear();

    EXPECT_EQ(drop(), static_cast<DROPEFFECT>(DROPEFFECT_LINK)) << "what came of it is not filtered";

    EXPECT_THAT(target.asked, ElementsAre("over", "dropEx"));
    EXPECT_EQ(target.dropDefault, static_cast<DROPEFFECT>(DROPEFFECT_MOVE)) << "filtered";
    EXPECT_EQ(target.dropList, static_cast<DROPEFFECT>(DROPEFFECT_COPY | DROPEFFECT_MOVE));
    EXPECT_EQ(target.text, L"dragged");
}

TEST_F(DropTargetTest, TheExtendedFormMayRefuse)
{
    target.dropEx = DROPEFFECT_NONE;
    enter();
    target.asked.clear();

    EXPECT_EQ(drop(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_THAT(target.asked, ElementsAre("over", "dropEx"));
}

TEST_F(DropTargetTest, TheSimpleFormIsAskedWhenTheExtendedOneIsNotThere)
{
    enter();
    target.asked.clear();

    EXPECT_EQ(drop(), static_cast<DROPEFFECT>(DROPEFFECT_COPY));
    EXPECT_THAT(target.asked, ElementsAre("over", "dropEx", "drop"));
    EXPECT_EQ(target.dropped, static_cast<DROPEFFECT>(DROPEFFECT_COPY));
}

TEST_F(DropTargetTest, TheSimpleFormMayRefuse)
{
    target.takes = FALSE;
    enter();

    EXPECT_EQ(drop(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
}

TEST_F(DropTargetTest, ADropWithoutAnEffectIsALeave)
{
    target.over = DROPEFFECT_LINK; // which the source does not allow
    enter();
    target.asked.clear();

    EXPECT_EQ(drop(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_THAT(target.asked, ElementsAre("over", "dropEx", "leave"));
}

TEST_F(DropTargetTest, ScrollingIsNoEffectOfADrop)
{
    target.over = DROPEFFECT_SCROLL;
    enter();

    EXPECT_EQ(drop(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.dropDefault, static_cast<DROPEFFECT>(DROPEFFECT_NONE));
}

TEST_F(DropTargetTest, NoExceptionLeavesTheMethods)
{
    for (const char* where : {"enter", "over", "leave", "dropEx", "drop"}) {
        SCOPED_TRACE(where);
        target.throwsIn = where;
        const std::string step = where;
        if (step == "enter")
            enter();
        else if (step == "over")
            over();
        else if (step == "leave")
            leave();
        else
            drop();
        EXPECT_EQ(status, E_UNEXPECTED);
        EXPECT_THROW(nextStep(window), std::runtime_error) << "it waits for the message loop";
        target.throwsIn = "";
        leave();
        enter();
    }
    leave();
}

TEST_F(DropTargetTest, AFailedQuestionHasNoEffect)
{
    target.throwsIn = "enter";

    EXPECT_EQ(enter(), static_cast<DROPEFFECT>(DROPEFFECT_NONE));

    target.throwsIn = "";
    EXPECT_THROW(nextStep(window), std::runtime_error);
    leave();
}

TEST_F(DropTargetTest, AWindowHasOneTargetAndATargetOneWindow)
{
    Target other;
    RecordingParent second;

    EXPECT_FALSE(other.Register(&window)) << "the window has a target";
    EXPECT_FALSE(target.Register(&second)) << "the target has a window";
    EXPECT_EQ(other.m_hWnd, nullptr);
    EXPECT_TRUE(other.Register(&second));
    EXPECT_EQ(second.m_pDropTarget, &other);
}

TEST_F(DropTargetTest, RevokingFreesWindowAndTarget)
{
    target.Revoke();
    EXPECT_EQ(target.m_hWnd, nullptr);
    EXPECT_EQ(window.m_pDropTarget, nullptr);
    target.Revoke(); // nothing more to be done
    EXPECT_TRUE(target.Register(&window));
}

TEST_F(DropTargetTest, RevokingDuringADragReleasesTheData)
{
    enter();
    target.Revoke();

    EXPECT_EQ(data.references, 1);
}

TEST(DropTarget, MayBeDeletedByWhateverItIsAsked)
{
    using Fleeting = Perishing<Target>;
    for (const char* const last : {"scroll", "enter", "over", "dropEx", "drop", "leave"})
        for (const bool drops : {false, true}) {
            SCOPED_TRACE(std::string(last) + (drops ? ", dropped" : ", left"));
            FakeDataObject data{L"dragged"};
            RecordingParent window;
            auto* const target = new Fleeting;
            EXPECT_TRUE(target->Register(&window));
            bool alive = true;
            target->misdeed = [&](std::string what) {
                if (what == last && std::exchange(alive, false))
                    delete target;
            };
            auto* const part = static_cast<IDropTarget*>(target->GetInterface(&IID_IDropTarget));
            DWORD effect = DROPEFFECT_COPY;
            part->DragEnter(&data, MK_LBUTTON, {}, &effect);
            if (alive && drops)
                part->Drop(&data, 0, {}, &effect);
            if (alive && !drops)
                part->DragOver(MK_LBUTTON, {}, &effect);
            if (alive && !drops)
                part->DragLeave();
            EXPECT_EQ(data.references, 1);
            if (alive)
                delete target;
            else
                EXPECT_TRUE(Fleeting::isUntouched(target));
        }
}

TEST(DropTarget, MayBeDeletedWhileADragHoldsIt)
{
    using Fleeting = Perishing<Target>;
    FakeDataObject data{L"dragged"};
    RecordingParent window;
    auto* const target = new Fleeting;
    ASSERT_TRUE(target->Register(&window));
    IDropTarget* const held = heldTarget(window.m_hWnd);
    ASSERT_NE(held, nullptr);
    DWORD effect = DROPEFFECT_COPY;
    EXPECT_EQ(held->DragEnter(&data, MK_LBUTTON, {}, &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_COPY});

    delete target;

    effect = DROPEFFECT_COPY;
    EXPECT_EQ(held->DragOver(MK_LBUTTON, {}, &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(held->DragLeave(), S_OK);
    effect = DROPEFFECT_COPY;
    EXPECT_EQ(held->DragEnter(&data, MK_LBUTTON, {}, &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    effect = DROPEFFECT_COPY;
    EXPECT_EQ(held->Drop(&data, 0, {}, &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(held->Release(), 0u);
    EXPECT_EQ(data.references, 1);
    EXPECT_TRUE(Fleeting::isUntouched(target));
}

TEST_F(DropTargetTest, IsAskedNoMoreByADragThatHoldsItAfterItWasRevoked)
{
    IDropTarget* const held = heldTarget(window.m_hWnd);
    ASSERT_NE(held, nullptr);
    DWORD effect = allowed;
    held->DragEnter(&data, MK_LBUTTON, at(CPoint(10, 20)), &effect);
    target.Revoke();
    target.asked.clear();

    held->DragOver(MK_LBUTTON, at(CPoint(10, 20)), &effect);
    held->DragLeave();
    held->Release();

    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_TRUE(target.asked.empty());
}

TEST(DropTarget, TheWindowRevokesItWhenItIsDestroyed)
{
    Target target;
    CWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    ASSERT_TRUE(target.Register(&window));
    IDropTarget* const held = heldTarget(window.m_hWnd);
    ASSERT_NE(held, nullptr);

    window.DestroyWindow();

    EXPECT_EQ(target.m_hWnd, nullptr);
    EXPECT_EQ(window.m_pDropTarget, nullptr);
    EXPECT_EQ(held->Release(), 0u) << "the system has let go of it";
}

TEST(DropTarget, ItsDestructorRevokes)
{
    RecordingParent window;
    {
        Target target;
        target.Register(&window);
    }
    EXPECT_EQ(window.m_pDropTarget, nullptr);
    Target next;
    EXPECT_TRUE(next.Register(&window));
}

TEST(DropTarget, NeedsAWindow)
{
    Target target;
    CWnd none;

    EXPECT_FALSE(target.Register(&none));
    EXPECT_FALSE(target.Register(nullptr));
}

TEST(DropTarget, TheDefaultsTakeNothing)
{
    COleDropTarget target;
    COleDataObject data;

    EXPECT_EQ(target.OnDragEnter(nullptr, &data, 0, CPoint()), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.OnDragOver(nullptr, &data, 0, CPoint()), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.OnDragScroll(nullptr, 0, CPoint()), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.OnDropEx(nullptr, &data, DROPEFFECT_COPY, DROPEFFECT_COPY, CPoint()), kNotHandled);
    EXPECT_FALSE(target.OnDrop(nullptr, &data, DROPEFFECT_COPY, CPoint()));
}
