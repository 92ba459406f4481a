// COVOFileDialog: a host whose handlers throw.
#include "HostDialog.h"
#include "resource.h"

#include "mfc/cdlg/FakeClassicDialog.h"
#include "mfc/cdlg/FakeShellDialog.h"
#include <support/Raising.h>
#include <testkit/TestApp.h>

#include <ovocor/IntCast.h>

#include <gtest/gtest.h>

#include <commdlg.h>

#include <stdexcept>
#include <vector>

using namespace ovo::testkit;

namespace
{

struct Misdeed
{
    Kind kind;
    const char* handler;
    void (*provoke)(HostDialog& dialog, std::vector<Performance>& acts); ///< null: it comes by itself
};

void PrintTo(const Misdeed& misdeed, std::ostream* out)
{
    *out << nameOf(misdeed.kind) << ' ' << misdeed.handler;
}

void takeFile(HostDialog&, std::vector<Performance>& acts)
{
    acts.push_back(whenAsked().type(L"a.txt").key(VK_RETURN).start());
}

void changeType(HostDialog&, std::vector<Performance>& acts)
{
    acts.push_back(
        whenAsked().click([] { return controlWithText(L"Text"); }).key(VK_DOWN).key(VK_RETURN).start());
}

void check(HostDialog& dialog, std::vector<Performance>& acts)
{
    acts.push_back(whenAsked().click([&] { return controlOf(dialog, IDC_BACKUP); }).start());
}

void choose(HostDialog& dialog, std::vector<Performance>& acts)
{
    acts.push_back(
        whenAsked().click([&] { return controlOf(dialog, IDC_FORMAT); }).key(VK_DOWN).key(VK_RETURN).start());
}

void edit(HostDialog& dialog, std::vector<Performance>& acts)
{
    acts.push_back(whenAsked().click([&] { return controlOf(dialog, IDC_QUALITY); }).type(L"1").start());
}

void help(HostDialog& dialog, std::vector<Performance>& acts)
{
    acts.push_back(whenAsked().click([&] { return controlOf(dialog, IDC_QUALITY); }).key(VK_F1).start());
}

void selectInTheOldStyle(HostDialog& dialog, std::vector<Performance>& acts)
{
    acts.push_back(whenAsked()
                       .then([&] {
                           ::PostMessageW(dialog.DialogWnd()->m_hWnd,
                                          ::RegisterWindowMessageW(LBSELCHSTRINGW), 1120,
                                          MAKELPARAM(3, CD_LBSELCHANGE));
                       })
                       .start());
}

/// A host of the newer dialog whose handlers raise what is armed. Without controls, which the dialog made by
/// the test does not take.
class RaisingDialog : public COVOFileDialog
{
public:
    RaisingDialog()
        : COVOFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE)
    {
    }

protected:
    BOOL OnFileNameOK(BOOL result) override
    {
        Raising::here("OnFileNameOK");
        return result;
    }
    void OnFileNameChange() override { Raising::here("OnFileNameChange"); }
    void OnFolderChange() override { Raising::here("OnFolderChange"); }
    void OnInitDone() override { Raising::here("OnInitDone"); }
    void OnTypeChange() override { Raising::here("OnTypeChange"); }
    void OnItemSelected(DWORD, DWORD) override { Raising::here("OnItemSelected"); }
    void OnButtonClicked(DWORD) override { Raising::here("OnButtonClicked"); }
    void OnCheckButtonToggled(DWORD, BOOL) override { Raising::here("OnCheckButtonToggled"); }
    void OnControlActivating(DWORD) override { Raising::here("OnControlActivating"); }
};

/// An event of the newer dialog, and the handler that it leads to.
struct NewStyleEvent
{
    const char* handler;
    HRESULT (*happen)(IFileDialogEvents&, IFileDialogControlEvents&, IFileDialog&);
    HRESULT refused; ///< what the dialog gets when the handler raises something
};

class MisdeedTest : public testing::TestWithParam<Misdeed>
{
protected:
    /// Of the exceptions that come out of the dialog another one for each handler: the system's dialogs take
    /// seconds. Those of the tests below raise all of them.
    static const Raising::Kind& nextKind()
    {
        static const std::vector<Raising::Kind> all = [] {
            std::vector<Raising::Kind> kinds = Raising::kinds();
            std::erase_if(kinds, [](const auto& kind) { return kind.group == Raising::Group::Framework; });
            return kinds;
        }();
        static std::size_t s_next = 0;
        return all[s_next++ % all.size()];
    }
};

