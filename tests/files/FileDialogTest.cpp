// COVOFileDialog: one host's class in both of the system's dialogs.
#include "HostDialog.h"
#include "resource.h"

#include "mfc/cdlg/FakeClassicDialog.h"
#include "mfc/cdlg/FakeShellDialog.h"
#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>
#include <testkit/MemoryCounter.h>
#include <testkit/TestApp.h>

#include <gtest/gtest.h>

#include <commdlg.h>
#include <detail/modulestate.h>

#include <cstring>

using namespace ovo::testkit;

namespace
{

class FileDialogTest : public testing::TestWithParam<Kind>
{
protected:
    Kind kind() const { return GetParam(); }
    bool newStyle() const { return kind() == Kind::NewStyle; }

    TemporaryFiles files{L"a.txt", L"b.txt", L"below\\deep.txt"};
};

std::string idOf(int id)
{
    return std::to_string(id);
}

constexpr UINT kPostInit = 0x0E18;

/// Lets the message loop run for several of the shortest periods of a timer.
void waitForTicks()
{
    static int s_ticks;
    s_ticks = 0;
    const UINT_PTR timer =
        ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR, DWORD) { ++s_ticks; });
    EXPECT_TRUE(GuiThread::runUntil([] { return s_ticks >= 5; }));
    ::KillTimer(nullptr, timer);
}

/// What the getters give, and the setters leave alone, where there is no such control.
void expectNoControl(COVOFileDialog& dialog, DWORD id)
{
    EXPECT_EQ(dialog.GetSelectedControlItem(id), 0);
    EXPECT_FALSE(dialog.GetCheckButtonState(id));
    EXPECT_FALSE(dialog.GetControlStateVisible(id));
    EXPECT_EQ(dialog.GetEditBoxText(id), L"");
    EXPECT_EQ(dialog.GetEditBoxInt(id), 0);
    dialog.SetControlState(id, true, true);
    dialog.SetEditBoxInt(id, 5);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, FileDialogTest, testing::Values(Kind::Classic, Kind::NewStyle),
                         [](const auto& info) { return nameOf(info.param); });

TEST(FileDialogLayout, IsAVirtualTableAndTwoPointers)
{
    EXPECT_EQ(sizeof(COVOFileDialog), 3 * sizeof(void*));
    HostDialog dialog(Kind::Classic);
    EXPECT_EQ(reinterpret_cast<char*>(&dialog.ofn) -
                  reinterpret_cast<char*>(static_cast<COVOFileDialog*>(&dialog)),
              static_cast<std::ptrdiff_t>(2 * sizeof(void*)));
    static_assert(std::is_copy_constructible_v<COVOFileDialog>);
}

namespace
{

/// The place of a virtual operation in its table, counted from 1, where the destructor takes two.
template <class Operation>
std::size_t slotOf(Operation operation)
{
    std::size_t offset = 0; // one more than it, says the ABI
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*) + 1;
}

/// Reaches what is for derived classes.
struct Operations : COVOFileDialog
{
    static std::vector<std::size_t> slots()
    {
        return {slotOf(&Operations::DoModal),
                slotOf(&Operations::OnHelpInfo),
                slotOf(&Operations::OnSize),
                slotOf(&Operations::OnInitDialog),
                slotOf(&Operations::OnFileNameOK),
                slotOf(&Operations::OnFileNameChange),
                slotOf(&Operations::OnFolderChange),
                slotOf(&Operations::OnInitDone),
                slotOf(&Operations::OnLBSelChangedNotify),
                slotOf(&Operations::OnTypeChange),
                slotOf(&Operations::OnPostInit),
                slotOf(&Operations::OnItemSelected),
                slotOf(&Operations::OnButtonClicked),
                slotOf(&Operations::OnCheckButtonToggled),
                slotOf(&Operations::OnControlActivating),
                slotOf(&Operations::OnEnChange)};
    }
};

/// A copy that is not destroyed, since it shares what its original deletes.
union Copy {
    explicit Copy(const COVOFileDialog& original)
        : dialog(original)
    {
    }
    ~Copy() {}
    COVOFileDialog dialog;
};

} // namespace

TEST(FileDialogLayout, OperationsAreCalledThroughInTheOrderOfTheirTable)
{
    std::size_t expected = 2;
    for (const std::size_t slot : Operations::slots())
        EXPECT_EQ(slot, ++expected);
}

TEST(FileDialogLayout, ACopySharesEverything)
{
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        HostDialog dialog(kind);
        const Copy copy(dialog);
        EXPECT_EQ(copy.dialog.ofn, dialog.ofn);
        EXPECT_EQ(copy.dialog.DialogWnd(), dialog.DialogWnd());
    }
}

TEST_P(FileDialogTest, CanBeSizedByTheUser)
{
    HostDialog dialog(kind());
    EXPECT_NE(dialog.ofn->Flags & OFN_ENABLESIZING, 0u);
    EXPECT_NE(dialog.ofn->Flags & OFN_NOCHANGEDIR, 0u);
    EXPECT_NE(dialog.DialogWnd(), nullptr);
}

