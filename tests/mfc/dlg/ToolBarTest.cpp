// A frame's toolbar: loading, buttons, updates, commands, rows.
#include "TestFrame.h"
#include "resource.h"

#include <testkit/Picture.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class ToolBar : public ::testing::Test
{
protected:
    ToolBar()
    {
        create(WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_TOOLTIPS | CBRS_FLYBY);
        m_loaded = m_bar.LoadToolBar(IDR_FRAME);
        m_frame->RecalcLayout();
    }

    void create(DWORD style)
    {
        if (m_bar.m_hWnd)
            m_bar.DestroyWindow();
        ASSERT_TRUE(m_bar.CreateEx(&*m_frame, TBSTYLE_FLAT, style));
    }

    CRect button(int index) const
    {
        CRect rect;
        m_bar.GetItemRect(index, &rect);
        return rect;
    }

    UINT style(int index) const { return m_bar.GetButtonStyle(index); }

    /// Where a button is on the screen.
    Spot spot(int index) const
    {
        return Spot{[=, this] {
            CRect rect = button(index);
            m_bar.ClientToScreen(&rect);
            return rect.CenterPoint();
        }};
    }

    void settleShown()
    {
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->PostMessage(WM_NULL);
        GuiThread::settle();
    }

    enum Index
    {
        Act,
        Other,
        Separator,
        Unhandled
    };

    CToolBar m_bar;
    MainFrame m_frame;
    BOOL m_loaded = FALSE;
};

} // namespace

// Loading

TEST_F(ToolBar, IsLoadedFromItsResource)
{
    ASSERT_TRUE(m_loaded);
    EXPECT_EQ(m_bar.GetCount(), 4);
    EXPECT_EQ(m_bar.GetItemID(Act), static_cast<UINT>(ID_TEST_ACT));
    EXPECT_EQ(m_bar.GetItemID(Separator), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(m_bar.CommandToIndex(ID_TEST_UNHANDLED), Unhandled);
    EXPECT_EQ(m_bar.CommandToIndex(4711), -1);
    EXPECT_TRUE(style(Separator) & TBBS_SEPARATOR);

    UINT id = 0;
    UINT buttonStyle = 0;
    int image = -1;
    m_bar.GetButtonInfo(Unhandled, id, buttonStyle, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_TEST_UNHANDLED));
    EXPECT_EQ(image, 2) << "separators have no picture";
    m_bar.GetButtonInfo(Separator, id, buttonStyle, image);
    EXPECT_GT(image, 0) << "its width";
    EXPECT_EQ(button(Separator).Width(), image);
}

TEST_F(ToolBar, WithoutItsResourcesIsNotLoaded)
{
    CToolBar bar;
    ASSERT_TRUE(bar.Create(&*m_frame, WS_CHILD | CBRS_TOP, AFX_IDW_TOOLBAR + 0x40));
    EXPECT_FALSE(bar.LoadToolBar(IDR_FRAME_MISSING));
    EXPECT_FALSE(bar.LoadToolBar(L"NO_SUCH_TOOLBAR"));
    EXPECT_FALSE(bar.LoadToolBar(IDR_NO_BITMAP)) << "its bitmap is missing";
    EXPECT_FALSE(bar.LoadBitmap(IDR_NO_BITMAP));
    bar.DestroyWindow();
}

TEST_F(ToolBar, ShowsItsPicturesInTheSystemsColours)
{
    // Not disabled, so that the pictures are in their own colours.
    m_frame->updates[ID_TEST_UNHANDLED] = [](CCmdUI& ui) { ui.Enable(); };
    present(*m_frame);
    const Picture picture = Picture::ofClient(m_bar);
    EXPECT_THAT(picture.at(button(Act).CenterPoint()), IsColour(RGB(255, 0, 0)));
    EXPECT_THAT(picture.at(button(Other).CenterPoint()), IsColour(RGB(0, 255, 0)));
    EXPECT_THAT(picture.at(button(Unhandled).CenterPoint()), IsColour(RGB(0, 0, 255)));
    EXPECT_EQ(picture.count(RGB(192, 192, 192)), 0) << "the grey of the pictures is the colour of the bar";
}

TEST_F(ToolBar, ItsPicturesCanBeReplaced)
{
    present(*m_frame);
    const HBITMAP bitmap = ::CreateBitmap(48, 15, 1, 32, nullptr);
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HGDIOBJ old = ::SelectObject(dc, bitmap);
        dc.FillSolidRect(0, 0, 48, 15, RGB(200, 100, 50));
        ::SelectObject(dc, old);
    }
    ASSERT_TRUE(m_bar.SetBitmap(bitmap));
    m_bar.RedrawWindow();
    EXPECT_THAT(Picture::ofClient(m_bar).at(button(Act).CenterPoint()), IsColour(RGB(200, 100, 50), 8));
    EXPECT_FALSE(m_bar.SetBitmap(nullptr));
}

