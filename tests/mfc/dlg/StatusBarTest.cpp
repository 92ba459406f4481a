// The status bar: panes, texts, indicators.
#include "TestFrame.h"
#include "resource.h"

#include <support/Perishing.h>
#include <testkit/Picture.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_TREE, ID_INDICATOR_WIDE, ID_INDICATOR_NUM};

class StatusBar : public ::testing::Test
{
protected:
    StatusBar()
    {
        m_bar.Create(&*m_frame);
        m_bar.SetIndicators(kPanes, static_cast<int>(std::size(kPanes)));
        m_frame->RecalcLayout();
    }

    CRect pane(int index) const
    {
        CRect rect;
        m_bar.GetItemRect(index, &rect);
        return rect;
    }

    /// What the control shows, whatever the bar has been told.
    std::wstring shown(int index) const { return m_bar.GetStatusBarCtrl().GetText(index).GetString(); }

    int drawType(int index) const
    {
        int type = 0;
        m_bar.GetStatusBarCtrl().GetText(index, &type);
        return type;
    }

    CStatusBar m_bar;
    MainFrame m_frame;
};

} // namespace

// Place

TEST_F(StatusBar, LiesAtTheBottomOfTheFrame)
{
    CRect client;
    m_frame->GetClientRect(&client);
    const CRect place = m_frame->placeOf(m_bar);
    EXPECT_EQ(place.bottom, client.bottom);
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.right, client.right);
    EXPECT_EQ(m_frame->placeOf(*m_frame->view).bottom, place.top);
    EXPECT_EQ(m_bar.GetDlgCtrlID(), AFX_IDW_STATUS_BAR);
    EXPECT_TRUE(m_bar.GetStyle() & SBARS_SIZEGRIP) << "the frame can be sized";
}

TEST_F(StatusBar, IsAsHighAsItsTextNeeds)
{
    CClientDC dc(&m_bar);
    CFont* old = dc.SelectObject(m_bar.GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(old);
    EXPECT_GT(m_frame->placeOf(m_bar).Height(), metrics.tmHeight);
    EXPECT_LT(m_frame->placeOf(m_bar).Height(), 3 * metrics.tmHeight);
}

TEST_F(StatusBar, MayLieAtTheTopWithoutAGrip)
{
    CStatusBar top;
    ASSERT_TRUE(top.CreateEx(&*m_frame, 0, WS_CHILD | WS_VISIBLE | CBRS_TOP, AFX_IDW_STATUS_BAR + 0x50));
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->placeOf(top).top, 0);
    EXPECT_FALSE(top.GetStyle() & SBARS_SIZEGRIP);
    top.DestroyWindow();
}

// Panes

TEST_F(StatusBar, TheFirstPaneTakesWhatTheOthersLeave)
{
    EXPECT_EQ(m_bar.GetCount(), 4);
    EXPECT_EQ(pane(0).left, 0);
    for (int i = 1; i < 4; ++i)
        EXPECT_GE(pane(i).left, pane(i - 1).right) << i;
    EXPECT_GT(pane(2).Width(), pane(1).Width()) << "as wide as their texts";
    EXPECT_GT(pane(0).Width(), pane(2).Width());

    const CRect before = pane(3);
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pane(3).Width(), before.Width());
    EXPECT_GT(pane(3).left, before.left);
}

TEST_F(StatusBar, ATextFitsIntoItsPane)
{
    CClientDC dc(&m_bar);
    CFont* old = dc.SelectObject(m_bar.GetFont());
    const int width = dc.GetTextExtent(L"A rather wide indicator").cx;
    dc.SelectObject(old);
    EXPECT_GE(pane(2).Width(), width);
}

