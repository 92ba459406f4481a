// Embedded controls: their keys before the accelerators, and what the callback is told.
#include "ToolBarScene.h"

#include <support/HeldCtrl.h>
#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// A control that answers with a dialog code and takes down the keys that it gets.
class KeyProbe : public CWnd
{
public:
    UINT code = DLGC_WANTCHARS;
    std::vector<UINT> keys;
    std::function<void()> onKey;
    std::function<void()> onAsked;

    BOOL create(CWnd& parent, UINT id)
    {
        return Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 20), &parent, id);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_GETDLGCODE) {
            const UINT answer = code;
            if (onAsked)
                onAsked();
            return answer;
        }
        if (message == WM_KEYDOWN || message == WM_KEYUP || message == WM_SYSKEYDOWN ||
            message == WM_SYSKEYUP) {
            keys.push_back(static_cast<UINT>(wParam));
            if (onKey)
                onKey();
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class BarKeys : public ::testing::Test
{
protected:
    BarKeys() { probe.create(scene.bar(), 99); }

    MSG keyMessage(HWND to, UINT message, UINT key)
    {
        MSG made{};
        made.hwnd = to;
        made.message = message;
        made.wParam = key;
        made.lParam = 1;
        return made;
    }

    /// Where a key goes.
    enum class Way
    {
        Control,   ///< to it at once
        Framework, ///< to what the framework asks before it, without reaching the control
        Other
    };

    Way wayOf(HWND to, UINT message, UINT key)
    {
        probe.keys.clear();
        scene.frame().pretranslated = 0;
        MSG made = keyMessage(to, message, key);
        const BOOL taken = scene.bar().PreTranslateMessage(&made);
        const bool asked = scene.frame().pretranslated > 0;
        if (taken && !asked && probe.keys == std::vector<UINT>{key})
            return Way::Control;
        return asked ? Way::Framework : Way::Other;
    }

    /// WM_COMMAND that waits for the bar.
    std::vector<MSG> postedCommands()
    {
        std::vector<MSG> all;
        MSG posted;
        while (::PeekMessageW(&posted, scene.bar().m_hWnd, WM_COMMAND, WM_COMMAND, PM_REMOVE))
            all.push_back(posted);
        return all;
    }

    BarScene scene;
    KeyProbe probe;
};

constexpr UINT kMessages[] = {WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP};

bool isHostsFunctionKey(UINT key)
{
    return key >= VK_F1 && key <= VK_F24 && key != VK_F4;
}

bool goesWithCtrl(UINT key)
{
    return std::set<UINT>{'C', 'V', 'X', 'Y', 'Z', VK_NUMPAD3, VK_INSERT, VK_DELETE, VK_BACK}.contains(key);
}

} // namespace

TEST_F(BarKeys, EveryKeyWithAndWithoutCtrlForEveryDialogCode)
{
    for (const UINT code :
         {0u, UINT{DLGC_WANTARROWS}, UINT{DLGC_WANTTAB}, UINT{DLGC_HASSETSEL}, UINT{DLGC_WANTCHARS},
          UINT{DLGC_WANTALLKEYS}, UINT{DLGC_WANTCHARS | DLGC_WANTARROWS}}) {
        probe.code = code;
        const bool wants = (code & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0;
        for (const bool ctrl : {false, true}) {
            const HeldCtrl held(ctrl);
            for (UINT key = 1; key < 0xFF; ++key)
                for (const UINT message : kMessages) {
                    const bool expected = wants && (ctrl ? goesWithCtrl(key) : !isHostsFunctionKey(key));
                    EXPECT_EQ(wayOf(probe.m_hWnd, message, key), expected ? Way::Control : Way::Framework)
                        << "code " << code << " ctrl " << ctrl << " key " << key << " message " << message;
                }
        }
    }
    postedCommands();
}

TEST_F(BarKeys, CharactersAreLeftToTheFrameworkWhateverTheirKeys)
{
    for (const bool ctrl : {false, true}) {
        const HeldCtrl held(ctrl);
        for (const UINT message : {UINT{WM_CHAR}, UINT{WM_SYSCHAR}})
            for (const UINT code : {UINT{'C'}, UINT{VK_RETURN}, UINT{VK_BACK}})
                EXPECT_EQ(wayOf(probe.m_hWnd, message, code), Way::Framework) << message << " " << code;
    }
    EXPECT_TRUE(postedCommands().empty());
}

TEST_F(BarKeys, EnterEscapeAndTabPostTheControlsNumber)
{
    for (const UINT key : {VK_RETURN, VK_ESCAPE, VK_TAB}) {
        for (const UINT message : kMessages)
            wayOf(probe.m_hWnd, message, key);
        const std::vector<MSG> posted = postedCommands();
        ASSERT_EQ(posted.size(), 1u) << "on WM_KEYDOWN alone";
        EXPECT_EQ(posted[0].wParam, 99u);
        EXPECT_EQ(posted[0].lParam, reinterpret_cast<LPARAM>(probe.m_hWnd));
    }
    wayOf(probe.m_hWnd, WM_KEYDOWN, 'A');
    EXPECT_TRUE(postedCommands().empty());
}

TEST_F(BarKeys, InTheEditOfAComboTheyPostTheCombosNumber)
{
    CComboBox combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(50, 0, 150, 100), &scene.bar(), IDC_BAR_COMBO);
    const HWND edit = ::FindWindowExW(combo.m_hWnd, nullptr, L"Edit", nullptr);
    ASSERT_NE(edit, nullptr);
    for (const UINT key : {VK_RETURN, VK_ESCAPE, VK_TAB}) {
        MSG made = keyMessage(edit, WM_KEYDOWN, key);
        scene.bar().PreTranslateMessage(&made);
        const std::vector<MSG> posted = postedCommands();
        ASSERT_EQ(posted.size(), 1u);
        EXPECT_EQ(posted[0].wParam, static_cast<WPARAM>(IDC_BAR_COMBO));
        EXPECT_EQ(posted[0].lParam, reinterpret_cast<LPARAM>(edit)) << "the edit itself";
    }
}