// Buttons

TEST_F(ToolBar, ButtonsAreMadeFromCommands)
{
    static constexpr UINT kButtons[] = {ID_TEST_OTHER, ID_SEPARATOR, ID_TEST_ACT};
    ASSERT_TRUE(m_bar.SetButtons(kButtons, 3));
    EXPECT_EQ(m_bar.GetCount(), 3);
    EXPECT_EQ(m_bar.CommandToIndex(ID_TEST_ACT), 2);
    EXPECT_EQ(m_bar.GetItemID(1), static_cast<UINT>(ID_SEPARATOR));
    ASSERT_TRUE(m_bar.SetButtons(nullptr, 2));
    EXPECT_EQ(m_bar.GetCount(), 2);
    m_bar.SetButtonInfo(1, ID_TEST_ACT, TBBS_CHECKBOX, 1);
    EXPECT_EQ(m_bar.CommandToIndex(ID_TEST_ACT), 1);
    EXPECT_EQ(style(1), static_cast<UINT>(TBBS_CHECKBOX));
}

TEST_F(ToolBar, ASeparatorHasAWidth)
{
    m_bar.SetButtonInfo(Separator, 0, TBBS_SEPARATOR, 100);
    EXPECT_EQ(button(Separator).Width(), 100);
    EXPECT_EQ(button(Unhandled).left, button(Separator).right);
}

TEST_F(ToolBar, StylesAreKeptWithTheStates)
{
    m_bar.SetButtonStyle(Act, TBBS_CHECKBOX | TBBS_CHECKED);
    EXPECT_EQ(style(Act), static_cast<UINT>(TBBS_CHECKBOX | TBBS_CHECKED));
    EXPECT_TRUE(m_bar.GetToolBarCtrl().IsButtonChecked(ID_TEST_ACT));
    m_bar.SetButtonStyle(Act, TBBS_BUTTON | TBBS_DISABLED);
    EXPECT_FALSE(m_bar.GetToolBarCtrl().IsButtonEnabled(ID_TEST_ACT));
    EXPECT_EQ(style(Act), static_cast<UINT>(TBBS_DISABLED));
}

TEST_F(ToolBar, ButtonsHaveTexts)
{
    EXPECT_TRUE(m_bar.GetButtonText(Act).IsEmpty());
    ASSERT_TRUE(m_bar.SetButtonText(Act, L"Oak"));
    EXPECT_STREQ(m_bar.GetButtonText(Act), L"Oak");
    CString text;
    m_bar.GetButtonText(Act, text);
    EXPECT_STREQ(text, L"Oak");
}

TEST_F(ToolBar, AnIndexThatIsNoneIsRefused)
{
    CRect rect(1, 2, 3, 4);
    m_bar.GetItemRect(4, &rect);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_THROW(
        {
            try {
                m_bar.GetButtonStyle(4);
            } catch (CInvalidArgException* exception) {
                exception->Delete();
                throw 1;
            }
        },
        int);
}

// Commands and updates

TEST_F(ToolBar, ItsButtonsFollowTheUpdateHandlers)
{
    settleShown();
    EXPECT_FALSE(style(Act) & TBBS_DISABLED) << "there is a command handler";
    EXPECT_TRUE(style(Unhandled) & TBBS_DISABLED) << "it has no handler";
    m_frame->updates[ID_TEST_ACT] = [](CCmdUI& ui) { ui.Enable(FALSE); };
    m_frame->updates[ID_TEST_OTHER] = [](CCmdUI& ui) { ui.SetCheck(); };
    m_frame->updates[ID_TEST_UNHANDLED] = [](CCmdUI& ui) {
        ui.Enable();
        ui.SetCheck(2);
    };
    settleShown();
    EXPECT_TRUE(style(Act) & TBBS_DISABLED);
    EXPECT_EQ(style(Other), static_cast<UINT>(TBBS_CHECKBOX | TBBS_CHECKED))
        << "a button becomes a check box";
    EXPECT_EQ(style(Unhandled), static_cast<UINT>(TBBS_CHECKBOX | TBBS_INDETERMINATE));
    m_frame->updates[ID_TEST_OTHER] = [](CCmdUI& ui) { ui.SetRadio(FALSE); };
    settleShown();
    EXPECT_EQ(style(Other), static_cast<UINT>(TBBS_CHECKBOX));
}

