// A drag from end to end: real buttons, a source window and a target window.
#include "FakeDataObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

/// Takes everything, and remembers it.
class Target : public COleDropTarget
{
public:
    int entered = 0;
    int drags = 0;
    int left = 0;
    DWORD keys = 0;
    DROPEFFECT answer = DROPEFFECT_MOVE;
    std::wstring text;
    CPoint point;
    const char* throwsIn = "";

    DROPEFFECT OnDragEnter(CWnd*, COleDataObject*, DWORD keyState, CPoint) override
    {
        ++entered;
        keys = keyState;
        fail("enter");
        return answer;
    }
    DROPEFFECT OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) override
    {
        ++drags;
        fail("over");
        return answer;
    }
    void OnDragLeave(CWnd*) override { ++left; }
    BOOL OnDrop(CWnd*, COleDataObject* data, DROPEFFECT, CPoint pt) override
    {
        fail("drop");
        text = takeText(data->GetGlobalData(CF_UNICODETEXT));
        point = pt;
        return TRUE;
    }

private:
    void fail(const std::string& where) const
    {
        if (where == throwsIn)
            throw std::runtime_error(where);
    }
};

class Source : public COleDropSource
{
public:
    std::vector<DROPEFFECT> feedback;
    bool throws = false;

    SCODE GiveFeedback(DROPEFFECT effect) override
    {
        if (feedback.empty() || feedback.back() != effect)
            feedback.push_back(effect);
        if (throws)
            throw std::runtime_error("feedback");
        return COleDropSource::GiveFeedback(effect);
    }
};

/// A child window that begins a drag when a button goes down.
class Draggable : public CWnd
{
public:
    Source source;
    DROPEFFECT result = static_cast<DROPEFFECT>(-1);
    bool done = false;
    std::string caught;
    long referencesAfter = 0;

protected:
    afx_msg void OnLButtonDown(UINT, CPoint) { drag(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { drag(); }
    DECLARE_MESSAGE_MAP()

private:
    void drag()
    {
        COleDataSource data;
        data.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"from afar"));
        try {
            result = data.DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE, nullptr, &source);
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
        referencesAfter = data.m_dwRef;
        done = true;
    }
};

BEGIN_MESSAGE_MAP(Draggable, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

struct DragDropTest : ::testing::Test
{
    DragDropTest()
    {
        const CString name = AfxRegisterWndClass(0);
        draggable.Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(20, 20, 120, 120), &frame, 1);
        place.Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(300, 20, 500, 220), &frame, 2);
        target.Register(&place);
        present(frame);
    }

    auto isDone()
    {
        return [this] { return draggable.done; };
    }
    auto isOver()
    {
        return [this] { return target.drags > 0; };
    }

    RecordingParent frame;
    Draggable draggable;
    CWnd place;
    Target target;
};

} // namespace

TEST_F(DragDropTest, WhatIsReleasedOverTheTargetIsDroppedThere)
{
    Robot()
        .press(Spot(draggable))
        .moveTo(Spot(place, CPoint(50, 60)))
        .waitFor("the target to be asked", isOver())
        .release()
        .waitFor("the end of the drag", isDone());

    EXPECT_EQ(draggable.result, static_cast<DROPEFFECT>(DROPEFFECT_MOVE));
    EXPECT_EQ(target.entered, 1);
    EXPECT_EQ(target.text, L"from afar");
    EXPECT_EQ(target.point, CPoint(50, 60));
    EXPECT_TRUE(target.keys & MK_LBUTTON);
    EXPECT_THAT(draggable.source.feedback, ::testing::Contains(DROPEFFECT_MOVE));
    EXPECT_EQ(draggable.referencesAfter, 1) << "everybody has let go of the source";
    EXPECT_EQ(draggable.source.m_dwRef, 1);
}

