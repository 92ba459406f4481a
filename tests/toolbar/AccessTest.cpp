// Bars and flyouts as accessibility sees them.
#include "ToolBarScene.h"

#include <testkit/AccessibleView.h>
#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/WinEvents.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Numbers of the bar's buttons are one more than their indices.
constexpr LONG kPlain = BarScene::Plain + 1;
constexpr LONG kLines = BarScene::Lines + 1;
constexpr LONG kGap = BarScene::Gap + 1;

class BarAccess : public ::testing::Test
{
protected:
    BarAccess()
    {
        ::CoInitialize(nullptr);
        scene.bar().SetWindowText(L"Drawing");
        scene.bar().UseAccessibleNames(true);
    }
    ~BarAccess() override { ::CoUninitialize(); }

    BarScene scene;
};

} // namespace

TEST_F(BarAccess, IsThePlatformsUntilTheHostAsks)
{
    scene.bar().UseAccessibleNames(false);
    EXPECT_EQ(scene.bar().SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT), 0);
    scene.bar().UseAccessibleNames(true);
    EXPECT_NE(scene.bar().SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT), 0);
    EXPECT_EQ(scene.bar().SendMessage(WM_GETOBJECT, 0, OBJID_WINDOW), 0) << "the window is the platform's";
}

TEST_F(BarAccess, ABarIsAToolbarWithButtons)
{
    const AccessibleView bar(scene.bar());
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar.childCount(), 5);
    EXPECT_EQ(bar.name(), L"Drawing");
    EXPECT_EQ(bar.role(), ROLE_SYSTEM_TOOLBAR);
    EXPECT_EQ(bar.name(kPlain), L"Plain");
    EXPECT_EQ(bar.role(kPlain), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(bar.action(kPlain), L"Press");
    EXPECT_EQ(bar.name(kLines), L"Line");
    EXPECT_EQ(bar.role(kLines), ROLE_SYSTEM_BUTTONDROPDOWN);
    EXPECT_TRUE(bar.state(kLines) & STATE_SYSTEM_HASPOPUP);
    EXPECT_EQ(bar.role(kGap), ROLE_SYSTEM_SEPARATOR);
    EXPECT_EQ(bar.name(kGap), L"");
    EXPECT_EQ(bar.action(kGap), L"");
    EXPECT_EQ(bar.description(kPlain), L"Does something plain");
}

TEST_F(BarAccess, ATextOfItsOwnIsTheName)
{
    scene.bar().SetButtonText(BarScene::Plain, L"Own words");
    EXPECT_EQ(AccessibleView(scene.bar()).name(kPlain), L"Own words");
}

TEST_F(BarAccess, StatesFollowTheButtons)
{
    const AccessibleView bar(scene.bar());
    EXPECT_EQ(bar.state(kPlain) & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_CHECKED), 0);
    scene.bar().SetButtonStyle(BarScene::Plain, TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED);
    EXPECT_TRUE(bar.state(kPlain) & STATE_SYSTEM_UNAVAILABLE);
    EXPECT_TRUE(bar.state(kPlain) & STATE_SYSTEM_CHECKED);
    EXPECT_EQ(bar.role(kPlain), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(bar.action(kPlain), L"") << "a disabled button cannot be pressed";
    EXPECT_NE(bar->accDoDefaultAction(AccessibleView::numbered(kPlain)), S_OK);
    scene.bar().SetButtonStyle(BarScene::Plain, TBBS_BUTTON | TBBS_HIDDEN);
    EXPECT_TRUE(bar.state(kPlain) & STATE_SYSTEM_INVISIBLE);
}

TEST_F(BarAccess, TheDefaultActionIsTheButtonsCommand)
{
    const AccessibleView bar(scene.bar());
    EXPECT_EQ(bar->accDoDefaultAction(AccessibleView::numbered(kPlain)), S_OK);
    EXPECT_TRUE(scene.commands().empty()) << "the client does not wait for it";
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), std::vector<UINT>{ID_PLAIN});
}