TEST_F(ToolBar, AHandlerSeesTheBarAndThePosition)
{
    m_frame->updates[ID_TEST_OTHER] = [this](CCmdUI& ui) {
        EXPECT_EQ(ui.m_pOther, &m_bar);
        EXPECT_EQ(ui.m_nIndex, static_cast<UINT>(Other));
        EXPECT_EQ(ui.m_nIndexMax, 4u);
        EXPECT_EQ(ui.m_pMenu, nullptr);
    };
    int separators = 0;
    m_frame->updates[ID_SEPARATOR] = [&](CCmdUI&) { ++separators; };
    settleShown();
    EXPECT_EQ(separators, 0);
}

TEST_F(ToolBar, AnUpdateHandlerMayDeleteButtonsTheWindowAndTheBar)
{
    const auto makeBar = [this] {
        auto bar = std::make_unique<CToolBar>();
        bar->CreateEx(&*m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 0, 0), 99);
        bar->LoadToolBar(IDR_FRAME);
        return bar;
    };
    using Misdeed = std::function<void(std::unique_ptr<CToolBar>&)>;
    const Misdeed misdeeds[] = {
        [](auto& bar) { bar->SendMessage(TB_DELETEBUTTON, 0); },
        [](auto& bar) {
            while (bar->SendMessage(TB_DELETEBUTTON, 0)) {
            }
        },
        [](auto& bar) { bar->DestroyWindow(); },
        [](auto& bar) { bar.reset(); },
    };
    for (const Misdeed& misdeed : misdeeds) {
        std::unique_ptr<CToolBar> bar = makeBar();
        int asked = 0;
        m_frame->updates[ID_TEST_ACT] = [&](CCmdUI& ui) {
            ++asked;
            misdeed(bar);
            ui.Enable(FALSE); // of what is left
            ui.SetCheck();
        };
        bar->OnUpdateCmdUI(&*m_frame, TRUE);
        EXPECT_EQ(asked, 1);
    }
    m_frame->updates.clear();
}

TEST_F(ToolBar, AClickSendsTheCommandToTheFrame)
{
    present(*m_frame);
    Robot().click(spot(Act));
    EXPECT_EQ(m_frame->acted, 1);
    Robot().click(spot(Unhandled));
    EXPECT_EQ(m_frame->acted, 1) << "a disabled button does nothing";
}

TEST_F(ToolBar, NothingIsPaintedAnewWhenNothingChanges)
{
    present(*m_frame);
    GuiThread::settle();
    m_bar.ValidateRect(nullptr);
    m_frame->PostMessage(WM_NULL);
    m_bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(::GetUpdateRect(m_bar, nullptr, FALSE));
}

TEST_F(ToolBar, ItsTipsAreThePromptsOfTheCommands)
{
    CStatusBar status;
    status.Create(&*m_frame);
    static constexpr UINT kPanes[] = {ID_SEPARATOR};
    status.SetIndicators(kPanes, 1);
    m_frame->RecalcLayout();
    present(*m_frame);
    std::wstring tip;
    const auto shownTip = [] { return shownWindow(nullptr, TOOLTIPS_CLASSW); };
    Robot()
        .moveTo(spot(Act))
        .waitFor("the tip", [&] { return shownTip() != nullptr; })
        .then([&] { tip = textIn(*CWnd::FromHandle(shownTip())); })
        .waitFor("the prompt", [&] { return status.GetPaneText(0) == L"Does the act"; })
        .moveTo(Spot{*m_frame->view})
        .waitFor("the prompt to go", [&] { return status.GetPaneText(0) == L"Ready"; });
    EXPECT_EQ(tip, L"Act");
    status.DestroyWindow();
}

TEST_F(ToolBar, KnowsTheToolUnderAPoint)
{
    TOOLINFO info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(m_bar.OnToolHitTest(button(Other).CenterPoint(), &info), ID_TEST_OTHER);
    EXPECT_EQ(info.uId, static_cast<UINT_PTR>(ID_TEST_OTHER));
    EXPECT_EQ(CRect(info.rect), button(Other));
    EXPECT_EQ(m_bar.OnToolHitTest(button(Separator).CenterPoint(), nullptr), -1);
    EXPECT_EQ(m_bar.OnToolHitTest(CPoint(-5, -5), nullptr), -1);
    m_bar.SetButtonInfo(0, ID_SEPARATOR, TBBS_SEPARATOR, 8);
    EXPECT_EQ(m_bar.OnToolHitTest(button(0).CenterPoint(), nullptr), -1) << "a separator at the beginning";
}

