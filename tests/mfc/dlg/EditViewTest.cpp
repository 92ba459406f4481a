// An editor that fills a frame: its text, its commands, finding and replacing.
#include "TestFrame.h"

#include <afxext.h>

#include <gtest/gtest.h>
#include <testkit/WindowCounter.h>

using namespace ovo::testkit;

namespace
{

class TestEditView : public CEditView
{
    DECLARE_DYNCREATE(TestEditView)

public:
    int notFound = 0;

    using CEditView::OnFindNext;
    using CEditView::OnReplaceAll;
    using CEditView::OnReplaceSel;

protected:
    void OnTextNotFound(LPCTSTR) override { ++notFound; }
};

IMPLEMENT_DYNCREATE(TestEditView, CEditView)

class EditViewTest : public ::testing::Test, protected FilledFrame<TestEditView>
{
protected:
    EditViewTest()
        : FilledFrame(RUNTIME_CLASS(TestEditView), L"Edits", CSize(400, 250))
    {
    }

    std::wstring text() const { return textIn(*view); }

    std::pair<int, int> selection() const
    {
        std::pair<int, int> place;
        view->GetEditCtrl().GetSel(place.first, place.second);
        return place;
    }

    /// Whether the command is enabled, as a menu would show it.
    bool enabled(UINT id)
    {
        struct Asked : CCmdUI
        {
            void Enable(BOOL on) override
            {
                m_bEnableChanged = TRUE;
                enabled = on != FALSE;
            }
            bool enabled = true;
        } ui;
        ui.m_nID = id;
        ui.m_nIndexMax = 1;
        ui.DoUpdate(frame, TRUE);
        return ui.enabled;
    }

    void command(UINT id) { frame->SendMessage(WM_COMMAND, id); }
};

using Range = std::pair<int, int>;

} // namespace

TEST_F(EditViewTest, IsAMultiLineEditorThatFillsTheFrame)
{
    const DWORD style = view->GetStyle();
    EXPECT_EQ(style & (ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL | WS_VSCROLL),
              DWORD{ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL | WS_VSCROLL});
    EXPECT_EQ(view->GetEditCtrl().m_hWnd, view->m_hWnd);
    EXPECT_EQ(view->GetEditCtrl().GetLimitText(), 1048575u);
    CRect client;
    frame->GetClientRect(&client);
    EXPECT_EQ(frame->placeOf(*view), client);
}

TEST_F(EditViewTest, AUserTypesIntoIt)
{
    present(*frame);
    ASSERT_TRUE(GuiThread::runUntil([&] { return ::GetFocus() == view->m_hWnd; }));
    Robot().type(L"oak").key(VK_RETURN).type(L"elm");
    EXPECT_EQ(text(), L"oak\r\nelm");
    EXPECT_EQ(view->GetBufferLength(), 8u);
    EXPECT_EQ(std::wstring(view->LockBuffer()), L"oak\r\nelm");
    view->UnlockBuffer();
    EXPECT_EQ(view->GetEditCtrl().GetLineCount(), 2);
}

TEST_F(EditViewTest, TheSelectedTextEndsWithItsLine)
{
    view->SetWindowText(L"oak\r\nelm");
    CString selected;
    view->GetSelectedText(selected);
    EXPECT_EQ(selected, L"");
    view->GetEditCtrl().SetSel(1, 7);
    view->GetSelectedText(selected);
    EXPECT_EQ(selected, L"ak");
}

TEST_F(EditViewTest, HandlesTheCommandsOfAnEditMenu)
{
    EXPECT_FALSE(enabled(ID_EDIT_SELECT_ALL)) << "there is no text";
    EXPECT_FALSE(enabled(ID_EDIT_FIND));
    view->SetWindowText(L"oak elm");
    EXPECT_TRUE(enabled(ID_EDIT_SELECT_ALL));
    EXPECT_TRUE(enabled(ID_EDIT_FIND));
    EXPECT_FALSE(enabled(ID_EDIT_CUT));
    EXPECT_FALSE(enabled(ID_EDIT_CLEAR));
    view->GetEditCtrl().SetSel(0, 3);
    EXPECT_TRUE(enabled(ID_EDIT_CUT));
    command(ID_EDIT_CUT);
    EXPECT_EQ(text(), L" elm");
    EXPECT_TRUE(enabled(ID_EDIT_UNDO));
    EXPECT_TRUE(enabled(ID_EDIT_PASTE));
    view->GetEditCtrl().SetSel(4, 4);
    command(ID_EDIT_PASTE);
    EXPECT_EQ(text(), L" elmoak");
    command(ID_EDIT_UNDO);
    EXPECT_EQ(text(), L" elm");
    command(ID_EDIT_SELECT_ALL);
    EXPECT_EQ(selection(), Range(0, 4));
    command(ID_EDIT_COPY);
    command(ID_EDIT_CLEAR);
    EXPECT_EQ(text(), L"");
    command(ID_EDIT_PASTE);
    EXPECT_EQ(text(), L" elm");
}

