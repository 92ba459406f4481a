// Rows, sizes, and the places of embedded controls.
#include "ToolBarScene.h"

#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>

#include <ovoui/frame/ThemeData.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// The same bar once more as the framework lays it out.
class PlainBar : public CToolBar
{
public:
    explicit PlainBar(const TestBar& model)
    {
        CreateEx(model.GetParentFrame(), TBSTYLE_FLAT, WS_CHILD | (model.GetBarStyle() & CBRS_ALL),
                 CRect(0, 0, 0, 0), 99);
        std::vector<UINT> ids;
        const int count = static_cast<int>(::SendMessageW(model.m_hWnd, TB_BUTTONCOUNT, 0, 0));
        for (int i = 0; i < count; ++i)
            ids.push_back(model.GetItemID(i));
        SetButtons(ids.data(), count);
    }
};

CString rowsOf(const CToolBar& bar)
{
    CString rows;
    const int count = static_cast<int>(::SendMessageW(bar.m_hWnd, TB_BUTTONCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        rows += L'b';
        if (bar.GetButtonStyle(i) & TBBS_WRAPPED)
            rows += L'/';
    }
    return rows;
}

class BarLayout : public ::testing::Test
{
protected:
    void style(DWORD add) { scene.bar().SetBarStyle(scene.bar().GetBarStyle() | add); }

    /// A separator that keeps the place of an edit, before the last button.
    void addEdit()
    {
        TBBUTTON place{};
        place.idCommand = IDC_BAR_EDIT;
        place.iBitmap = 100;
        place.fsStyle = TBSTYLE_SEP;
        place.fsState = TBSTATE_ENABLED;
        scene.bar().InsertButton(BarScene::Other, &place);
        edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 18), &scene.bar(), IDC_BAR_EDIT);
    }

    bool editShown() { return (edit.GetStyle() & WS_VISIBLE) != 0; }

    BarScene scene;
    CEdit edit;
};

constexpr DWORD kModes[] = {LM_HORZ,
                            LM_HORZ | LM_STRETCH,
                            0,
                            LM_STRETCH,
                            LM_HORZ | LM_HORZDOCK,
                            LM_VERTDOCK,
                            LM_HORZ | LM_HORZDOCK | LM_STRETCH,
                            LM_VERTDOCK | LM_STRETCH,
                            LM_HORZ | LM_MRUWIDTH,
                            LM_HORZ | LM_COMMIT};

} // namespace

TEST_F(BarLayout, IsTheFrameworksForButtonsAlone)
{
    for (const DWORD sizing : {DWORD{0}, DWORD{CBRS_SIZE_DYNAMIC}, DWORD{CBRS_SIZE_FIXED}}) {
        style(sizing);
        PlainBar plain(scene.bar());
        for (const DWORD mode : kModes)
            for (const int length : {-1, 40, 60, 90, 200}) {
                EXPECT_EQ(scene.bar().CalcDynamicLayout(length, mode), plain.CalcDynamicLayout(length, mode))
                    << "mode " << mode << " length " << length << " style " << sizing;
                EXPECT_EQ(rowsOf(scene.bar()), rowsOf(plain)) << "mode " << mode << " length " << length;
            }
        for (const BOOL stretch : {FALSE, TRUE})
            for (const BOOL horizontal : {FALSE, TRUE})
                EXPECT_EQ(scene.bar().CalcFixedLayout(stretch, horizontal),
                          plain.CalcFixedLayout(stretch, horizontal));
        scene.bar().SetBarStyle(scene.bar().GetBarStyle() & ~sizing);
    }
}

TEST_F(BarLayout, TheHeightThatWasSetIsThatOfTheHorizontalBar)
{
    PlainBar plain(scene.bar());
    plain.SetHeight(47);
    scene.bar().SetHeight(47);
    for (const DWORD mode : kModes)
        for (const int length : {-1, 60, 200})
            EXPECT_EQ(scene.bar().CalcDynamicLayout(length, mode), plain.CalcDynamicLayout(length, mode))
                << "mode " << mode << " length " << length;
    EXPECT_EQ(scene.bar().CalcFixedLayout(FALSE, TRUE).cy, 47);
    EXPECT_NE(scene.bar().CalcFixedLayout(FALSE, FALSE).cy, 47);
    scene.bar().SetHeight(0);
    plain.SetHeight(0);
    EXPECT_EQ(scene.bar().CalcFixedLayout(FALSE, TRUE), plain.CalcFixedLayout(FALSE, TRUE));
}