// Sizes and rows

TEST_F(ToolBar, LiesAtTheTopAsHighAsItsButtons)
{
    CRect client;
    m_frame->GetClientRect(&client);
    const CRect place = m_frame->placeOf(m_bar);
    EXPECT_EQ(place.top, 0);
    EXPECT_EQ(place.Width(), client.Width());
    EXPECT_GE(place.Height(), button(Act).Height());
    EXPECT_LE(place.Height(), button(Act).Height() + 6);
    EXPECT_EQ(m_frame->placeOf(*m_frame->view).top, place.bottom);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(button(i).top, button(Act).top) << "in one row";
}

TEST_F(ToolBar, ItsHeightCanBeSet)
{
    m_bar.SetHeight(60);
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->placeOf(m_bar).Height(), 60);
}

TEST_F(ToolBar, LargerButtonsMakeALargerBar)
{
    m_bar.SetSizes(CSize(48, 44), CSize(16, 15));
    m_frame->RecalcLayout();
    EXPECT_EQ(button(Act).Size(), CSize(48, 44));
    EXPECT_GE(m_frame->placeOf(m_bar).Height(), 44);
}

TEST_F(ToolBar, AtTheSideItIsOneColumn)
{
    create(WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_SIZE_DYNAMIC);
    ASSERT_TRUE(m_bar.LoadToolBar(IDR_FRAME));
    m_frame->RecalcLayout();
    CRect client;
    m_frame->GetClientRect(&client);
    const CRect place = m_frame->placeOf(m_bar);
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.Height(), client.Height());
    EXPECT_LT(place.Width(), 2 * button(Act).Width());
    EXPECT_EQ(button(Other).left, button(Act).left);
    EXPECT_GE(button(Other).top, button(Act).bottom);
    EXPECT_GE(button(Unhandled).top, button(Other).bottom);
}

TEST_F(ToolBar, ADynamicOneIsBrokenIntoRowsForAWidth)
{
    create(WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_SIZE_DYNAMIC);
    ASSERT_TRUE(m_bar.LoadToolBar(IDR_FRAME));
    m_frame->RecalcLayout();
    const int width = button(Act).Width();
    const int height = button(Act).Height();
    const CSize oneRow = m_bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK);
    EXPECT_LT(oneRow.cy, 2 * height);

    const CSize twoRows = m_bar.CalcDynamicLayout(2 * width + 4, LM_HORZ);
    EXPECT_LT(twoRows.cx, oneRow.cx);
    EXPECT_GE(twoRows.cy, 2 * height);
    EXPECT_EQ(button(Unhandled).top, button(Act).top) << "only asked, nothing is broken yet";

    m_bar.CalcDynamicLayout(2 * width + 4, LM_HORZ | LM_COMMIT);
    EXPECT_GT(button(Unhandled).top, button(Act).top);
    EXPECT_EQ(m_bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH), twoRows) << "the width is remembered";
    EXPECT_EQ(m_bar.CalcDynamicLayout(twoRows.cy, LM_HORZ | LM_LENGTHY), twoRows) << "the same by its height";

    EXPECT_EQ(m_bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK), oneRow);
    EXPECT_EQ(button(Unhandled).top, button(Act).top) << "docked, it is one row again";
}

TEST_F(ToolBar, HiddenButtonsTakeNoRoom)
{
    const CSize before = m_bar.CalcFixedLayout(FALSE, TRUE);
    const int width = button(Act).Width();
    m_bar.SetButtonStyle(Act, TBBS_HIDDEN);
    EXPECT_EQ(m_bar.CalcFixedLayout(FALSE, TRUE).cx, before.cx - width);
}

TEST_F(ToolBar, BordersLieAroundTheButtons)
{
    const CSize without = m_bar.CalcFixedLayout(FALSE, TRUE);
    m_bar.SetBorders(10, 3, 20, 4);
    const CSize with = m_bar.CalcFixedLayout(FALSE, TRUE);
    EXPECT_EQ(with, without + CSize(30, 7));
    m_frame->RecalcLayout();
    m_bar.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_FRAMECHANGED | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER);
    CRect window;
    m_bar.GetWindowRect(&window);
    CPoint client(0, 0);
    m_bar.ClientToScreen(&client);
    EXPECT_EQ(client.x - window.left, 10);
    EXPECT_GE(client.y - window.top, 3);
}