TEST_F(BarAccess, PlacesAndPoints)
{
    const AccessibleView bar(scene.bar());
    CRect rect;
    scene.bar().GetItemRect(BarScene::Lines, &rect);
    scene.bar().ClientToScreen(&rect);
    EXPECT_EQ(bar.place(kLines), rect);
    EXPECT_EQ(bar.at(rect.CenterPoint()), kLines);
    VARIANT hit{};
    EXPECT_EQ(bar->accHitTest(rect.left, rect.top - 500, &hit), S_FALSE);
}

TEST_F(BarAccess, TheKeyboardIsTheFocus)
{
    const AccessibleView bar(scene.bar());
    VARIANT focus{};
    EXPECT_EQ(bar->get_accFocus(&focus), S_FALSE);
    WinEvents focused(EVENT_OBJECT_FOCUS);
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT);
    EXPECT_EQ(focused.of(scene.bar(), kLines), 1) << "clients hear of it";
    EXPECT_EQ(bar.focused(), kLines);
    EXPECT_TRUE(bar.state(kLines) & STATE_SYSTEM_FOCUSED);
    EXPECT_FALSE(bar.state(kPlain) & STATE_SYSTEM_FOCUSED);
}

TEST_F(BarAccess, EveryStateOfAButtonIsTold)
{
    const AccessibleView bar(scene.bar());
    EXPECT_TRUE(bar.state(kPlain) & STATE_SYSTEM_FOCUSABLE);
    EXPECT_FALSE(bar.state(kGap) & STATE_SYSTEM_FOCUSABLE);
    EXPECT_FALSE(bar.state(kPlain) & (STATE_SYSTEM_MIXED | STATE_SYSTEM_PRESSED));
    scene.bar().SetButtonStyle(BarScene::Plain, TBBS_CHECKBOX | TBBS_INDETERMINATE);
    EXPECT_TRUE(bar.state(kPlain) & STATE_SYSTEM_MIXED);
    scene.bar().SetButtonStyle(BarScene::Plain, TBBS_BUTTON);
    scene.bar().SendMessage(TB_PRESSBUTTON, ID_PLAIN, TRUE);
    EXPECT_TRUE(bar.state(kPlain) & STATE_SYSTEM_PRESSED);
    EXPECT_FALSE(bar.state(kLines) & STATE_SYSTEM_PRESSED);
}

TEST_F(BarAccess, WhenTheKeyboardLeavesTheBarHasNoFocus)
{
    CWnd pane;
    pane.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 100, 200, 200), &scene.frame(),
                AFX_IDW_PANE_FIRST);
    pane.SetFocus();
    scene.bar().FocusButtons();
    WinEvents focused(EVENT_OBJECT_FOCUS);
    scene.user.key(VK_ESCAPE);
    ASSERT_EQ(::GetFocus(), pane.m_hWnd);
    EXPECT_EQ(focused.of(scene.bar()), 0);
}

TEST_F(BarAccess, ClientsHearOfTheEntryThatTheKeyboardIsAt)
{
    scene.bar().FocusButtons();
    WinEvents focused(EVENT_OBJECT_FOCUS);
    scene.user.key(VK_RIGHT).key(VK_DOWN).waitFor("the flyout", &BarScene::flyoutShown).key(VK_RIGHT);
    ASSERT_TRUE(BarScene::flyoutShown());
    const HWND flyout = BarScene::flyout()->m_hWnd;
    EXPECT_EQ(focused.of(flyout, 1), 1);
    EXPECT_EQ(focused.of(flyout, 2), 1);
    EXPECT_EQ(AccessibleView(flyout).focused(), 2);
    scene.user.key(VK_ESCAPE);
}

TEST_F(BarAccess, AFlyoutIsThePlatformsToo)
{
    const auto answers = [&](bool use) {
        scene.bar().UseAccessibleNames(use);
        scene.bar().CreatePopup(BarScene::Lines, onScreen(scene.bar(), BarScene::Lines), 0);
        const bool own = BarScene::flyout()->SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT) != 0;
        TestBar::ms_popupBar.reset();
        return own;
    };
    EXPECT_FALSE(answers(false));
    EXPECT_TRUE(answers(true));
}

