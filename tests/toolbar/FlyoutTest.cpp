// The flyout's window: where it goes, how large it is, how it looks, what is in it.
#include "ToolBarScene.h"

#include <testkit/Picture.h>

#include <ovoui/frame/Geometry.h>

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <utility>

using namespace ovo::testkit;

namespace
{

/// Opens the flyout of a button without the mouse; it is closed at the end of the scope.
class OpenFlyout
{
public:
    explicit OpenFlyout(const BarScene& scene, int index = BarScene::Lines)
    {
        scene.bar().CreatePopup(index, onScreen(scene.bar(), index), 0);
    }
    ~OpenFlyout() { TestBar::ms_popupBar.reset(); }
    OpenFlyout(const OpenFlyout&) = delete;
    OpenFlyout& operator=(const OpenFlyout&) = delete;

    CFlyoutToolbar& operator*() const { return *BarScene::flyout(); }
    CFlyoutToolbar* operator->() const { return BarScene::flyout(); }

    CRect rect() const { return BarScene::flyoutRect(); }
    int count() const { return static_cast<int>(BarScene::flyout()->SendMessage(TB_BUTTONCOUNT)); }
    CRect entry(int index) const
    {
        CRect rect;
        BarScene::flyout()->GetItemRect(index, &rect);
        return rect;
    }
    /// How many different tops, or lefts, the entries have, separators aside.
    int rows() const { return distinct(&CRect::top); }
    int columns() const { return distinct(&CRect::left); }

private:
    int distinct(LONG RECT::*side) const
    {
        std::set<LONG> values;
        for (int i = 0; i < count(); ++i)
            if (!(BarScene::flyout()->GetButtonStyle(i) & TBBS_SEPARATOR))
                values.insert(entry(i).*side);
        return static_cast<int>(values.size());
    }
};

HIMAGELIST listOf(const CWnd& bar)
{
    return reinterpret_cast<HIMAGELIST>(bar.SendMessage(TB_GETIMAGELIST));
}

struct SideCase
{
    const char* name;
    DWORD side;
    bool horizontal;
};

const SideCase kSides[] = {{"top", CBRS_TOP, true},
                           {"bottom", CBRS_BOTTOM, true},
                           {"left", CBRS_LEFT, false},
                           {"right", CBRS_RIGHT, false}};

} // namespace

// Window

TEST(FlyoutWindow, IsASmallFlatToolbarThatTakesNothing)
{
    BarScene scene;
    const HWND focus = ::GetFocus();
    const HWND active = ::GetActiveWindow();
    const OpenFlyout flyout(scene);
    ASSERT_TRUE(BarScene::flyoutShown());
    EXPECT_EQ(flyout->GetStyle() & (WS_POPUP | WS_CHILD), static_cast<DWORD>(WS_POPUP));
    EXPECT_TRUE(flyout->GetStyle() & TBSTYLE_FLAT);
    EXPECT_TRUE(flyout->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_EQ(::GetWindow(flyout->m_hWnd, GW_OWNER), scene.frame().m_hWnd);
    EXPECT_TRUE(::GetClassLongPtrW(flyout->m_hWnd, GCL_STYLE) & CS_DROPSHADOW);
    EXPECT_EQ(::GetFocus(), focus);
    EXPECT_EQ(::GetActiveWindow(), active);
    EXPECT_EQ(flyout->SendMessage(WM_MOUSEACTIVATE), MA_NOACTIVATE);
}

TEST(FlyoutWindow, IsAlignedAsItsBarLies)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        for (const int index : {BarScene::Lines, BarScene::Shapes}) {
            const OpenFlyout flyout(scene, index);
            EXPECT_EQ(flyout->GetBarStyle() & CBRS_ALIGN_ANY,
                      static_cast<DWORD>(side.horizontal ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT))
                << side.name;
        }
    }
}

