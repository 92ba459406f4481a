// COVOFileDialog: a host whose handlers throw.
#include "HostDialog.h"
#include "resource.h"

#include "mfc/cdlg/FakeShellDialog.h"
#include <testkit/TestApp.h>

#include <ovocor/IntCast.h>

#include <gtest/gtest.h>

#include <commdlg.h>

#include <stdexcept>

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

[[noreturn]] void fail()
{
    throw std::runtime_error("of the handler");
}

bool comesOut(const HostDialog& dialog)
{
    try {
        dialog.DoModal();
    } catch (const std::runtime_error& error) {
        return std::string(error.what()) == "of the handler";
    }
    return false;
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

class MisdeedTest : public testing::TestWithParam<Misdeed>
{
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
    const Misdeed& misdeed = GetParam();
    TemporaryFiles files{L"a.txt"};
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    {
        HostDialog dialog(misdeed.kind, TRUE, &parent);
        dialog.startIn(files.folder());
        dialog.on[misdeed.handler] = [] { fail(); };
        std::vector<Performance> acts;
        if (misdeed.provoke)
            misdeed.provoke(dialog, acts);
        EXPECT_TRUE(comesOut(dialog));
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

TEST(NewStyleEvents, EachCarriesAnExceptionToTheCaller)
{
    /// Without controls, which the dialog made by the test does not take.
    class Failing : public COVOFileDialog
    {
    public:
        Failing()
            : COVOFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE)
        {
        }

    protected:
        BOOL OnFileNameOK(BOOL) override { fail(); }
        void OnFileNameChange() override { fail(); }
        void OnItemSelected(DWORD, DWORD) override { fail(); }
        void OnButtonClicked(DWORD) override { fail(); }
        void OnCheckButtonToggled(DWORD, BOOL) override { fail(); }
        void OnControlActivating(DWORD) override { fail(); }
    };
    using Event = void (*)(IFileDialogEvents&, IFileDialogControlEvents&, IFileDialog&);
    const Event events[] = {
        [](auto& e, auto&, auto& d) { EXPECT_EQ(e.OnFileOk(&d), S_FALSE); },
        [](auto& e, auto&, auto& d) { e.OnSelectionChange(&d); },
        [](auto&, auto& c, auto&) { EXPECT_EQ(c.OnItemSelected(nullptr, 1, 2), S_OK); },
        [](auto&, auto& c, auto&) { EXPECT_EQ(c.OnButtonClicked(nullptr, 1), S_OK); },
        [](auto&, auto& c, auto&) { EXPECT_EQ(c.OnCheckButtonToggled(nullptr, 1, TRUE), S_OK); },
        [](auto&, auto& c, auto&) { EXPECT_EQ(c.OnControlActivating(nullptr, 1), S_OK); },
    };
    for (const Event event : events) {
        FakeShellDialog fake;
        fake.results = {L"C:\\a"};
        fake.onShow = [&](IFileDialogEvents& fileEvents) {
            IFileDialogControlEvents* controls = nullptr;
            fileEvents.QueryInterface(IID_IFileDialogControlEvents, reinterpret_cast<void**>(&controls));
            event(fileEvents, *controls, *fake.dialog());
            controls->Release();
            return HRESULT_FROM_WIN32(ERROR_CANCELLED);
        };
        const Failing dialog;
        EXPECT_THROW(dialog.DoModal(), std::runtime_error) << &event - events;
        EXPECT_THROW(dialog.DoModal(), std::runtime_error)
            << &event - events; // once a time, and no other is left
    }
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