TEST_F(BarAccess, TheEntriesOfAFlyoutHaveNamesAndCanBeChosen)
{
    scene.frame().disabled = {ID_CURVE};
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT).key(VK_DOWN).waitFor("the flyout", &BarScene::flyoutShown).then([&] {
        const AccessibleView flyout(*BarScene::flyout());
        ASSERT_TRUE(flyout);
        EXPECT_EQ(flyout.name(), L"Line") << "that of its button";
        EXPECT_EQ(flyout.name(1), L"Line");
        EXPECT_EQ(flyout.name(2), L"Curve");
        EXPECT_EQ(flyout.role(3), ROLE_SYSTEM_SEPARATOR);
        EXPECT_FALSE(flyout.state(3) & STATE_SYSTEM_UNAVAILABLE) << "no more than in the bar";
        EXPECT_EQ(flyout.name(5), L"nameless") << "it has a name, though no string";
        EXPECT_TRUE(flyout.state(1) & STATE_SYSTEM_FOCUSED);
        EXPECT_TRUE(flyout.state(2) & STATE_SYSTEM_UNAVAILABLE);
        EXPECT_EQ(flyout->accDoDefaultAction(AccessibleView::numbered(4)), S_OK);
    });
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), std::vector<UINT>{ID_ARC});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_ARC);
}

TEST_F(BarAccess, AControlInTheBarIsAnObjectOfItsOwn)
{
    TBBUTTON place{};
    place.idCommand = IDC_BAR_EDIT;
    place.iBitmap = 100;
    place.fsStyle = TBSTYLE_SEP;
    scene.bar().InsertButton(BarScene::Other, &place);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 18), &scene.bar(), IDC_BAR_EDIT);
    const AccessibleView bar(scene.bar());
    IDispatch* object = nullptr;
    EXPECT_EQ(bar->get_accChild(AccessibleView::numbered(kPlain), &object), S_FALSE);
    EXPECT_EQ(bar->get_accChild(AccessibleView::numbered(BarScene::Other + 1), &object), S_OK);
    ASSERT_NE(object, nullptr);
    object->Release();
}

TEST_F(BarAccess, WrongNumbersAreRefused)
{
    const AccessibleView bar(scene.bar());
    BSTR text = nullptr;
    EXPECT_EQ(bar->get_accName(AccessibleView::numbered(6), &text), E_INVALIDARG);
    EXPECT_EQ(bar->get_accName(AccessibleView::numbered(-1), &text), E_INVALIDARG);
    EXPECT_EQ(bar->get_accName(VARIANT{}, &text), E_INVALIDARG);
    EXPECT_EQ(text, nullptr);
}

TEST_F(BarAccess, TheObjectOutlivesTheBar)
{
    const AccessibleView bar(scene.bar());
    scene.deleteBar();
    BSTR text = nullptr;
    long count = 0;
    VARIANT variant{};
    EXPECT_EQ(bar->get_accName(AccessibleView::numbered(1), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(bar->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(bar->get_accRole(AccessibleView::numbered(1), &variant), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(bar->accDoDefaultAction(AccessibleView::numbered(1)), CO_E_OBJNOTCONNECTED);
}

TEST_F(BarAccess, AnObjectThatIsKeptKeepsNoImages)
{
    const GdiPlusSession gdiPlus;
    const auto keptOfABar = [] {
        BarScene another;
        another.bar().UseAccessibleNames(true);
        another.bar().UseStrips({{IDB_TOOLBAR_16, 16}}, 16);
        AccessibleView kept(another.bar());
        another.deleteBar();
        return kept;
    };
    const AccessibleView first = keptOfABar(); // the system has what it shares now
    const GdiCounter counter;
    const AccessibleView second = keptOfABar();
    EXPECT_TRUE(second);
    EXPECT_EQ(counter.grown(), 0);
}