/// An event of the classic dialog, the handler that it leads to, and what the host declares before.
struct ClassicDialogEvent
{
    const char* handler;
    void (*happen)(const FakeClassicDialog& dialog, HWND child); ///< null: it comes by itself
    void (*declare)(HostDialog& dialog) = nullptr;
};

void tellOfCommand(HWND child, int control, WORD code)
{
    ::SendMessageW(child, WM_COMMAND, MAKEWPARAM(control, code),
                   reinterpret_cast<LPARAM>(::GetDlgItem(child, control)));
}

void click(const FakeClassicDialog&, HWND child)
{
    tellOfCommand(child, IDC_BACKUP, BN_CLICKED);
}

template <UINT event>
void tell(const FakeClassicDialog& dialog, HWND)
{
    dialog.notify(event);
}

const ClassicDialogEvent kClassicEvents[] = {
    {"InitDialog", nullptr},
    {"InitDone", nullptr},
    {"PostInit", nullptr},
    {"FolderChange", &tell<CDN_FOLDERCHANGE>},
    {"FileNameChange", &tell<CDN_SELCHANGE>},
    {"TypeChange", &tell<CDN_TYPECHANGE>},
    {"FileNameOK",
     [](const FakeClassicDialog& dialog, HWND) { EXPECT_NE(dialog.notify(CDN_FILEOK), 0) << "refused"; }},
    {"Size",
     [](const FakeClassicDialog&, HWND child) {
         ::SetWindowPos(child, nullptr, 0, 0, 120, 40, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
     }},
    {"LBSelChanged",
     [](const FakeClassicDialog&, HWND child) {
         ::SendMessageW(child, ::RegisterWindowMessageW(LBSELCHSTRINGW), 1120, MAKELPARAM(3, CD_LBSELCHANGE));
     }},
    {"HelpInfo",
     [](const FakeClassicDialog&, HWND child) {
         HELPINFO info{};
         info.cbSize = sizeof info;
         info.iContextType = HELPINFO_WINDOW;
         info.iCtrlId = IDC_QUALITY;
         info.hItemHandle = ::GetDlgItem(child, IDC_QUALITY);
         ::SendMessageW(child, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
     }},
    {"CheckButtonToggled", &click},
    {"ButtonClicked", &click,
     [](HostDialog& dialog) { dialog.AddPushButton(Labels(IDD_CONTROLS), IDC_BACKUP); }},
    {"ControlActivating", &click,
     [](HostDialog& dialog) { dialog.AddMenu(Labels(IDD_CONTROLS), IDC_BACKUP); }},
    {"ItemSelected",
     [](const FakeClassicDialog&, HWND child) { tellOfCommand(child, IDC_FORMAT, CBN_SELCHANGE); }},
    {"EnChange", [](const FakeClassicDialog&, HWND child) { tellOfCommand(child, IDC_QUALITY, EN_CHANGE); }},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Handlers, MisdeedTest,
    testing::Values(
        Misdeed{Kind::Classic, "InitDialog", nullptr}, Misdeed{Kind::Classic, "InitDone", nullptr},
        Misdeed{Kind::Classic, "FolderChange", nullptr}, Misdeed{Kind::Classic, "FileNameChange", nullptr},
        Misdeed{Kind::Classic, "PostInit", nullptr}, Misdeed{Kind::Classic, "Size", nullptr},
        Misdeed{Kind::Classic, "FileNameOK", &takeFile}, Misdeed{Kind::Classic, "TypeChange", &changeType},
        Misdeed{Kind::Classic, "CheckButtonToggled", &check}, Misdeed{Kind::Classic, "ItemSelected", &choose},
        Misdeed{Kind::Classic, "EnChange", &edit},
        Misdeed{Kind::Classic, "LBSelChanged", &selectInTheOldStyle},
        Misdeed{Kind::Classic, "HelpInfo", &help}, Misdeed{Kind::NewStyle, "InitDone", nullptr},
        Misdeed{Kind::NewStyle, "FolderChange", nullptr}, Misdeed{Kind::NewStyle, "FileNameOK", &takeFile},
        Misdeed{Kind::NewStyle, "TypeChange", nullptr}, Misdeed{Kind::NewStyle, "CheckButtonToggled", &check},
        Misdeed{Kind::NewStyle, "ItemSelected", &choose}),
    [](const auto& info) { return nameOf(info.param.kind) + "_" + info.param.handler; });

TEST_P(MisdeedTest, AnExceptionClosesTheDialogAndComesOut)
{
    const Raising::Kind& kind = nextKind();
    SCOPED_TRACE(kind.name);
    TemporaryFiles files{L"a.txt"};
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    {
        HostDialog dialog(GetParam().kind, TRUE, &parent);
        dialog.startIn(files.folder());
        dialog.on[GetParam().handler] = kind.raise;
        std::vector<Performance> acts;
        if (GetParam().provoke)
            GetParam().provoke(dialog, acts);
        EXPECT_EQ(outcomeOf([&] { dialog.DoModal(); }), Outcome::Passes);
        acts.clear();
        EXPECT_TRUE(parent.IsWindowEnabled());

        // Nothing is left of it: the same dialog can be shown again.
        dialog.on.clear();
        auto answering = whenAsked().key(VK_ESCAPE).start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
    parent.DestroyWindow();
}

TEST(ReportedException, OfTheFrameworkLeavesTheDialogOpen)
{
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        SCOPED_TRACE(nameOf(kind));
        TestApp::instance().forget();
        HostDialog dialog(kind);
        dialog.on["CheckButtonToggled"] = [] { AfxThrowNotSupportedException(); };
        auto answering = whenAsked()
                             .click([&] { return controlOf(dialog, IDC_BACKUP); })
                             .waitFor("the report", [] { return TestApp::instance().boxes().size() == 1; })
                             .waitFor("the dialog", [] { return asked() != nullptr; })
                             .key(VK_ESCAPE)
                             .start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
}

TEST(ClassicEvents, EachCarriesAnExceptionToTheCaller)
{
    const Outcomes expected{Outcome::Passes, Outcome::Shown, Outcome::Passes};
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    for (const ClassicDialogEvent& event : kClassicEvents) {
        FakeClassicDialog fake;
        fake.onShow = [&](HWND child) {
            if (event.happen)
                event.happen(fake, child);
        };
        HostDialog dialog(Kind::Classic, TRUE, &parent);
        if (event.declare)
            event.declare(dialog);
        for (const Raising::Kind& kind : Raising::kinds()) {
            SCOPED_TRACE(std::string(event.handler) + ", " + kind.name);
            dialog.on[event.handler] = kind.raise;
            EXPECT_EQ(outcomeOf([&] { dialog.DoModal(); }), expected.of(kind.group));
            EXPECT_EQ(fake.wasCancelledByTheUser(), kind.group == Raising::Group::Framework)
                << "others close the dialog";
            EXPECT_TRUE(parent.IsWindowEnabled());
        }
        dialog.on.clear();
        fake.onShow = nullptr;
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_TRUE(fake.wasCancelledByTheUser()) << "of the exceptions nothing is left";
    }
    parent.DestroyWindow();
}

TEST(NewStyleEvents, EachCarriesAnExceptionToTheCaller)
{
    const NewStyleEvent events[] = {
        {"OnFileNameOK", [](auto& e, auto&, auto& d) { return e.OnFileOk(&d); }, S_FALSE},
        {"OnFileNameChange", [](auto& e, auto&, auto& d) { return e.OnSelectionChange(&d); }, E_UNEXPECTED},
        {"OnInitDone", [](auto& e, auto&, auto& d) { return e.OnFolderChange(&d); }, E_UNEXPECTED},
        {"OnFolderChange", [](auto& e, auto&, auto& d) { return e.OnFolderChange(&d); }, E_UNEXPECTED},
        {"OnTypeChange", [](auto& e, auto&, auto& d) { return e.OnTypeChange(&d); }, E_UNEXPECTED},
        {"OnItemSelected", [](auto&, auto& c, auto&) { return c.OnItemSelected(nullptr, 1, 2); }, S_OK},
        {"OnButtonClicked", [](auto&, auto& c, auto&) { return c.OnButtonClicked(nullptr, 1); }, S_OK},
        {"OnCheckButtonToggled",
         [](auto&, auto& c, auto&) { return c.OnCheckButtonToggled(nullptr, 1, TRUE); }, S_OK},
        {"OnControlActivating", [](auto&, auto& c, auto&) { return c.OnControlActivating(nullptr, 1); },
         S_OK},
    };
    const Outcomes expected{Outcome::Passes, Outcome::Shown, Outcome::Passes};
    for (const NewStyleEvent& event : events)
        for (const Raising::Kind& kind : Raising::kinds()) {
            SCOPED_TRACE(std::string(event.handler) + ", " + kind.name);
            FakeShellDialog fake;
            fake.results = {L"C:\\a"};
            fake.onShow = [&](IFileDialogEvents& fileEvents) {
                IFileDialogControlEvents* controls = nullptr;
                fileEvents.QueryInterface(IID_IFileDialogControlEvents, reinterpret_cast<void**>(&controls));
                EXPECT_EQ(event.happen(fileEvents, *controls, *fake.dialog()), event.refused);
                controls->Release();
                return HRESULT_FROM_WIN32(ERROR_CANCELLED);
            };
            const RaisingDialog dialog;
            for (int time = 0; time < 2; ++time) { // once a time, and no other is left
                const Raising raising(event.handler, kind);
                EXPECT_EQ(outcomeOf([&] { dialog.DoModal(); }), expected.of(kind.group));
                EXPECT_TRUE(raising.happened());
            }
        }
}

namespace
{

/// A host whose handlers raise at every event.
class Unlucky : public COVOFileDialog
{
public:
    Unlucky()
        : COVOFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE)
    {
    }

protected:
    BOOL OnFileNameOK(BOOL) override { throw std::runtime_error("of the file"); }
    void OnItemSelected(DWORD, DWORD item) override { throw static_cast<int>(item); }
};

void selectItem(IFileDialogEvents& events, DWORD item)
{
    IFileDialogControlEvents* controls = nullptr;
    events.QueryInterface(IID_IFileDialogControlEvents, reinterpret_cast<void**>(&controls));
    controls->OnItemSelected(nullptr, 1, item);
    controls->Release();
}

} // namespace

TEST(NewStyleEvents, OfSeveralExceptionsTheFirstComesOutAndNoneIsLeft)
{
    constexpr HRESULT kCancelled = HRESULT_FROM_WIN32(ERROR_CANCELLED);
    FakeShellDialog fake;
    const Unlucky dialog;
    fake.onShow = [&](IFileDialogEvents& events) {
        selectItem(events, 7);
        EXPECT_EQ(fake.closed, kCancelled) << "it has no window that a timer could close";
        selectItem(events, 8);
        return kCancelled;
    };
    try {
        dialog.DoModal();
        ADD_FAILURE() << "nothing was raised";
    } catch (const int item) {
        EXPECT_EQ(item, 7);
    }
    fake.onShow = [&](IFileDialogEvents& events) {
        selectItem(events, 9);
        events.OnFileOk(fake.dialog()); // what this raises comes out, since the framework's goes first
        return kCancelled;
    };
    EXPECT_ANY_THROW(dialog.DoModal());
    fake.onShow = [](IFileDialogEvents&) { return kCancelled; };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "of the other one nothing is left";
}

TEST(ClassicSelection, OfNothingRaisesTheErrorOfIntegers)
{
    HostDialog dialog(Kind::Classic);
    bool raised = false;
    auto answering =
        whenAsked()
            .then([&] {
                const HWND combo = controlOf(dialog, IDC_FORMAT);
                ::SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
                ::PostMessageW(dialog.DialogWnd()->m_hWnd, WM_COMMAND, MAKEWPARAM(IDC_FORMAT, CBN_SELCHANGE),
                               reinterpret_cast<LPARAM>(combo));
            })
            .start();
    try {
        dialog.DoModal();
    } catch (const IntCastError&) {
        raised = true;
    }
    EXPECT_TRUE(raised);
    EXPECT_EQ(dialog.count("ItemSelected " + std::to_string(IDC_FORMAT) + " 0"), 0);
}

TEST(ClosedByItsHost, IsCancelled)
{
    // The host destroys the window that owns the dialog, in a handler of each kind of dialog.
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        SCOPED_TRACE(nameOf(kind));
        CWnd parent;
        parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                        nullptr);
        HostDialog dialog(kind, TRUE, &parent);
        dialog.on["CheckButtonToggled"] = [&] { parent.DestroyWindow(); };
        auto answering = whenAsked().click([&] { return controlOf(dialog, IDC_BACKUP); }).start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(parent.m_hWnd, nullptr);
    }
}
