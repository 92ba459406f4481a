#include <testkit/ImportPatch.h>

#include <ovoui/frame/TabKeys.h>

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <set>
#include <vector>

using ovo::testkit::ImportPatch;

namespace
{

std::set<int> s_keysDown;

SHORT WINAPI keyState(int key)
{
    return s_keysDown.count(key) ? static_cast<SHORT>(0x8000) : static_cast<SHORT>(0x0001);
}

/// A tab control that takes down which tab it was asked to go to.
class RecordingTabs : public CTabCtrl
{
public:
    std::vector<WPARAM> asked;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == TCM_SETCURFOCUS)
            asked.push_back(wParam);
        return CTabCtrl::WindowProc(message, wParam, lParam);
    }
};

/// A parent with a tab control, which logs the tab control's notifications.
class TabScene : public CWnd
{
public:
    explicit TabScene(int count)
    {
        s_keysDown.clear();
        CreateEx(0, AfxRegisterWndClass(0), L"tabs", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);
        m_tabs.Create(WS_CHILD, CRect(0, 0, 300, 200), this, 100);
        for (int i = 0; i < count; ++i)
            m_tabs.InsertItem(i, L"tab");
    }
    ~TabScene() override { DestroyWindow(); }

    BOOL press(WPARAM key, std::set<int> held, UINT message = WM_KEYDOWN)
    {
        s_keysDown = std::move(held);
        MSG msg{};
        msg.hwnd = m_tabs.m_hWnd;
        msg.message = message;
        msg.wParam = key;
        return PreTranslateTabControl(msg, m_tabs.m_hWnd);
    }

    RecordingTabs& tabs() { return m_tabs; }
    std::vector<UINT> codes;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        codes.push_back(reinterpret_cast<NMHDR*>(lParam)->code);
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    RecordingTabs m_tabs;
    ImportPatch m_keys{L"ovoui.dll", "GetKeyState", reinterpret_cast<void*>(&keyState)};
};

} // namespace

TEST(TabKeys, CtrlTabGoesForwardAndRound)
{
    TabScene scene(3);
    scene.tabs().SetCurSel(1);
    EXPECT_TRUE(scene.press(VK_TAB, {VK_CONTROL}));
    EXPECT_EQ(scene.tabs().GetCurSel(), 2);
    EXPECT_TRUE(scene.press(VK_TAB, {VK_CONTROL}));
    EXPECT_EQ(scene.tabs().GetCurSel(), 0);
}

TEST(TabKeys, CtrlShiftTabOnTheFirstOfFourGoesToTheLast)
{
    TabScene scene(4);
    scene.tabs().SetCurSel(0);
    EXPECT_TRUE(scene.press(VK_TAB, {VK_CONTROL, VK_SHIFT}));
    EXPECT_EQ(scene.tabs().GetCurSel(), 3);
}

TEST(TabKeys, CtrlPageKeysGoBothWays)
{
    TabScene scene(4);
    scene.tabs().SetCurSel(3);
    EXPECT_TRUE(scene.press(VK_NEXT, {VK_CONTROL}));
    EXPECT_EQ(scene.tabs().GetCurSel(), 0);
    EXPECT_TRUE(scene.press(VK_PRIOR, {VK_CONTROL}));
    EXPECT_EQ(scene.tabs().GetCurSel(), 3);
}

TEST(TabKeys, ShiftDoesNotTurnThePageKeysRound)
{
    TabScene scene(4);
    scene.tabs().SetCurSel(1);
    EXPECT_TRUE(scene.press(VK_NEXT, {VK_CONTROL, VK_SHIFT}));
    EXPECT_EQ(scene.tabs().GetCurSel(), 2);
}

// What the control makes of it differs between systems: one that has no current tab may still have a tab with the
// focus. So the request counts here.
TEST(TabKeys, WithoutACurrentTabTheSignedRemainderDecides)
{
    TabScene four(4);
    four.tabs().SetCurSel(-1);
    ASSERT_EQ(four.tabs().GetCurSel(), -1);
    EXPECT_TRUE(four.press(VK_TAB, {VK_CONTROL}));
    EXPECT_EQ(four.tabs().asked, std::vector<WPARAM>{0});

    four.tabs().SetCurSel(-1);
    four.tabs().asked.clear();
    EXPECT_TRUE(four.press(VK_TAB, {VK_CONTROL, VK_SHIFT}));
    EXPECT_EQ(four.tabs().asked, std::vector<WPARAM>{2});

    TabScene one(1);
    one.tabs().SetCurSel(-1);
    EXPECT_TRUE(one.press(VK_TAB, {VK_CONTROL, VK_SHIFT}));
    EXPECT_EQ(one.tabs().asked, std::vector<WPARAM>{0});
}

TEST(TabKeys, TheParentHearsOfTheChange)
{
    TabScene scene(3);
    scene.tabs().SetCurSel(0);
    scene.codes.clear();
    EXPECT_TRUE(scene.press(VK_TAB, {VK_CONTROL}));
    EXPECT_EQ(scene.codes, (std::vector<UINT>{static_cast<UINT>(TCN_SELCHANGING), static_cast<UINT>(TCN_SELCHANGE)}));
}

TEST(TabKeys, OtherKeysAndMessagesAreLeftAlone)
{
    TabScene scene(3);
    scene.tabs().SetCurSel(1);
    EXPECT_FALSE(scene.press(VK_TAB, {}));
    EXPECT_FALSE(scene.press(VK_TAB, {VK_SHIFT}));
    EXPECT_FALSE(scene.press(VK_PRIOR, {}));
    EXPECT_FALSE(scene.press(VK_NEXT, {VK_SHIFT}));
    EXPECT_FALSE(scene.press('A', {VK_CONTROL}));
    EXPECT_FALSE(scene.press(VK_TAB, {VK_CONTROL}, WM_KEYUP));
    EXPECT_FALSE(scene.press(VK_TAB, {VK_CONTROL}, WM_CHAR));
    EXPECT_EQ(scene.tabs().GetCurSel(), 1);
}

TEST(TabKeys, WithoutTabsOrControlNothingHappens)
{
    TabScene empty(0);
    empty.codes.clear();
    EXPECT_FALSE(empty.press(VK_TAB, {VK_CONTROL}));
    EXPECT_TRUE(empty.codes.empty());

    MSG message{};
    message.message = WM_KEYDOWN;
    message.wParam = VK_TAB;
    EXPECT_FALSE(PreTranslateTabControl(message, nullptr));
}