TEST_F(StatusBar, PanesAreNamedByTheirStrings)
{
    EXPECT_EQ(m_bar.CommandToIndex(ID_INDICATOR_WIDE), 2);
    EXPECT_EQ(m_bar.CommandToIndex(4711), -1);
    EXPECT_EQ(m_bar.GetItemID(1), static_cast<UINT>(ID_INDICATOR_TREE));
    EXPECT_EQ(m_bar.GetItemID(0), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_STREQ(m_bar.GetPaneText(1), L"TREE");
    CString text;
    m_bar.GetPaneText(2, text);
    EXPECT_STREQ(text, L"A rather wide indicator");
}

TEST_F(StatusBar, AMissingStringChangesNothing)
{
    static constexpr UINT kMissing[] = {ID_SEPARATOR, ID_INDICATOR_MISSING};
    EXPECT_FALSE(m_bar.SetIndicators(kMissing, 2));
    EXPECT_EQ(m_bar.GetCount(), 4);
}

TEST_F(StatusBar, PanesMayBeMadeEmpty)
{
    ASSERT_TRUE(m_bar.SetIndicators(nullptr, 3));
    EXPECT_EQ(m_bar.GetCount(), 3);
    m_bar.SetPaneInfo(1, 5, SBPS_NORMAL, 80);
    UINT id = 0;
    UINT style = 1;
    int width = 0;
    m_bar.GetPaneInfo(1, id, style, width);
    EXPECT_EQ(id, 5u);
    EXPECT_EQ(style, static_cast<UINT>(SBPS_NORMAL));
    EXPECT_EQ(width, 80);
    EXPECT_GE(pane(1).Width(), 80);
}

TEST_F(StatusBar, AnyPaneMayBeTheStretchedOne)
{
    const int before = pane(1).Width();
    m_bar.SetPaneStyle(0, SBPS_NOBORDERS);
    m_bar.SetPaneStyle(1, SBPS_STRETCH);
    EXPECT_GT(pane(1).Width(), before + 100);
    EXPECT_LT(pane(0).Width(), 50);
}

TEST_F(StatusBar, AnIndexThatIsNoneIsRefused)
{
    CRect rect(1, 2, 3, 4);
    m_bar.GetItemRect(4, &rect);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_FALSE(m_bar.SetPaneText(4, L"Oak"));
    EXPECT_FALSE(m_bar.SetPaneText(-1, L"Oak"));
    const auto refuses = [](auto call) {
        try {
            call();
        } catch (CInvalidArgException* exception) {
            exception->Delete();
            return true;
        }
        return false;
    };
    EXPECT_TRUE(refuses([this] { m_bar.GetItemID(4); }));
    EXPECT_TRUE(refuses([this] { m_bar.GetPaneText(-1); }));
    EXPECT_TRUE(refuses([this] { m_bar.SetPaneStyle(4, 0); }));
}

// Texts

TEST_F(StatusBar, TheFirstPaneIsTheWindowText)
{
    m_bar.SetWindowText(L"Oak");
    EXPECT_STREQ(m_bar.GetPaneText(0), L"Oak");
    EXPECT_EQ(shown(0), L"Oak");
    EXPECT_EQ(textIn(m_bar), L"Oak");
}

TEST_F(StatusBar, ATextIsShownAtOnceOrWhenThereIsTime)
{
    EXPECT_TRUE(m_bar.SetPaneText(1, L"ASH"));
    EXPECT_EQ(shown(1), L"ASH");
    EXPECT_TRUE(m_bar.SetPaneText(1, L"ELM", FALSE));
    EXPECT_STREQ(m_bar.GetPaneText(1), L"ELM");
    EXPECT_EQ(shown(1), L"ASH");
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    GuiThread::settle();
    EXPECT_EQ(shown(1), L"ELM");
}

TEST_F(StatusBar, ADisabledPaneKeepsItsTextToItself)
{
    m_bar.SetPaneStyle(1, SBPS_DISABLED);
    EXPECT_EQ(shown(1), L"");
    EXPECT_STREQ(m_bar.GetPaneText(1), L"TREE");
    m_bar.SetPaneText(1, L"ASH");
    EXPECT_EQ(shown(1), L"");
    m_bar.SetPaneStyle(1, SBPS_NORMAL);
    EXPECT_EQ(shown(1), L"ASH");
}

// Updates

TEST_F(StatusBar, UpdateHandlersShowTheirPane)
{
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    m_frame->updates[ID_INDICATOR_TREE] = [](CCmdUI& ui) {
        ui.SetText(L"OAK");
        ui.Enable();
    };
    m_frame->updates[ID_INDICATOR_WIDE] = [](CCmdUI& ui) { ui.Enable(FALSE); };
    GuiThread::settle();
    EXPECT_EQ(shown(1), L"OAK");
    EXPECT_EQ(shown(2), L"");
    m_frame->updates[ID_INDICATOR_WIDE] = [](CCmdUI& ui) {
        ui.Enable();
        ui.SetCheck();
    };
    m_frame->PostMessage(WM_NULL);
    GuiThread::settle();
    EXPECT_EQ(shown(2), L"A rather wide indicator");
    EXPECT_TRUE(drawType(2) & SBT_POPOUT) << "checked";
}

TEST_F(StatusBar, AnUpdateHandlerMayLeaveFewerPanes)
{
    m_frame->updates[ID_INDICATOR_TREE] = [this](CCmdUI& ui) {
        m_bar.SetIndicators(kPanes, 1);
        ui.Enable(FALSE);
        ui.SetCheck();
        ui.SetText(L"OAK");
    };
    EXPECT_NO_THROW(m_bar.OnUpdateCmdUI(&*m_frame, FALSE));
    EXPECT_EQ(m_bar.GetCount(), 1);
    EXPECT_EQ(shown(0), L"");
}

TEST_F(StatusBar, AnUpdateHandlerMayDeleteTheBar)
{
    m_bar.DestroyWindow();
    auto* const bar = new Perishing<CStatusBar>;
    const void* const memory = bar;
    ASSERT_TRUE(bar->Create(&*m_frame));
    ASSERT_TRUE(bar->SetIndicators(kPanes, static_cast<int>(std::size(kPanes))));
    m_frame->updates[ID_INDICATOR_TREE] = [bar](CCmdUI& ui) {
        delete bar;
        ui.Enable(FALSE);
        ui.SetCheck();
        ui.SetText(L"OAK");
    };
    bar->OnUpdateCmdUI(&*m_frame, FALSE);
    EXPECT_EQ(m_frame->GetMessageBar(), nullptr);
    EXPECT_TRUE(Perishing<CStatusBar>::isUntouched(memory));
}

TEST_F(StatusBar, APaneWithoutAHandlerStaysAsItIs)
{
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    GuiThread::settle();
    EXPECT_EQ(shown(1), L"TREE");
    EXPECT_EQ(m_bar.GetPaneStyle(1), static_cast<UINT>(SBPS_NORMAL));
}

TEST_F(StatusBar, TheLockKeysAreShown)
{
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    const auto isOn = [] { return (::GetKeyState(VK_NUMLOCK) & 1) != 0; };
    present(*m_frame);
    EXPECT_EQ(shown(3) == L"NUM", isOn());
    const bool before = isOn();
    Robot().key(VK_NUMLOCK);
    EXPECT_NE(isOn(), before);
    EXPECT_EQ(shown(3) == L"NUM", isOn());
    Robot().key(VK_NUMLOCK);
    EXPECT_EQ(shown(3) == L"NUM", before);
}

TEST_F(StatusBar, AProgramMayHaveItsOwnIdeaOfALockKey)
{
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    m_frame->updates[ID_INDICATOR_NUM] = [](CCmdUI& ui) {
        ui.Enable();
        ui.SetText(L"ON");
    };
    GuiThread::settle();
    EXPECT_EQ(shown(3), L"ON");
}

// Painting

TEST_F(StatusBar, OwnerDrawnPanesAreDrawnByTheBar)
{
    class DrawnBar : public CStatusBar
    {
    public:
        void DrawItem(LPDRAWITEMSTRUCT item) override
        {
            drawn = static_cast<int>(item->itemID);
            CDC::FromHandle(item->hDC)->FillSolidRect(&item->rcItem, RGB(250, 10, 20));
        }
        int drawn = -1;
    } bar;
    m_bar.DestroyWindow();
    ASSERT_TRUE(bar.Create(&*m_frame));
    ASSERT_TRUE(bar.SetIndicators(kPanes, 4));
    bar.SetPaneStyle(1, SBPS_OWNERDRAW);
    m_frame->RecalcLayout();
    present(*m_frame);
    EXPECT_EQ(bar.drawn, 1);
    CRect rect;
    bar.GetItemRect(1, &rect);
    EXPECT_THAT(Picture::ofClient(bar).at(rect.CenterPoint()), IsColour(RGB(250, 10, 20), 3));
    bar.DestroyWindow();
}

TEST_F(StatusBar, SurvivesItsWindow)
{
    m_bar.DestroyWindow();
    EXPECT_EQ(m_bar.m_hWnd, nullptr);
    ASSERT_TRUE(m_bar.Create(&*m_frame)) << "and can have another";
    EXPECT_TRUE(m_bar.SetIndicators(kPanes, 4));
    EXPECT_EQ(shown(1), L"TREE");
}