TEST(FlyoutWindow, HasALineAroundItsEntries)
{
    for (const SideCase& side : kSides) {
        SCOPED_TRACE(side.name);
        BarScene scene(side.side);
        const OpenFlyout flyout(scene);
        CRect client;
        flyout->GetClientRect(&client);
        flyout->ClientToScreen(&client);
        CRect inside = flyout.rect();
        inside.DeflateRect(2, 2); // the line, and a pixel of ground
        EXPECT_EQ(client, inside);
        const Picture picture = Picture::ofWindow(flyout->m_hWnd);
        const COLORREF line = ::GetSysColor(COLOR_BTNSHADOW);
        const int width = picture.width();
        const int height = picture.height();
        EXPECT_EQ(picture.count(line, 0, CRect(0, 0, width, 1)), width);
        EXPECT_EQ(picture.count(line, 0, CRect(0, height - 1, width, height)), width);
        EXPECT_EQ(picture.count(line, 0, CRect(0, 0, 1, height)), height);
        EXPECT_EQ(picture.count(line, 0, CRect(width - 1, 0, width, height)), height);
    }
}

TEST(FlyoutWindow, GoesWithTheBarsHoldOnIt)
{
    BarScene scene;
    scene.bar().CreatePopup(BarScene::Lines, onScreen(scene.bar(), BarScene::Lines), 0);
    const HWND window = BarScene::flyout()->m_hWnd;
    TestBar::ms_popupBar.reset();
    EXPECT_FALSE(::IsWindow(window));
}

TEST(FlyoutWindow, BelongsToTheBarsOwner)
{
    BarScene scene;
    CFrameWnd* const owner = new CFrameWnd;
    owner->Create(nullptr, L"Owner", WS_OVERLAPPEDWINDOW);
    scene.bar().SetOwner(owner);
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(::GetWindow(flyout->m_hWnd, GW_OWNER), owner->m_hWnd);
        EXPECT_EQ(flyout->GetOwner()->GetSafeHwnd(), owner->m_hWnd);
    }
    scene.bar().SetOwner(&scene.frame());
    owner->DestroyWindow();
}

TEST(FlyoutWindow, AnotherOneDestroysIt)
{
    BarScene scene;
    const OpenFlyout first(scene);
    const HWND before = first->m_hWnd;
    const OpenFlyout second(scene, BarScene::Shapes);
    EXPECT_FALSE(::IsWindow(before));
    EXPECT_TRUE(BarScene::flyoutShown());
}

TEST(FlyoutWindow, TheFrameLaysNothingOutForIt)
{
    BarScene scene;
    scene.bar().SetButtonStyle(BarScene::Lines, TBBS_BUTTON | TBBS_WRAPPED); // a layout would undo it
    GuiThread::settle();
    int layouts = 0;
    scene.bar().seeing = [&](UINT message, WPARAM) { layouts += message == WM_SIZEPARENT; };
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(flyout->GetDockingFrame(), nullptr) << "no bar of the frame's";
        GuiThread::settle();
    }
    GuiThread::settle();
    EXPECT_EQ(layouts, 0);
    EXPECT_TRUE(scene.bar().GetButtonStyle(BarScene::Lines) & TBBS_WRAPPED);
}

TEST(FlyoutWindow, WithoutAFlyoutOrEntriesNothingOpens)
{
    BarScene scene;
    {
        const OpenFlyout none(scene, BarScene::Plain);
        EXPECT_EQ(BarScene::flyout(), nullptr);
    }
    scene.bar().AttachBar(BarScene::Plain, 16, {}, {}, {}, {}, false, false);
    scene.bar().AttachBar(BarScene::Other, IDR_SHAPES, 16, {77, -1}, false);
    for (const int index : {BarScene::Plain, BarScene::Other}) {
        const OpenFlyout none(scene, index);
        EXPECT_EQ(BarScene::flyout(), nullptr) << index;
    }
    scene.bar().AttachBar(BarScene::Other, 4711, 16, {0}, false); // no such resource
    const OpenFlyout none(scene, BarScene::Other);
    EXPECT_EQ(BarScene::flyout(), nullptr);
}