TEST_F(BarKeys, InTheBarItselfTheyAreLeftToTheMessageLoop)
{
    class Wanting : public TestBar
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_GETDLGCODE ? DLGC_WANTCHARS : TestBar::WindowProc(message, wParam, lParam);
        }
    } bar;
    bar.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | CBRS_TOP);
    scene.frame().pretranslated = 0;
    for (const UINT key : {VK_RETURN, VK_ESCAPE, VK_TAB}) {
        MSG made = keyMessage(bar.m_hWnd, WM_KEYDOWN, key);
        EXPECT_FALSE(bar.PreTranslateMessage(&made)) << key;
    }
    EXPECT_EQ(scene.frame().pretranslated, 0);
    MSG posted;
    EXPECT_FALSE(::PeekMessageW(&posted, bar.m_hWnd, WM_COMMAND, WM_COMMAND, PM_NOREMOVE));
}

// With a real edit and real keys

namespace
{

class BarEdit : public ::testing::Test
{
protected:
    BarEdit()
    {
        edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(120, 0, 220, 20), &scene.bar(),
                    IDC_BAR_EDIT);
        edit.SetFocus();
    }

    std::wstring text()
    {
        CString content;
        edit.GetWindowText(content);
        return content.GetString();
    }

    BarScene scene;
    CEdit edit;
};

} // namespace

TEST_F(BarEdit, CtrlCCopiesAndDoesNotReachTheAccelerators)
{
    scene.user.type(L"words")
        .then([&] { edit.SetSel(0, -1); })
        .holding(VK_CONTROL)
        .key('C')
        .key('V')
        .key('V');
    EXPECT_EQ(text(), L"wordswords");
    for (const UINT id : scene.commands())
        EXPECT_NE(id, static_cast<UINT>(ID_COPY_ALL));
}

TEST_F(BarEdit, CtrlSReachesTheAccelerators)
{
    scene.user.type(L"words").holding(VK_CONTROL).key('S');
    const std::vector<UINT> ids = scene.commands();
    EXPECT_EQ(std::count(ids.begin(), ids.end(), static_cast<UINT>(ID_SAVE)), 1);
    EXPECT_EQ(text(), L"words");
}

TEST_F(BarEdit, FunctionKeysReachTheAccelerators)
{
    scene.user.key(VK_F5);
    const std::vector<UINT> ids = scene.commands();
    EXPECT_EQ(std::count(ids.begin(), ids.end(), static_cast<UINT>(ID_OTHER)), 1);
}

TEST_F(BarEdit, EnterIsPostedToTheBarAndReachesTheOwnerAsTheEditsCommand)
{
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{IDC_BAR_EDIT, edit.m_hWnd}}));
}

TEST_F(BarEdit, F4OpensTheListOfACombo)
{
    CComboBox combo;
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, CRect(230, 0, 330, 100), &scene.bar(),
                 IDC_BAR_COMBO);
    combo.AddString(L"one");
    combo.SetFocus();
    scene.user.key(VK_F4).waitFor("the list", [&] { return combo.GetDroppedState(); }).key(VK_F4);
    EXPECT_FALSE(combo.GetDroppedState());
}

TEST_F(BarEdit, ItsEditingKeysWork)
{
    scene.user.type(L"abcd").key(VK_BACK).key(VK_HOME).key(VK_DELETE).key(VK_RIGHT).type(L"x");
    EXPECT_EQ(text(), L"bxc");
}

// The callback

namespace
{

struct Told
{
    CVantorToolBar* bar;
    UINT code;
    UINT id;
    void* data;
};

std::vector<Told> told;
LRESULT reply;
std::function<void()> onTold;

LRESULT takeDown(CVantorToolBar* bar, UINT code, UINT id, void* data)
{
    told.push_back({bar, code, id, data});
    if (onTold)
        onTold();
    return reply;
}

class BarCallback : public ::testing::Test
{
protected:
    BarCallback()
    {
        told.clear();
        onTold = nullptr;
        reply = 1;
        scene.bar().SetControlCallback(&takeDown);
    }