TEST_F(EditViewTest, FindsForwardsAndBackwards)
{
    view->SetWindowText(L"ash Ash elm ash");
    EXPECT_TRUE(view->FindText(L"ash"));
    EXPECT_EQ(selection(), Range(0, 3));
    EXPECT_TRUE(view->FindText(L"ash"));
    EXPECT_EQ(selection(), Range(12, 15));
    EXPECT_FALSE(view->FindText(L"ash"));
    EXPECT_EQ(selection(), Range(12, 15)) << "as it was";
    EXPECT_TRUE(view->FindText(L"ash", FALSE, FALSE));
    EXPECT_EQ(selection(), Range(4, 7));
    view->OnFindNext(L"oak", TRUE, TRUE);
    EXPECT_EQ(view->notFound, 1);
}

TEST_F(EditViewTest, ReplacesOneByOne)
{
    view->SetWindowText(L"ash elm ash");
    view->OnReplaceSel(L"ash", TRUE, TRUE, L"beech");
    EXPECT_EQ(text(), L"ash elm ash") << "nothing is selected yet";
    EXPECT_EQ(selection(), Range(0, 3));
    view->OnReplaceSel(L"ash", TRUE, TRUE, L"beech");
    EXPECT_EQ(text(), L"beech elm ash");
    EXPECT_EQ(selection(), Range(10, 13));
    EXPECT_EQ(view->notFound, 0);
    view->OnReplaceSel(L"ash", TRUE, TRUE, L"");
    EXPECT_EQ(text(), L"beech elm ");
    EXPECT_EQ(view->notFound, 1);
}

TEST_F(EditViewTest, ReplacesAllOnceTheUserHasSeenTheFirst)
{
    view->SetWindowText(L"ash Ash ash");
    view->OnReplaceAll(L"ash", L"ash tree", TRUE);
    EXPECT_EQ(text(), L"ash Ash ash");
    EXPECT_EQ(selection(), Range(0, 3));
    view->OnReplaceAll(L"ash", L"ash tree", TRUE);
    EXPECT_EQ(text(), L"ash tree Ash ash tree") << "what is put in is not looked at again";
    EXPECT_EQ(view->notFound, 0);
    view->OnReplaceAll(L"oak", L"elm", TRUE);
    EXPECT_EQ(view->notFound, 1);
}

TEST_F(EditViewTest, AUserFindsWithTheDialog)
{
    present(*frame);
    view->SetWindowText(L"oak elm ash elm");
    command(ID_EDIT_FIND);
    Robot()
        .waitFor("the dialog", [&] { return shownDialog() && ::GetActiveWindow() == shownDialog(); })
        .type(L"elm")
        .key(VK_RETURN)
        .waitFor("the first place", [&] { return selection() == Range(4, 7); })
        .key(VK_RETURN)
        .waitFor("the second place", [&] { return selection() == Range(12, 15); })
        .key(VK_ESCAPE)
        .waitFor("the end of the dialog", [&] { return !shownDialog(); });
    view->GetEditCtrl().SetSel(0, 0);
    EXPECT_TRUE(enabled(ID_EDIT_REPEAT));
    command(ID_EDIT_REPEAT);
    EXPECT_EQ(selection(), Range(4, 7));
}

TEST_F(EditViewTest, ItsDialogGoesWithIt)
{
    present(*frame);
    view->SetWindowText(L"oak");
    const WindowCounter windows;
    command(ID_EDIT_REPLACE);
    GuiThread::settle();
    EXPECT_GT(windows.grown(), 0);
    view->DestroyWindow();
    EXPECT_LE(windows.grown(), 0);
}