TEST_F(BarLayout, AControlLowerThanTheButtonsHasNoLineBehindIt)
{
    addEdit();
    scene.bar().calcLayout(LM_HORZ);
    CRect place;
    scene.bar().GetItemRect(BarScene::Other, &place);
    CRect covered;
    edit.GetWindowRect(&covered);
    scene.bar().ScreenToClient(&covered);
    ASSERT_LT(covered.Height(), place.Height() - 1);
    ASSERT_GT(covered.top, place.top);
    const Picture picture = Picture::ofClient(scene.bar());
    const COLORREF ground = picture.at(picture.width() - 1, picture.height() - 1); // where there is no button
    const int beside = place.Width() * place.Height() - covered.Width() * covered.Height();
    EXPECT_EQ(picture.count(ground, 0, place) - picture.count(ground, 0, covered), beside);
    CRect gap;
    scene.bar().GetItemRect(BarScene::Gap, &gap);
    EXPECT_LT(picture.count(ground, 0, gap), gap.Width() * gap.Height())
        << "the line of a plain separator stays";
}

TEST_F(BarLayout, ALengthAloneChangesNothing)
{
    style(CBRS_SIZE_DYNAMIC);
    scene.bar().calcLayout(LM_HORZ);
    const CString before = rowsOf(scene.bar());
    const CSize narrow = scene.bar().calcLayout(LM_HORZ, 50);
    EXPECT_EQ(rowsOf(scene.bar()), before);
    EXPECT_LE(narrow.cx, 60);
    scene.bar().calcLayout(LM_HORZ | LM_COMMIT, 50);
    EXPECT_NE(rowsOf(scene.bar()), before);
    EXPECT_EQ(scene.bar().calcLayout(LM_HORZ | LM_MRUWIDTH), narrow) << "the width is remembered";
}

TEST_F(BarLayout, RowsForAHeightAreNoHigher)
{
    style(CBRS_SIZE_DYNAMIC);
    for (int height = 30; height < 150; height += 7)
        EXPECT_LE(scene.bar().calcLayout(LM_HORZ | LM_LENGTHY, height).cy, height);
}

TEST_F(BarLayout, SizeAndRowsOfGivenButtons)
{
    std::vector<TBBUTTON> buttons(3);
    for (int i = 0; i < 3; ++i)
        scene.bar()._getButton(i, &buttons[static_cast<std::size_t>(i)]);
    const CSize row = scene.bar().calcSize(buttons.data(), 3);
    scene.bar().sizeToolBar(buttons.data(), 3, row.cx - 1);
    EXPECT_TRUE(buttons[1].fsState & TBSTATE_WRAP);
    EXPECT_EQ(scene.bar().calcSize(buttons.data(), 3).cy, 2 * row.cy);
    scene.bar().sizeToolBar(buttons.data(), 3, row.cy, true);
    EXPECT_FALSE(buttons[1].fsState & TBSTATE_WRAP) << "no higher than one row";
    EXPECT_EQ(scene.bar().calcSize(buttons.data(), 3), row);
    EXPECT_EQ(scene.bar().calcSize(nullptr, 0), CSize(0, 0));
}

// Embedded controls

TEST_F(BarLayout, AControlLiesInTheMiddleOfItsPlace)
{
    addEdit();
    scene.frame().RecalcLayout();
    CRect place;
    scene.bar().GetItemRect(BarScene::Other, &place);
    EXPECT_EQ(place.Width(), 100);
    CRect now;
    edit.GetWindowRect(&now);
    scene.bar().ScreenToClient(&now);
    EXPECT_EQ(now.CenterPoint(), place.CenterPoint());
    EXPECT_EQ(now.Size(), CSize(90, 18));
}