TEST_P(FileDialogTest, GivesTheFile)
{
    HostDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(L"b.txt").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName().GetString(), files.path(L"b.txt"));
    EXPECT_EQ(dialog.GetFileTitle().GetString(), std::wstring(L"b"));
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(position, reinterpret_cast<POSITION>(dialog.ofn->lpstrFile));
    EXPECT_EQ(dialog.GetNextPathName(position).GetString(), files.path(L"b.txt"));
    EXPECT_EQ(position, nullptr);
}

TEST_P(FileDialogTest, GivesSeveralFiles)
{
    HostDialog dialog(kind(), TRUE, nullptr, L"Text|*.txt||", OFN_ALLOWMULTISELECT | OFN_NOCHANGEDIR);
    dialog.startIn(files.folder());
    std::vector<wchar_t> buffer(2000);
    dialog.ofn->lpstrFile = buffer.data();
    dialog.ofn->nMaxFile = 2000;
    auto answering = whenAsked().type(L"\"b.txt\" \"a.txt\"").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    std::vector<std::wstring> paths;
    for (POSITION position = dialog.GetStartPosition(); position;)
        paths.emplace_back(dialog.GetNextPathName(position).GetString());
    EXPECT_EQ(paths, (std::vector{files.path(L"b.txt"), files.path(L"a.txt")}));
}

TEST_P(FileDialogTest, TellsWhatTheUserDoesWithTheControls)
{
    const std::string checked = "CheckButtonToggled " + idOf(IDC_BACKUP) + " 1";
    const std::string unchecked = "CheckButtonToggled " + idOf(IDC_BACKUP) + " 0";
    const std::string chosen = "ItemSelected " + idOf(IDC_FORMAT) + " 2";
    HostDialog dialog(kind());
    dialog.startIn(files.folder());
    std::vector<std::string> events;
    auto answering = whenAsked()
                         .then([&] { dialog.forgetEvents(); })
                         .click([&] { return controlOf(dialog, IDC_BACKUP); })
                         .waitFor("the check", [&] { return dialog.count(checked) == 1; })
                         .key(VK_SPACE)
                         .waitFor("the other check", [&] { return dialog.count(unchecked) == 1; })
                         .click([&] { return controlOf(dialog, IDC_FORMAT); })
                         .key(VK_DOWN)
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .waitFor("the choice", [&] { return dialog.count(chosen) == 1; })
                         .then([&] { events = dialog.events; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    // What else is told meanwhile is the system's affair, a choice passed on the way included.
    std::erase_if(events, [&](const auto& e) { return e != checked && e != unchecked && e != chosen; });
    EXPECT_EQ(events, (std::vector<std::string>{checked, unchecked, chosen}));
}

TEST_P(FileDialogTest, GivesTheValuesWhenTheFileIsAccepted)
{
    HostDialog dialog(kind());
    dialog.startIn(files.folder());
    bool backup = false;
    LONG_PTR format = -2;
    std::wstring text;
    int number = -1;
    dialog.onFileNameOK = [&](BOOL result) {
        backup = dialog.GetCheckButtonState(IDC_BACKUP);
        format = dialog.GetSelectedControlItem(IDC_FORMAT);
        text = dialog.GetEditBoxText(IDC_QUALITY);
        number = dialog.GetEditBoxInt(IDC_QUALITY);
        return result;
    };
    auto answering = whenAsked()
                         .click([&] { return controlOf(dialog, IDC_BACKUP); })
                         .click([&] { return controlOf(dialog, IDC_FORMAT); })
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .then([&] { dialog.SetEditBoxInt(IDC_QUALITY, -85); })
                         .click(&nameBox)
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(backup);
    EXPECT_EQ(format, 1); // an index and an item's number, which the host has made the same
    EXPECT_EQ(text, L"-85");
    EXPECT_EQ(number, -85);
}

TEST_P(FileDialogTest, ShowsAndEnablesControls)
{
    HostDialog dialog(kind());
    struct State
    {
        bool visible;
        bool told;
        bool enabled;
    };
    std::vector<State> states;
    const auto set = [&](bool enabled, bool visible) {
        return [&, enabled, visible] {
            const HWND control = controlOf(dialog, IDC_BACKUP);
            dialog.SetControlState(IDC_BACKUP, enabled, visible);
            const auto style = ::GetWindowLongW(control, GWL_STYLE);
            states.push_back({(style & WS_VISIBLE) != 0, dialog.GetControlStateVisible(IDC_BACKUP),
                              (style & WS_DISABLED) == 0});
        };
    };
    auto answering = whenAsked()
                         .then(set(false, true))
                         .then(set(true, false))
                         .then(set(false, false))
                         .then(set(true, true))
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    ASSERT_EQ(states.size(), 4u);
    const bool enabled[] = {false, true, false, true};
    const bool visible[] = {true, false, false, true};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(states[static_cast<std::size_t>(i)].enabled, enabled[i]) << i;
        EXPECT_EQ(states[static_cast<std::size_t>(i)].visible, visible[i]) << i;
        EXPECT_EQ(states[static_cast<std::size_t>(i)].told, visible[i]) << i;
    }
}

TEST_P(FileDialogTest, RefusesTheFileOnceAndThenTakesIt)
{
    HostDialog dialog(kind());
    dialog.startIn(files.folder());
    int asks = 0;
    dialog.onFileNameOK = [&](BOOL) { return ++asks == 1; };
    auto answering = whenAsked()
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .waitFor("the refusal", [&] { return asks == 1; })
                         .key(VK_RETURN)
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.count("FileNameOK 0"), 2);
}