// Entries

TEST(FlyoutEntries, OfAListHaveItsCommandsAndImages)
{
    BarScene scene;
    const OpenFlyout flyout(scene);
    ASSERT_EQ(flyout.count(), 5);
    const int images[] = {4, 5, 0, 6, 7};
    for (int i = 0; i < 5; ++i) {
        TBBUTTON button{};
        flyout->GetToolBarCtrl().GetButton(i, &button);
        EXPECT_EQ(button.idCommand, BarScene::lineCommands()[static_cast<std::size_t>(i)]);
        EXPECT_EQ((button.fsStyle & TBSTYLE_SEP) != 0, i == 2);
        if (i != 2) {
            EXPECT_EQ(button.iBitmap, images[i]);
        }
    }
    EXPECT_EQ(flyout->GetToolBarCtrl().GetImageList()->GetSafeHandle(),
              scene.bar().GetToolBarCtrl().GetImageList()->GetSafeHandle());
}

TEST(FlyoutEntries, OfAResourceAreThoseNamedInTheirOrder)
{
    BarScene scene;
    scene.bar().AttachBar(BarScene::Shapes, IDR_SHAPES, 16, {4, 2, 0, 99}, false);
    const OpenFlyout flyout(scene, BarScene::Shapes);
    ASSERT_EQ(flyout.count(), 3);
    EXPECT_EQ(flyout->GetItemID(0), static_cast<UINT>(ID_RING));
    EXPECT_EQ(flyout->GetItemID(1), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(flyout->GetItemID(2), static_cast<UINT>(ID_BOX));
}

TEST(FlyoutEntries, AreAsLargeAsTheBarsButtons)
{
    BarScene scene;
    scene.bar().SetSizes(CSize(40, 36), CSize(16, 15));
    for (const int index : {BarScene::Lines, BarScene::Shapes}) {
        const OpenFlyout flyout(scene, index);
        EXPECT_EQ(flyout.entry(0).Size(), onScreen(scene.bar(), 0).Size()) << index;
    }
}

TEST(FlyoutEntries, ShowTheirImages)
{
    BarScene scene;
    const OpenFlyout flyout(scene);
    const Picture picture = Picture::ofClient(flyout->m_hWnd);
    const COLORREF colours[] = {RGB(128, 0, 128), RGB(0, 128, 128)};
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(picture.at(flyout.entry(i).CenterPoint()), colours[i]) << i;
}

TEST(FlyoutEntries, ABarWithoutImagesLendsItsStrips)
{
    BarScene scene;
    TestBar bare;
    bare.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButton[] = {ID_LINE};
    bare.SetButtons(kButton, 1);
    bare.AttachBar(0, 16, {ID_LINE, ID_ARC}, {IDR_SHAPES, IDR_SHAPES}, {1, 2}, {}, false, false);
    scene.frame().RecalcLayout();
    bare.CreatePopup(0, onScreen(bare, 0), 0);
    ASSERT_TRUE(BarScene::flyoutShown());
    CFlyoutToolbar& flyout = *BarScene::flyout();
    EXPECT_EQ(::ImageList_GetImageCount(flyout.GetToolBarCtrl().GetImageList()->GetSafeHandle()), 8)
        << "once";
    TestBar::ms_popupBar.reset();
}

TEST(FlyoutEntries, KeepTheImageListOfWhenTheyWereAttached)
{
    BarScene scene;
    const HIMAGELIST before = listOf(scene.bar());
    const HIMAGELIST later = ::ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 8, 8);
    scene.bar().SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(later));
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(listOf(*flyout), before);
    }
    scene.bar().SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(before));
    ::ImageList_Destroy(later);
}