TEST_F(BarLayout, AVerticalBarPutsControlsAwayAndAHorizontalOneBringsThemBack)
{
    addEdit();
    scene.bar().calcLayout(LM_HORZ);
    const CSize wide = scene.bar().calcLayout(LM_HORZ);
    const CSize upright = scene.bar().calcLayout(0);
    EXPECT_FALSE(editShown());
    EXPECT_LT(upright.cx, 60) << "as wide as its buttons";
    EXPECT_EQ(scene.bar().calcLayout(LM_HORZ), wide);
    EXPECT_TRUE(editShown());
}

TEST_F(BarLayout, AControlThatTheHostHasHiddenStaysHidden)
{
    addEdit();
    edit.ShowWindow(SW_HIDE);
    scene.bar().calcLayout(0);
    scene.bar().calcLayout(LM_HORZ);
    EXPECT_FALSE(editShown());
}

TEST_F(BarLayout, AControlThatTheHostHidesLaterStaysHiddenToo)
{
    addEdit();
    scene.bar().calcLayout(0);
    scene.bar().calcLayout(LM_HORZ);
    ASSERT_TRUE(editShown());
    edit.ShowWindow(SW_HIDE);
    scene.bar().calcLayout(LM_HORZ);
    EXPECT_FALSE(editShown());
}

TEST_F(BarLayout, AControlOfAHiddenBarComesBackToo)
{
    addEdit();
    scene.bar().ShowWindow(SW_HIDE);
    scene.bar().calcLayout(0);
    EXPECT_FALSE(editShown());
    scene.bar().calcLayout(LM_HORZ);
    EXPECT_TRUE(editShown());
}

TEST_F(BarLayout, ThePlaceOfAControlGoesWithIt)
{
    addEdit();
    scene.bar().calcLayout(0);
    EXPECT_TRUE(scene.bar().GetButtonStyle(BarScene::Other) & TBBS_HIDDEN);
    EXPECT_FALSE(scene.bar().GetButtonStyle(BarScene::Gap) & TBBS_HIDDEN) << "nothing lies there";
    scene.bar().calcLayout(LM_HORZ);
    EXPECT_FALSE(scene.bar().GetButtonStyle(BarScene::Other) & TBBS_HIDDEN);
}

// Controls that draw themselves

namespace
{

constexpr COLORREF kGround = RGB(1, 2, 3);

/// A control in a bar, without an object of the framework, which would have to draw it. It goes with the bar.
HWND createDrawn(TestBar& bar, const wchar_t* windowClass, DWORD style)
{
    return ::CreateWindowExW(0, windowClass, nullptr, WS_CHILD | style, 150, 0, 110, 120, bar.m_hWnd,
                             reinterpret_cast<HMENU>(IDC_BAR_COMBO), nullptr, nullptr);
}

/// What the bar draws of the first item.
Picture drawnBy(const TestBar& bar, HWND control, UINT type, UINT state = 0)
{
    Picture picture(80, 20, kGround);
    DRAWITEMSTRUCT item{};
    item.CtlType = type;
    item.CtlID = IDC_BAR_COMBO;
    item.itemState = state;
    item.hwndItem = control;
    item.hDC = picture.dc();
    item.rcItem = CRect(0, 0, 80, 20);
    bar.SendMessage(WM_DRAWITEM, IDC_BAR_COMBO, reinterpret_cast<LPARAM>(&item));
    return picture;
}

/// Pixels of letters on the ground of items that are not selected.
int inkOf(const Picture& picture)
{
    return picture.width() * picture.height() - picture.count(::GetSysColor(COLOR_WINDOW));
}

/// What the bar draws of a text in a combo box.
Picture drawnText(BarScene& scene, const wchar_t* text, UINT state = 0)
{
    const HWND combo =
        createDrawn(scene.bar(), L"COMBOBOX", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    Picture picture = drawnBy(scene.bar(), combo, ODT_COMBOBOX, state);
    ::DestroyWindow(combo);
    return picture;
}

class SelfDrawn : public CComboBox
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 33; }
};

} // namespace