TEST_P(FileDialogTest, TellsOfFolderAndType)
{
    HostDialog dialog(kind());
    dialog.startIn(files.folder());
    std::wstring folder;
    auto answering = whenAsked()
                         .then([&] { dialog.forgetEvents(); })
                         .type(L"below")
                         .key(VK_RETURN)
                         .waitFor("the folder", [&] { return dialog.count("FolderChange") > 0; })
                         .then([&] { folder = dialog.GetFolderPath().GetString(); })
                         .click([] { return controlWithText(L"Text"); })
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .waitFor("the type", [&] { return dialog.count("TypeChange") == 1; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(folder, files.path(L"below"));
}

TEST_P(FileDialogTest, DisablesItsParentMeanwhile)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    {
        HostDialog dialog(kind(), TRUE, &parent);
        bool disabled = false;
        auto answering =
            whenAsked().then([&] { disabled = !parent.IsWindowEnabled(); }).key(VK_ESCAPE).start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_TRUE(disabled);
    }
    EXPECT_TRUE(parent.IsWindowEnabled());
    parent.DestroyWindow();
}

TEST_P(FileDialogTest, BeginsInOrder)
{
    HostDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked()
                         .waitFor("the beginning",
                                  [&] {
                                      return newStyle() ? dialog.count("FolderChange") > 0
                                                        : dialog.count("PostInit 0 0") > 0;
                                  })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    for (const char* free :
         {"Size", "FileNameChange", "TypeChange"}) // when these come is the system's affair
        std::erase(dialog.events, free);
    EXPECT_EQ(dialog.events, newStyle() ? (std::vector<std::string>{"InitDone", "FolderChange"})
                                        : (std::vector<std::string>{"InitDialog", "InitDone", "FolderChange",
                                                                    "PostInit 0 0"}));
}

TEST(PlainHost, TakesTheFileInEitherDialog)
{
    FakeShellDialog shell;
    shell.results = {L"C:\\a.txt"};
    const COVOFileDialog newer(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE);
    EXPECT_EQ(newer.DoModal(), IDOK);

    FakeClassicDialog fake;
    const COVOFileDialog classic(TRUE, nullptr, nullptr, OFN_ENABLETEMPLATE, nullptr, nullptr, FALSE);
    classic.ofn->lpTemplateName = MAKEINTRESOURCE(IDD_CONTROLS);
    fake.onShow = [&fake](HWND child) {
        EXPECT_EQ(fake.notify(CDN_FILEOK), 0) << "not refused";
        EXPECT_EQ(::SendMessageW(child, kPostInit, 0, 0), 1);
        ::SendMessageW(::GetParent(child), WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(classic.DoModal(), IDOK);
}

namespace
{

int s_saves = 0;

BOOL WINAPI countSave(OPENFILENAMEW*)
{
    ++s_saves;
    return FALSE;
}

} // namespace

TEST(PlainHost, HandsItsArgumentsToTheSystem)
{
    const auto made = [](Kind kind) {
        return std::make_unique<COVOFileDialog>(FALSE, L"txt", L"plan", OFN_OVERWRITEPROMPT, L"Text|*.txt||",
                                                nullptr, kind == Kind::NewStyle);
    };
    FakeShellDialog shell;
    shell.results = {L"C:\\plan.txt"};
    EXPECT_EQ(made(Kind::NewStyle)->DoModal(), IDOK);
    EXPECT_EQ(shell.kind, CLSID_FileSaveDialog);
    EXPECT_EQ(shell.extension, L"txt");
    EXPECT_EQ(shell.name, L"plan");
    EXPECT_NE(shell.options & FOS_OVERWRITEPROMPT, 0u);

    const ImportPatch saving(L"ovomfc.dll", "GetSaveFileNameW", reinterpret_cast<void*>(&countSave));
    s_saves = 0;
    const auto classic = made(Kind::Classic);
    EXPECT_EQ(classic->DoModal(), IDCANCEL);
    EXPECT_EQ(s_saves, 1);
    const OPENFILENAME& record = *classic->ofn;
    EXPECT_STREQ(record.lpstrDefExt, L"txt");
    EXPECT_STREQ(record.lpstrFile, L"plan");
    EXPECT_EQ(std::wstring(record.lpstrFilter, 12), std::wstring(L"Text\0*.txt\0", 12));
    EXPECT_NE(record.Flags & OFN_OVERWRITEPROMPT, 0u);
}

// The classic path

TEST(ClassicHost, IsToldThatTheDialogIsShownOnlyWhenItIs)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    fake.onShow = [&](HWND child) {
        ::ShowWindow(::GetParent(child), SW_HIDE);
        dialog.forgetEvents();
        EXPECT_EQ(::SendMessageW(child, kPostInit, 3, 4), 0);
        waitForTicks();
        EXPECT_EQ(dialog.count("PostInit 3 4") + dialog.count("PostInit 0 0"), 0);
        ::ShowWindow(::GetParent(child), SW_SHOW);
        EXPECT_TRUE(GuiThread::runUntil([&] { return dialog.count("PostInit 0 0") > 0; }));
        waitForTicks();
        EXPECT_EQ(dialog.count("PostInit 0 0"), 1);
        EXPECT_EQ(::SendMessageW(child, kPostInit, 3, 4), 1) << "the host's answer";
        EXPECT_EQ(dialog.count("PostInit 3 4"), 1);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ClassicHost, IsToldThatTheDialogIsShownAlsoWhenItHidesItsOwnControls)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    dialog.on["InitDone"] = [&] { dialog.DialogWnd()->ShowWindow(SW_HIDE); };
    fake.onShow = [&](HWND child) {
        EXPECT_FALSE(::IsWindowVisible(child));
        EXPECT_EQ(::SendMessageW(child, kPostInit, 3, 4), 1) << "the host's answer";
        EXPECT_EQ(dialog.count("PostInit 3 4"), 1);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.count("PostInit 0 0"), 1);
}

TEST(ClassicHost, ReadsControlsAsAWindowDoes)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    fake.onShow = [&](HWND child) {
        ::SetDlgItemTextW(child, IDC_QUALITY, L"4000000000");
        BOOL understood = FALSE;
        EXPECT_EQ(dialog.GetDlgItemInt(IDC_QUALITY, &understood, FALSE), 4'000'000'000u);
        EXPECT_TRUE(understood);
        dialog.GetDlgItemInt(IDC_QUALITY, &understood, TRUE);
        EXPECT_FALSE(understood) << "too large for a number with a sign";
        wchar_t text[8] = L"#######";
        EXPECT_EQ(dialog.GetDlgItemText(IDC_QUALITY, text, 3), 2);
        EXPECT_STREQ(text, L"40");
        EXPECT_EQ(text[3], L'#');
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ClassicHost, GivesNothingForControlsThatAreNotThere)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    int looks = 0;
    fake.onShow = [&](HWND) {
        ++looks;
        expectNoControl(dialog, 99);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(looks, 1);
}

TEST(ClassicHost, TakesAButtonInItsThirdStateForChecked)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    fake.onShow = [&](HWND child) {
        const HWND button = ::GetDlgItem(child, IDC_BACKUP);
        ::SendMessageW(button, BM_SETSTYLE, BS_AUTO3STATE, FALSE);
        ::SendMessageW(button, BM_SETCHECK, BST_INDETERMINATE, 0);
        EXPECT_EQ(::IsDlgButtonChecked(child, IDC_BACKUP), UINT{BST_INDETERMINATE});
        EXPECT_TRUE(dialog.GetCheckButtonState(IDC_BACKUP));
        ::SendMessageW(child, WM_COMMAND, MAKEWPARAM(IDC_BACKUP, BN_CLICKED),
                       reinterpret_cast<LPARAM>(button));
        EXPECT_EQ(dialog.count("CheckButtonToggled " + idOf(IDC_BACKUP) + " 1"), 1);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ClassicHost, TellsAPushButtonAsACheckBox)
{
    HostDialog dialog(Kind::Classic);
    auto answering =
        whenAsked()
            .click([&] { return controlOf(dialog, IDC_DETAILS); })
            .waitFor("the push",
                     [&] { return dialog.count("CheckButtonToggled " + idOf(IDC_DETAILS) + " 0") == 1; })
            .key(VK_ESCAPE)
            .start();
    dialog.DoModal();
    EXPECT_EQ(dialog.count("ButtonClicked " + idOf(IDC_DETAILS)), 0);
}

TEST(ClassicHost, TellsOfEditedTexts)
{
    HostDialog dialog(Kind::Classic);
    auto answering =
        whenAsked()
            .click([&] { return controlOf(dialog, IDC_QUALITY); })
            .type(L"123")
            .waitFor("the text", [&] { return dialog.count("EnChange " + idOf(IDC_QUALITY)) == 3; })
            .key(VK_ESCAPE)
            .start();
    dialog.DoModal();
}

TEST(ClassicHost, IsToldOnceThatTheDialogIsShown)
{
    HostDialog dialog(Kind::Classic);
    bool shown = false;
    bool afterInit = false;
    dialog.on["PostInit"] = [&] {
        shown = ::IsWindowVisible(dialog.DialogWnd()->GetParent()->m_hWnd) != FALSE;
        afterInit = dialog.count("InitDialog") == 1;
    };
    for (int i = 1; i <= 2; ++i) {
        auto answering = Robot()
                             .waitFor("the message", [&] { return dialog.count("PostInit 0 0") == i; })
                             .key(VK_ESCAPE)
                             .start();
        dialog.DoModal();
        EXPECT_EQ(dialog.count("PostInit 0 0"), i);
        dialog.events.erase(std::find(dialog.events.begin(), dialog.events.end(), "InitDialog"));
    }
    EXPECT_TRUE(shown);
    EXPECT_TRUE(afterInit);
}

TEST(ClassicHost, TellsOfSizesAndHelp)
{
    HostDialog dialog(Kind::Classic);
    int sizes = 0;
    auto answering =
        whenAsked()
            .then([&] { sizes = dialog.count("Size"); })
            .then([&] {
                CRect rect;
                ::GetWindowRect(asked(), &rect);
                ::MoveWindow(asked(), rect.left, rect.top, rect.Width() + 40, rect.Height() + 30, TRUE);
            })
            .waitFor("the size", [&] { return dialog.count("Size") > sizes; })
            .click([&] { return controlOf(dialog, IDC_QUALITY); })
            .key(VK_F1)
            .waitFor("the help", [&] { return dialog.count("HelpInfo 0") + dialog.count("HelpInfo 1") == 1; })
            .key(VK_ESCAPE)
            .start();
    dialog.DoModal();
    // The framework has shown its help first, and said so.
    EXPECT_EQ(dialog.count("HelpInfo 1"), static_cast<int>(TestApp::instance().helps().size()));
}

namespace
{

/// Takes down what messages of the child dialog come with.
class MessageNotingDialog : public COVOFileDialog
{
public:
    MessageNotingDialog()
        : COVOFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, FALSE)
    {
        ofn->Flags |= OFN_ENABLETEMPLATE;
        ofn->lpTemplateName = MAKEINTRESOURCE(IDD_CONTROLS);
    }
    std::vector<UINT> size; ///< type, width and height of the last one
    HELPINFO* helpInfo = nullptr;
    BOOL helpAnswer = FALSE;

protected:
    void OnSize(UINT type, int cx, int cy) override
    {
        size = {type, static_cast<UINT>(cx), static_cast<UINT>(cy)};
    }
    BOOL OnHelpInfo(HELPINFO* info, BOOL) override
    {
        helpInfo = info;
        return helpAnswer;
    }
};

} // namespace

TEST(ClassicHost, IsGivenWhatTheMessagesOfSizesAndHelpHave)
{
    FakeClassicDialog fake;
    MessageNotingDialog dialog;
    fake.onShow = [&](HWND child) {
        ::SendMessageW(child, WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(70, 30));
        EXPECT_EQ(dialog.size, (std::vector<UINT>{SIZE_MAXIMIZED, 70, 30}));
        HELPINFO info{};
        info.cbSize = sizeof info;
        info.iContextType = HELPINFO_WINDOW;
        info.iCtrlId = IDC_QUALITY;
        info.hItemHandle = ::GetDlgItem(child, IDC_QUALITY);
        for (const BOOL answer : {FALSE, TRUE}) {
            dialog.helpInfo = nullptr;
            dialog.helpAnswer = answer;
            EXPECT_EQ(::SendMessageW(child, WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), answer);
            EXPECT_EQ(dialog.helpInfo, &info);
        }
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(dialog.size.empty()) << "the dialog was shown";
}

// It has the code of a selection, but no control.
TEST(ClassicHost, IgnoresAccelerators)
{
    HostDialog dialog(Kind::Classic);
    auto answering = whenAsked()
                         .then([&] {
                             dialog.forgetEvents();
                             dialog.DialogWnd()->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_FORMAT, 1), 0);
                         })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.count("ItemSelected " + idOf(IDC_FORMAT) + " 0"), 0);
    EXPECT_EQ(dialog.count("CheckButtonToggled " + idOf(IDC_FORMAT) + " 0"), 0);
}