    LRESULT notify(UINT code) { return scene.bar().SendMessage(WM_COMMAND, MAKEWPARAM(IDC_BAR_EDIT, code)); }

    /// What the owner answers to every WM_COMMAND.
    class Owner : public RecordingParent
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_COMMAND ? 77 : RecordingParent::WindowProc(message, wParam, lParam);
        }
    };

    BarScene scene;
};

} // namespace

TEST_F(BarCallback, IsToldOfTenCodes)
{
    const std::set<UINT> codes{0, 1, 3, 4, 5, 7, 9, 0x100, 0x200, 0x300};
    for (UINT code = 0; code < 0x400; ++code) {
        told.clear();
        notify(code);
        ASSERT_EQ(told.size(), codes.contains(code) ? 1u : 0u) << code;
        if (told.empty())
            continue;
        EXPECT_EQ(told[0].bar, &scene.bar());
        EXPECT_EQ(told[0].code, code);
        EXPECT_EQ(told[0].id, static_cast<UINT>(IDC_BAR_EDIT));
        EXPECT_EQ(told[0].data, nullptr);
    }
}

TEST_F(BarCallback, ItsZeroReplacesTheResultAndNothingElseDoes)
{
    Owner owner;
    scene.bar().SetOwner(&owner);
    for (const LRESULT answer : {LRESULT{1}, LRESULT{-1}, LRESULT{500}}) {
        reply = answer;
        EXPECT_EQ(notify(EN_CHANGE), 77);
    }
    reply = 0;
    EXPECT_EQ(notify(EN_CHANGE), 0);
    EXPECT_EQ(notify(EN_UPDATE), 77) << "it is not asked about this one";
    scene.bar().SetControlCallback(nullptr);
    EXPECT_EQ(notify(EN_CHANGE), 77);
}

TEST_F(BarCallback, ComesAfterTheOwner)
{
    std::vector<std::string> order;
    scene.frame().onCommand = [&](UINT) { order.push_back("owner"); };
    onTold = [&] { order.push_back("callback"); };
    scene.bar().SendMessage(WM_COMMAND, MAKEWPARAM(ID_PLAIN, 0));
    EXPECT_EQ(order, (std::vector<std::string>{"owner", "callback"}));
}

TEST_F(BarCallback, OfARealEditAndARealCombo)
{
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(120, 0, 180, 20), &scene.bar(), IDC_BAR_EDIT);
    CComboBox combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(190, 0, 260, 100), &scene.bar(),
                 IDC_BAR_COMBO);
    combo.AddString(L"one");
    combo.AddString(L"two");
    edit.SetFocus();
    scene.user.type(L"x");
    combo.SetFocus();
    scene.user.key(VK_DOWN);
    std::vector<std::pair<UINT, UINT>> seen;
    for (const Told& one : told)
        seen.emplace_back(one.id, one.code);
    const auto has = [&](UINT id, UINT code) {
        return std::count(seen.begin(), seen.end(), std::pair(id, code));
    };
    EXPECT_EQ(has(IDC_BAR_EDIT, EN_SETFOCUS), 1);
    EXPECT_EQ(has(IDC_BAR_EDIT, EN_CHANGE), 1);
    EXPECT_EQ(has(IDC_BAR_EDIT, EN_KILLFOCUS), 1);
    EXPECT_EQ(has(IDC_BAR_COMBO, CBN_SETFOCUS), 1);
    EXPECT_EQ(has(IDC_BAR_COMBO, CBN_SELCHANGE), 1);
}

// Hosts that destroy the bar meanwhile

TEST_F(BarCallback, IsNotCalledForABarThatTheOwnerHasDeleted)
{
    scene.frame().onCommand = [&](UINT) { scene.deleteBar(); };
    scene.bar().SendMessage(WM_COMMAND, MAKEWPARAM(ID_PLAIN, 0));
    EXPECT_TRUE(told.empty());
}

TEST_F(BarCallback, MayDeleteTheBarOrThrow)
{
    onTold = [] { throw std::runtime_error("misdeed"); };
    EXPECT_THROW(notify(EN_CHANGE), std::runtime_error);
    onTold = [&] { scene.deleteBar(); };
    EXPECT_EQ(notify(EN_CHANGE), 0);
}

TEST_F(BarKeys, TheControlMayDeleteTheBarWhenItGetsTheKey)
{
    probe.onKey = [&] { scene.deleteBar(); };
    MSG made = keyMessage(probe.m_hWnd, WM_KEYDOWN, 'A');
    EXPECT_TRUE(scene.bar().PreTranslateMessage(&made));
}

TEST_F(BarKeys, TheControlMayDeleteTheBarWhenItIsAsked)
{
    probe.onAsked = [&] { scene.deleteBar(); };
    MSG made = keyMessage(probe.m_hWnd, WM_KEYDOWN, 'A');
    EXPECT_TRUE(scene.bar().PreTranslateMessage(&made));
    EXPECT_TRUE(probe.keys.empty());
}