TEST_F(BarLayout, AnOwnerDrawnComboThatIsNotDrawnOtherwiseShowsItsText)
{
    // Without an object of the framework, which would have to draw it
    const HWND combo = ::CreateWindowExW(
        0, L"COMBOBOX", nullptr,
        WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 150, 0, 110, 120,
        scene.bar().m_hWnd, reinterpret_cast<HMENU>(IDC_BAR_COMBO), nullptr, nullptr);
    ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"MMMM"));
    ::SendMessageW(combo, CB_SETCURSEL, 0, 0);
    EXPECT_GT(::SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0), 6);
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 80, 20);
    CBitmap* const before = dc.SelectObject(&bitmap);
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.CtlID = IDC_BAR_COMBO;
    item.hwndItem = combo;
    item.hDC = dc.m_hDC;
    item.rcItem = CRect(0, 0, 80, 20);
    scene.bar().SendMessage(WM_DRAWITEM, IDC_BAR_COMBO, reinterpret_cast<LPARAM>(&item));
    int letters = 0;
    for (int x = 0; x < 80; ++x)
        letters += dc.GetPixel(x, 10) != ::GetSysColor(COLOR_WINDOW);
    EXPECT_GT(letters, 4);
    EXPECT_LT(letters, 70);
    item.itemState = ODS_SELECTED;
    scene.bar().SendMessage(WM_DRAWITEM, IDC_BAR_COMBO, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(dc.GetPixel(78, 1), ::GetSysColor(COLOR_HIGHLIGHT));
    dc.SelectObject(before);
}

TEST_F(BarLayout, AnOwnerDrawnListShowsItsTextsToo)
{
    const HWND list = createDrawn(scene.bar(), L"LISTBOX", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"MM"));
    const Picture picture = drawnBy(scene.bar(), list, ODT_LISTBOX);
    EXPECT_EQ(picture.differences(drawnText(scene, L"MM")), 0) << "as those of a combo box";
    EXPECT_GT(inkOf(picture), 8);
}

TEST_F(BarLayout, ItemsThatAreNoTextsAreLeftAlone)
{
    const HWND list = createDrawn(scene.bar(), L"LISTBOX", LBS_OWNERDRAWFIXED);
    ::SendMessageW(list, LB_ADDSTRING, 0, 4711);
    EXPECT_EQ(drawnBy(scene.bar(), list, ODT_LISTBOX).count(kGround), 80 * 20);
    const HWND combo = createDrawn(scene.bar(), L"COMBOBOX", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED);
    ::SendMessageW(combo, CB_ADDSTRING, 0, 4711);
    EXPECT_EQ(drawnBy(scene.bar(), combo, ODT_COMBOBOX).count(kGround), 80 * 20);
}

TEST_F(BarLayout, AnItemShowsItsTextAsItIsAndInTheColourOfItsState)
{
    EXPECT_GT(inkOf(drawnText(scene, L"&&")), inkOf(drawnText(scene, L"&"))) << "no letters for Alt";
    EXPECT_EQ(inkOf(drawnText(scene, L"")), 0);
    const Picture selected = drawnText(scene, L"MMMM", ODS_SELECTED);
    EXPECT_GT(selected.count(::GetSysColor(COLOR_HIGHLIGHTTEXT), 40), 8);
    EXPECT_EQ(selected.count(kGround), 0);
}

TEST_F(BarLayout, AnItemWithTheFocusHasItsRectangle)
{
    const CRect topRow(0, 0, 80, 1);
    const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
    EXPECT_EQ(drawnText(scene, L"M").count(ground, 0, topRow), 80);
    EXPECT_LT(drawnText(scene, L"M", ODS_FOCUS).count(ground, 0, topRow), 80);
}

TEST_F(BarLayout, AControlThatDrawsItselfIsAsked)
{
    SelfDrawn combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                 CRect(150, 0, 260, 120), &scene.bar(), IDC_BAR_COMBO);
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.hwndItem = combo.m_hWnd;
    scene.bar().SendMessage(WM_DRAWITEM, IDC_BAR_COMBO, reinterpret_cast<LPARAM>(&item));
    EXPECT_GT(combo.drawn, 0);
}