TEST(ClassicHost, TellsASelectionOfTheOldStyle)
{
    // What dialogs without OFN_EXPLORER send, sent by hand: not every system still has them.
    HostDialog dialog(Kind::Classic);
    auto answering = whenAsked()
                         .then([&] {
                             dialog.DialogWnd()->SendMessage(::RegisterWindowMessageW(LBSELCHSTRINGW), 1120,
                                                             MAKELPARAM(3, CD_LBSELSUB));
                         })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.count("LBSelChanged 1120 3 1"), 1);
}

namespace
{

/// A control of the host's that hears of its own notifications.
class HearingButton : public CButton
{
public:
    explicit HearingButton(std::vector<std::string>& events)
        : m_events(events)
    {
    }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (message == WM_COMMAND)
            m_events.push_back("button");
        return CButton::OnChildNotify(message, wParam, lParam, result);
    }

private:
    std::vector<std::string>& m_events;
};

} // namespace

TEST(ClassicHost, IsToldOfACommandBeforeItGoesOn)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    fake.onShow = [&](HWND child) {
        HearingButton button(dialog.events);
        EXPECT_TRUE(button.SubclassDlgItem(IDC_BACKUP, dialog.DialogWnd()));
        dialog.forgetEvents();
        ::SendMessageW(child, WM_COMMAND, MAKEWPARAM(IDC_BACKUP, BN_CLICKED),
                       reinterpret_cast<LPARAM>(button.m_hWnd));
        EXPECT_EQ(dialog.events,
                  (std::vector<std::string>{"CheckButtonToggled " + idOf(IDC_BACKUP) + " 0", "button"}));
        button.UnsubclassWindow();
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ClassicHost, TellsAMenuCommandAsACheckBox)
{
    HostDialog dialog(Kind::Classic);
    auto answering = whenAsked()
                         .then([&] { dialog.DialogWnd()->SendMessage(WM_COMMAND, MAKEWPARAM(900, 0), 0); })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_EQ(dialog.count("CheckButtonToggled 900 0"), 1);
}