TEST_F(DragDropTest, TheRightButtonDropsWhenTheRightButtonIsReleased)
{
    Robot()
        .press(Spot(draggable), Button::Right)
        .moveTo(Spot(place))
        .waitFor("the target to be asked", isOver())
        .release(Button::Right)
        .waitFor("the end of the drag", isDone());

    EXPECT_EQ(draggable.result, static_cast<DROPEFFECT>(DROPEFFECT_MOVE));
    EXPECT_EQ(target.text, L"from afar");
    EXPECT_TRUE(target.keys & MK_RBUTTON);
}

TEST_F(DragDropTest, TheOtherButtonCancels)
{
    Robot()
        .press(Spot(draggable), Button::Right)
        .moveTo(Spot(place))
        .waitFor("the target to be asked", isOver())
        .press(Spot(place), Button::Left)
        .waitFor("the end of the drag", isDone())
        .release(Button::Left)
        .release(Button::Right);

    EXPECT_EQ(draggable.result, static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.text, L"");
    EXPECT_EQ(target.left, 1);
}

TEST_F(DragDropTest, EscapeCancels)
{
    Robot()
        .press(Spot(draggable))
        .moveTo(Spot(place))
        .waitFor("the target to be asked", isOver())
        .key(VK_ESCAPE)
        .waitFor("the end of the drag", isDone())
        .release();

    EXPECT_EQ(draggable.result, static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.text, L"");
    EXPECT_EQ(target.left, 1);
}

TEST_F(DragDropTest, ADropOnAWindowThatIsNoTargetHasNoEffect)
{
    Robot()
        .press(Spot(draggable))
        .moveTo(Spot(frame, CPoint(200, 300)))
        .release()
        .waitFor("the end of the drag", isDone());

    EXPECT_EQ(draggable.result, static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_EQ(target.entered, 0);
}

TEST_F(DragDropTest, AnExceptionOfTheTargetEndsTheDragAndComesOutOfIt)
{
    target.throwsIn = "over";

    Robot().press(Spot(draggable)).moveTo(Spot(place)).waitFor("the end of the drag", isDone()).release();

    EXPECT_EQ(draggable.caught, "over");
    EXPECT_EQ(target.text, L"");
    EXPECT_NO_THROW(frame.SendMessage(WM_NULL)) << "nothing is left over";
}

TEST_F(DragDropTest, AnExceptionOfTheDropComesOutOfTheDrag)
{
    target.throwsIn = "drop";

    Robot()
        .press(Spot(draggable))
        .moveTo(Spot(place))
        .waitFor("the target to be asked", isOver())
        .release()
        .waitFor("the end of the drag", isDone());

    EXPECT_EQ(draggable.caught, "drop");
}

TEST_F(DragDropTest, AnExceptionOfTheSourceEndsTheDragAndComesOutOfIt)
{
    draggable.source.throws = true;

    Robot().press(Spot(draggable)).moveTo(Spot(place)).waitFor("the end of the drag", isDone()).release();

    EXPECT_EQ(draggable.caught, "feedback");
    EXPECT_EQ(target.text, L"");
}

TEST_F(DragDropTest, TheDataSourceMayLetGoOfItselfMeanwhile)
{
    /// A source on the heap that a handler releases while it is dragged.
    class Passing : public COleDataSource
    {
    public:
        explicit Passing(bool& gone)
            : m_gone(gone)
        {
        }
        ~Passing() override { m_gone = true; }

    private:
        bool& m_gone;
    };
    class Releasing : public COleDropSource
    {
    public:
        COleDataSource* data = nullptr;

        BOOL OnBeginDrag(CWnd*) override
        {
            data->InternalRelease();
            return FALSE;
        }
    } releasing;
    bool gone = false;
    auto* data = new Passing(gone);
    releasing.data = data;

    EXPECT_EQ(data->DoDragDrop(DROPEFFECT_COPY, nullptr, &releasing),
              static_cast<DROPEFFECT>(DROPEFFECT_NONE));
    EXPECT_TRUE(gone);
}