TEST_F(BarLayout, TheOwnerDrawsAndMeasuresWhereTheControlDoesNot)
{
    class Drawing : public RecordingParent
    {
    public:
        int drawn = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_DRAWITEM)
                return ++drawn;
            if (message != WM_MEASUREITEM)
                return RecordingParent::WindowProc(message, wParam, lParam);
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 31;
            return TRUE;
        }
    } owner;
    scene.bar().SetOwner(&owner);
    const HWND combo = ::CreateWindowExW(
        0, L"COMBOBOX", nullptr, WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 150, 0,
        110, 120, scene.bar().m_hWnd, reinterpret_cast<HMENU>(IDC_BAR_COMBO), nullptr, nullptr);
    EXPECT_EQ(::SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0), 31);
    const Picture picture(80, 20, RGB(1, 2, 3));
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.hwndItem = combo;
    item.hDC = picture.dc();
    item.rcItem = CRect(0, 0, 80, 20);
    scene.bar().SendMessage(WM_DRAWITEM, IDC_BAR_COMBO, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(owner.drawn, 1);
    EXPECT_EQ(picture.count(RGB(1, 2, 3)), 80 * 20) << "the bar draws nothing over it";
    scene.bar().SetOwner(&scene.frame());
}

// Settings, gripper

TEST_F(BarLayout, AChangeOfTheSystemsSettingsPaintsTheBarAnew)
{
    GuiThread::settle();
    scene.bar().UpdateWindow();
    scene.bar().SendMessage(WM_SETTINGCHANGE);
    CRect invalid;
    scene.bar().GetUpdateRect(&invalid);
    CRect client;
    scene.bar().GetClientRect(&client);
    EXPECT_EQ(invalid, client);
}

namespace
{

class Gripping : public TestBar
{
public:
    int drawn = 0;
    void DrawNCGripper(CDC* dc, const CRect& rect) override
    {
        ++drawn;
        TestBar::DrawNCGripper(dc, rect);
    }
    /// How often it is drawn when its frame is painted.
    int drawnAnew()
    {
        drawn = 0;
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        return drawn;
    }
};

} // namespace

TEST_F(BarLayout, TheGripperIsDrawnWhileTheBarHasOneAndDoesNotFloat)
{
    Gripping bar;
    bar.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER);
    static constexpr UINT kButton[] = {ID_PLAIN};
    bar.SetButtons(kButton, 1);
    scene.frame().RecalcLayout();
    GuiThread::settle();
    EXPECT_EQ(bar.drawnAnew(), 1);
    bar.SetBarStyle(bar.GetBarStyle() | CBRS_FLOATING);
    EXPECT_EQ(bar.drawnAnew(), 0);
    bar.SetBarStyle(bar.GetBarStyle() & ~(CBRS_FLOATING | CBRS_GRIPPER));
    EXPECT_EQ(bar.drawnAnew(), 0);
}

TEST_F(BarLayout, TheGripperIsARowOfDotsWithVisualStylesAndTheFrameworksWithoutThem)
{
    Gripping bar;
    bar.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | CBRS_TOP | CBRS_GRIPPER);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    for (const bool horizontal : {true, false}) {
        SCOPED_TRACE(horizontal);
        bar.SetBarStyle((horizontal ? CBRS_TOP : CBRS_LEFT) | CBRS_GRIPPER);
        const Picture picture(40, 40, kGround);
        bar.DrawNCGripper(CDC::FromHandle(picture.dc()), CRect(0, 0, 40, 40));
        if (!CThemeData::getThemeData().IsAppThemed()) {
            const Picture framework(40, 40, kGround);
            bar.CToolBar::DrawGripper(CDC::FromHandle(framework.dc()), CRect(0, 0, 40, 40));
            EXPECT_EQ(picture.differences(framework), 0);
            EXPECT_LT(picture.count(kGround), 40 * 40);
            continue;
        }
        EXPECT_EQ(picture.at(3, 3), shadow);
        EXPECT_EQ(picture.at(4, 4), shadow);
        EXPECT_EQ(picture.at(5, 5), light) << "its edge at the lower right";
        EXPECT_EQ(picture.at(2, 2), kGround);
        const CPoint along = horizontal ? CPoint(3, 7) : CPoint(7, 3);
        const CPoint across = horizontal ? CPoint(7, 3) : CPoint(3, 7);
        EXPECT_EQ(picture.at(along), shadow) << "the next dot";
        EXPECT_EQ(picture.at(across), kGround);
    }
}