TEST(ClassicHost, GivesWhatTheControlsOfAWindowGive)
{
    HostDialog dialog(Kind::Classic);
    struct
    {
        UINT number;
        BOOL understood;
        wchar_t buffer[8];
        CString text;
        UINT checked;
        LONG_PTR nothingChosen;
        int noNumber;
        int systemNumber;
    } seen{};
    auto answering =
        whenAsked()
            .then([&] {
                dialog.SetEditBoxInt(IDC_QUALITY, -7);
                seen.number = dialog.GetDlgItemInt(IDC_QUALITY, &seen.understood, TRUE);
                dialog.GetDlgItemText(IDC_QUALITY, seen.buffer, 8);
                dialog.GetDlgItemText(IDC_QUALITY, seen.text);
                dialog.CheckDlgButton(IDC_BACKUP, BST_CHECKED);
                seen.checked = dialog.GetCheckButtonState(IDC_BACKUP);
                ::SendMessageW(controlOf(dialog, IDC_FORMAT), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
                seen.nothingChosen = dialog.GetSelectedControlItem(IDC_FORMAT);
                dialog.GetDlgItem(IDC_QUALITY)->SetWindowText(L"12abc");
                seen.noNumber = dialog.GetEditBoxInt(IDC_QUALITY);
                seen.systemNumber =
                    static_cast<int>(::GetDlgItemInt(dialog.DialogWnd()->m_hWnd, IDC_QUALITY, nullptr, TRUE));
            })
            .key(VK_ESCAPE)
            .start();
    dialog.DoModal();
    EXPECT_EQ(static_cast<int>(seen.number), -7);
    EXPECT_TRUE(seen.understood);
    EXPECT_STREQ(seen.buffer, L"-7");
    EXPECT_EQ(seen.text.GetString(), std::wstring(L"-7"));
    EXPECT_TRUE(seen.checked);
    EXPECT_EQ(seen.nothingChosen, CB_ERR);
    EXPECT_EQ(seen.noNumber, seen.systemNumber); // 0 on Windows, 12 under Wine
}

TEST(ClassicHost, DoesNotGoToAFolder)
{
    TemporaryFiles files{L"a.txt", L"below\\deep.txt"};
    HostDialog dialog(Kind::Classic);
    dialog.startIn(files.folder());
    dialog.SetFolder(files.path(L"below"));
    std::wstring folder;
    auto answering =
        whenAsked().then([&] { folder = dialog.GetFolderPath().GetString(); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(folder, files.folder());
}

namespace
{

/// What the program says to the debugger, on the error output.
LONG CALLBACK echo(EXCEPTION_POINTERS* exception)
{
    constexpr DWORD kNarrow = 0x40010006; // DBG_PRINTEXCEPTION_C: length and text
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == kNarrow)
        std::fputs(reinterpret_cast<const char*>(record.ExceptionInformation[1]), stderr);
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

TEST(ClassicHostDeathTest, NamesAnOperationOfTheNewStyleThatIsCalled)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    HostDialog dialog(Kind::Classic);
    const Labels labels(IDD_CONTROLS);
    const std::pair<const char*, std::function<void()>> operations[] = {
        {"AddCheckButton", [&] { dialog.AddCheckButton(labels, IDC_BACKUP, true); }},
        {"AddComboBox", [&] { dialog.AddComboBox(labels, IDC_FORMAT_LABEL, 7); }},
        {"AddEditBox", [&] { dialog.AddEditBox(labels, 0, 7); }},
        {"AddControlItem", [&] { dialog.AddControlItem(7, 1, L"x"); }},
        {"StartVisualGroup", [&] { dialog.StartVisualGroup(7, L"x"); }},
        {"EndVisualGroup", [&] { dialog.EndVisualGroup(); }},
        {"SetSelectedControlItem", [&] { dialog.SetSelectedControlItem(7, 1); }},
    };
    for (const auto& [name, call] : operations)
        EXPECT_DEATH(
            {
                ::AddVectoredExceptionHandler(1, &echo);
                call();
            },
            std::string("COVOFileDialog::") + name);
}

// The new-style path

namespace
{

/// Takes down the module state in which its handlers are called.
class StateNotingDialog : public COVOFileDialog
{
public:
    StateNotingDialog()
        : COVOFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE)
    {
    }
    std::vector<AFX_MODULE_STATE*> states;

protected:
    void OnItemSelected(DWORD, DWORD) override { note(); }
    void OnButtonClicked(DWORD) override { note(); }
    void OnCheckButtonToggled(DWORD, BOOL) override { note(); }
    void OnControlActivating(DWORD) override { note(); }

private:
    void note() { states.push_back(AfxGetModuleState()); }
};

} // namespace

TEST(NewStyleHost, IsToldOfItsControlsInTheModuleStateThatItWasMadeIn)
{
    FakeShellDialog fake;
    StateNotingDialog dialog;
    AFX_MODULE_STATE other;
    fake.onShow = [&](IFileDialogEvents& events) {
        IFileDialogControlEvents* controls = nullptr;
        events.QueryInterface(IID_IFileDialogControlEvents, reinterpret_cast<void**>(&controls));
        {
            const AFX_MAINTAIN_STATE foreign(&other);
            EXPECT_EQ(controls->OnItemSelected(nullptr, 1, 2), S_OK);
            EXPECT_EQ(controls->OnButtonClicked(nullptr, 1), S_OK);
            EXPECT_EQ(controls->OnCheckButtonToggled(nullptr, 1, TRUE), S_OK);
            EXPECT_EQ(controls->OnControlActivating(nullptr, 1), S_OK);
            EXPECT_EQ(AfxGetModuleState(), &other) << "for the call alone";
        }
        controls->Release();
        return HRESULT_FROM_WIN32(ERROR_CANCELLED);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.states, std::vector<AFX_MODULE_STATE*>(4, AfxGetModuleState()));
}

TEST(NewStyleHost, GivesTheFilesOfThisTimeWhateverTheBufferHeldBefore)
{
    const std::vector<std::vector<std::wstring>> choices{
        {L"C:\\a.txt"}, {L"C:\\plans\\b.txt", L"C:\\plans\\c.txt"}, {L"C:\\plans.txt"}};
    for (const bool hostsBuffer : {false, true}) {
        FakeShellDialog fake;
        const COVOFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, nullptr, nullptr, TRUE);
        std::vector<wchar_t> buffer(200, L'#'); // as a host's that has cleared only its first character
        buffer.front() = L'\0';
        buffer.back() = L'\0';
        if (hostsBuffer) {
            dialog.ofn->lpstrFile = buffer.data();
            dialog.ofn->nMaxFile = static_cast<DWORD>(buffer.size() - 1);
        }
        for (const std::vector<std::wstring>& chosen : choices) {
            fake.results = chosen;
            ASSERT_EQ(dialog.DoModal(), IDOK);
            std::vector<std::wstring> paths;
            for (POSITION position = dialog.GetStartPosition(); position;)
                paths.emplace_back(dialog.GetNextPathName(position).GetString());
            EXPECT_EQ(paths, chosen) << hostsBuffer;
        }
    }
}

TEST(NewStyleHost, ReadsNumbersAsFarAsTheyGo)
{
    HostDialog dialog(Kind::NewStyle);
    std::vector<int> numbers;
    std::vector<std::wstring> texts;
    const auto look = [&] {
        texts.push_back(dialog.GetEditBoxText(IDC_QUALITY));
        numbers.push_back(dialog.GetEditBoxInt(IDC_QUALITY));
    };
    auto answering = whenAsked()
                         .then(look)
                         .click([&] { return controlOf(dialog, IDC_QUALITY); })
                         .key(VK_END)
                         .key(VK_BACK, 5)
                         .then(look)
                         .type(L"x1")
                         .then(look)
                         .then([&] { dialog.SetEditBoxInt(IDC_QUALITY, -40); })
                         .then(look)
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_EQ(texts,
              (std::vector<std::wstring>{L"12abc", L"", L"x1", L"-40"})); // the first from the template
    EXPECT_EQ(numbers, (std::vector<int>{12, 0, 0, -40}));
}

TEST(NewStyleHost, GivesNothingForControlsThatAreNotThere)
{
    HostDialog dialog(Kind::NewStyle);
    expectNoControl(dialog, 99);
    dialog.SetSelectedControlItem(99, 1);
}

TEST(NewStyleHost, TakesStatesBeforeTheDialogIsShown)
{
    HostDialog dialog(Kind::NewStyle);
    dialog.SetControlState(IDC_BACKUP, true, false);
    dialog.SetSelectedControlItem(IDC_FORMAT, 2);
    dialog.SetEditBoxInt(IDC_QUALITY, 70);
    bool visible = true;
    auto answering = whenAsked()
                         .then([&] { visible = ::IsWindowVisible(controlOf(dialog, IDC_BACKUP)) != FALSE; })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_FALSE(visible);
    EXPECT_EQ(dialog.GetSelectedControlItem(IDC_FORMAT), 2); // after the dialog too
    EXPECT_EQ(dialog.GetEditBoxInt(IDC_QUALITY), 70);
}

TEST(NewStyleHost, PutsTheLabelInFrontOfTheComboBox)
{
    HostDialog dialog(Kind::NewStyle);
    bool shown = false;
    auto answering =
        whenAsked().then([&] { shown = controlWithText(L"&Format:") != nullptr; }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_TRUE(shown);
}

TEST(NewStyleHost, PutsControlsIntoGroupsAndTakesThemAsTheHostSays)
{
    COVOFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, nullptr, nullptr, TRUE);
    constexpr DWORD kOptions = 90;
    constexpr DWORD kMore = 91;
    constexpr DWORD kUnlabelled = 92;
    constexpr DWORD kEmpty = 93;
    {
        const Labels labels(IDD_CONTROLS);
        dialog.StartVisualGroup(kOptions, L"Options:");
        dialog.AddCheckButton(labels, IDC_BACKUP, true);
        dialog.EndVisualGroup();
        dialog.AddComboBox(labels, IDC_FORMAT_LABEL, IDC_FORMAT);
        dialog.StartVisualGroup(kMore, L"More:");
        dialog.AddComboBox(kUnlabelled);
        dialog.AddControlItem(kUnlabelled, 4, L"Four");
        dialog.AddControlItem(kUnlabelled, 5, L"Five");
        dialog.SetSelectedControlItem(kUnlabelled, 5);
        dialog.EndVisualGroup();
        ::SetWindowLongPtrW(labels.GetDlgItem(IDC_QUALITY_TEXT)->m_hWnd, GWLP_ID, 0);
        dialog.AddEditBox(labels, 0, kEmpty);
    }
    std::vector<std::wstring> missing{L"Options:", L"&Format:", L"More:"};
    auto answering = whenAsked()
                         .then([&] {
                             std::erase_if(missing, [](const auto& label) {
                                 return controlWithText(label.c_str()) != nullptr;
                             });
                         })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(missing, std::vector<std::wstring>{});
    EXPECT_TRUE(dialog.GetCheckButtonState(IDC_BACKUP)) << "as it was added";
    EXPECT_TRUE(dialog.GetControlStateVisible(IDC_FORMAT_LABEL)) << "the label's number is that of the group";
    EXPECT_EQ(dialog.GetSelectedControlItem(kUnlabelled), 5);
    EXPECT_EQ(dialog.GetEditBoxText(kEmpty), L"")
        << "0 stands for no text, not for a control with that number";
}

TEST(NewStyleHost, KeepsNothingOfTheTextsThatItReads)
{
    constexpr std::size_t kLength = 5000;
    constexpr int kRounds = 200;
    COVOFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE);
    {
        const Labels labels(IDD_CONTROLS);
        labels.GetDlgItem(IDC_QUALITY_TEXT)->SetWindowText(std::wstring(kLength, L'x').c_str());
        dialog.AddEditBox(labels, IDC_QUALITY_TEXT, IDC_QUALITY);
    }
    ASSERT_EQ(dialog.GetEditBoxText(IDC_QUALITY).size(), kLength);
    const MemoryCounter memory;
    for (int i = 0; i < kRounds; ++i)
        dialog.GetEditBoxText(IDC_QUALITY);
    EXPECT_LT(memory.grown(), kRounds * static_cast<long long>(kLength));
}