TEST(FlyoutEntries, OfACommandListHaveTheSizeThatUpdateBarBitmapSizeSays)
{
    BarScene scene;
    TestBar bare;
    bare.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButtons[] = {ID_LINE, ID_BOX};
    bare.SetButtons(kButtons, 2);
    bare.AttachBar(0, 16, {ID_LINE, ID_ARC}, {IDR_SHAPES, IDR_SHAPES}, {1, 2}, {}, false, false);
    bare.AttachBar(1, IDR_SHAPES, 16, {0, 1}, false);
    scene.frame().RecalcLayout();
    bare.UpdateBarBitmapSize(8);
    const auto sizeAndCount = [&](int button) {
        bare.CreatePopup(button, onScreen(bare, button), 0);
        int width = 0;
        int height = 0;
        const HIMAGELIST list = listOf(*BarScene::flyout());
        ::ImageList_GetIconSize(list, &width, &height);
        const int count = ::ImageList_GetImageCount(list);
        TestBar::ms_popupBar.reset();
        return std::pair(CSize(width, height), count);
    };
    EXPECT_EQ(sizeAndCount(0), std::pair(CSize(8, 8), 16)) << "the strip has 128 pixels";
    EXPECT_EQ(sizeAndCount(1).first, CSize(16, 15)) << "the resource's own";
}

TEST(FlyoutEntries, ACopiedFlyoutIsTheSame)
{
    BarScene scene;
    TestBar& second = scene.addBar();
    const auto commandsAt = [&](int button) {
        std::vector<UINT> ids;
        second.CreatePopup(button, onScreen(second, button), 0);
        for (int i = 0; i < static_cast<int>(BarScene::flyout()->SendMessage(TB_BUTTONCOUNT)); ++i)
            ids.push_back(BarScene::flyout()->GetItemID(i));
        const bool captioned = (BarScene::flyout()->GetBarStyle() & CBRS_GRIPPER) != 0;
        ids.push_back(captioned);
        TestBar::ms_popupBar.reset();
        return ids;
    };
    scene.bar().AttachBar(BarScene::Shapes, IDR_SHAPES, 16, {4, 0}, true);
    second.CopyBar(1, &scene.bar(), BarScene::Shapes);
    EXPECT_EQ(commandsAt(1), (std::vector<UINT>{ID_RING, ID_BOX, true}));
    second.CopyBar(1, &scene.bar(), BarScene::Lines);
    EXPECT_EQ(commandsAt(1), (std::vector<UINT>{ID_LINE, ID_CURVE, 0, ID_ARC, ID_NAMELESS, false}));
}

TEST(FlyoutEntries, AreEnabledAsTheUpdateHandlersSay)
{
    BarScene scene;
    scene.frame().disabled = {ID_CURVE};
    const OpenFlyout flyout(scene);
    EXPECT_FALSE(flyout->GetButtonStyle(0) & TBBS_DISABLED);
    EXPECT_TRUE(flyout->GetButtonStyle(1) & TBBS_DISABLED);
    scene.frame().disabled = {ID_LINE};
    scene.bar().SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(flyout->GetButtonStyle(0) & TBBS_DISABLED) << "and go on following them";
    EXPECT_FALSE(flyout->GetButtonStyle(1) & TBBS_DISABLED);
}

TEST(FlyoutEntries, ThatNobodyHandlesAreDisabledAtOnce)
{
    BarScene scene;
    attachMany(scene, 2);
    const OpenFlyout flyout(scene);
    EXPECT_TRUE(flyout->GetButtonStyle(0) & TBBS_DISABLED);
    EXPECT_TRUE(flyout->GetButtonStyle(1) & TBBS_DISABLED);
}

TEST(FlyoutEntries, ThatAreSeparatorsAreAsWideAsThoseOfTheBar)
{
    BarScene scene;
    const OpenFlyout flyout(scene);
    EXPECT_EQ(flyout.entry(2).Width(), onScreen(scene.bar(), BarScene::Gap).Width());
}

// Place