TEST(NewStyleHost, BeginsInTheFolderThatWasSet)
{
    TemporaryFiles files{L"below\\deep.txt"};
    struct Case
    {
        std::wstring set;
        std::wstring found;
    };
    for (const Case& c : {Case{files.path(L"below"), files.path(L"below")},
                          Case{files.path(L"gone"), files.folder()}, Case{L"", files.folder()}}) {
        HostDialog dialog(Kind::NewStyle);
        dialog.SetFolder(files.folder());
        dialog.SetFolder(c.set);
        std::wstring folder;
        auto answering =
            whenAsked().then([&] { folder = dialog.GetFolderPath().GetString(); }).key(VK_ESCAPE).start();
        dialog.DoModal();
        EXPECT_EQ(folder, c.found);
    }
}

TEST(NewStyleHost, IsNotToldOfAChildDialog)
{
    HostDialog dialog(Kind::NewStyle);
    auto answering =
        whenAsked()
            .then([] {
                CRect rect;
                ::GetWindowRect(asked(), &rect);
                ::MoveWindow(asked(), rect.left, rect.top, rect.Width() + 40, rect.Height(), TRUE);
            })
            .key(VK_F1)
            .key(VK_ESCAPE)
            .start();
    dialog.DoModal();
    for (const char* event : {"InitDialog", "PostInit 0 0", "Size", "HelpInfo 0", "HelpInfo 1"})
        EXPECT_EQ(dialog.count(event), 0) << event;
}