TEST(FlyoutPlace, OnEverySideBelowOrBesideItsButton)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        for (const int index : {BarScene::Lines, BarScene::Shapes}) {
            const CRect at = onScreen(scene.bar(), index);
            const OpenFlyout flyout(scene, index);
            EXPECT_EQ(flyout.rect().TopLeft(),
                      side.horizontal ? CPoint(at.left, at.bottom) : CPoint(at.right, at.top))
                << side.name;
            EXPECT_EQ(flyout.columns() > 1, side.horizontal) << side.name;
            EXPECT_EQ(flyout.rows() > 1, !side.horizontal) << side.name;
        }
    }
}

TEST(FlyoutPlace, AFloatingBarIsVerticalWithSeveralRows)
{
    BarScene scene;
    scene.bar().SetBarStyle(scene.bar().GetBarStyle() | CBRS_FLOATING);
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(flyout.rows(), 1) << "one row";
    }
    scene.bar().SetButtonStyle(BarScene::Shapes, TBBS_BUTTON | TBBS_WRAPPED);
    ASSERT_EQ(scene.bar().GetToolBarCtrl().GetRows(), 2);
    const CRect button = onScreen(scene.bar(), BarScene::Lines);
    const OpenFlyout flyout(scene);
    EXPECT_EQ(flyout.columns(), 1);
    EXPECT_EQ(flyout.rect().TopLeft(), CPoint(button.right, button.top));
}

TEST(FlyoutPlace, AtEveryEdgeOfTheWorkAreaItIsPulledInside)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        CRect frame;
        scene.frame().GetWindowRect(&frame);
        const CRect area(GetWorkArea(frame));
        const CPoint corners[] = {area.TopLeft() - CSize(20, 20), CPoint(area.right - 60, area.top),
                                  CPoint(area.left, area.bottom - 60),
                                  CPoint(area.right - frame.Width() + 30, area.bottom - frame.Height() + 20)};
        for (const CPoint corner : corners) {
            scene.frame().SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            const OpenFlyout flyout(scene);
            CRect both;
            both.UnionRect(flyout.rect(), area);
            EXPECT_EQ(both, area) << side.name << " at " << corner.x << " " << corner.y;
        }
    }
}

TEST(FlyoutPlace, ALongOneBreaksIntoRowsOrColumns)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        attachMany(scene, 150);
        const OpenFlyout flyout(scene);
        const CRect area(GetWorkArea(flyout.rect()));
        CRect both;
        both.UnionRect(flyout.rect(), area);
        EXPECT_EQ(both, area) << side.name;
        EXPECT_GT(flyout.rows(), 1) << side.name;
        EXPECT_GT(flyout.columns(), 1) << side.name;
        CRect client;
        flyout->GetClientRect(&client);
        for (int i = 0; i < flyout.count(); ++i)
            EXPECT_TRUE(client.PtInRect(flyout.entry(i).CenterPoint())) << side.name << " " << i;
    }
}

TEST(FlyoutPlace, TheStyleFlagGivesItAGrip)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        attachMany(scene, 3, false);
        CSize plain;
        {
            const OpenFlyout flyout(scene);
            plain = flyout.rect().Size();
        }
        attachMany(scene, 3, true);
        const OpenFlyout flyout(scene);
        const CSize more = flyout.rect().Size() - plain;
        EXPECT_EQ(more.cx > 0, side.horizontal) << side.name;
        EXPECT_EQ(more.cy > 0, !side.horizontal) << side.name;
        EXPECT_TRUE(flyout->GetBarStyle() & CBRS_GRIPPER);
    }
}

TEST(FlyoutPlace, TheStyleFlagHoldsForFlyoutsOfAResourceToo)
{
    BarScene scene;
    for (const bool flag : {false, true}) {
        scene.bar().AttachBar(BarScene::Shapes, IDR_SHAPES, 16, {0, 1}, flag);
        const OpenFlyout flyout(scene, BarScene::Shapes);
        EXPECT_EQ((flyout->GetBarStyle() & CBRS_GRIPPER) != 0, flag);
    }
}
