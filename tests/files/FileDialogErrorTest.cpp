// COVOFileDialog: a host whose handlers throw.
#include "HostDialog.h"
#include "resource.h"

#include "mfc/cdlg/FakeShellDialog.h"
#include <support/Raising.h>
#include <testkit/TestApp.h>

#include <ovocor/IntCast.h>

#include <gtest/gtest.h>

#include <commdlg.h>

#include <cstdlib>
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
    /// The kinds of exceptions that come out of the dialog. A real dialog takes long, so each handler raises
    /// another one, and all of them where OVO_ALL_KINDS is set.
    static std::vector<Raising::Kind> kinds()
    {
        std::vector<Raising::Kind> all = Raising::kinds();
        std::erase_if(all, [](const auto& kind) { return kind.group == Raising::Group::Framework; });
        if (std::getenv("OVO_ALL_KINDS"))
            return all;
        static std::size_t s_next = 0;
        return {all[s_next++ % all.size()]};
    }

    static void misbehave(const Misdeed& misdeed, const Raising::Kind& kind)
    {
        TemporaryFiles files{L"a.txt"};
        CWnd parent;
        parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                        nullptr);
        {
            HostDialog dialog(misdeed.kind, TRUE, &parent);
            dialog.startIn(files.folder());
            dialog.on[misdeed.handler] = kind.raise;
            std::vector<Performance> acts;
            if (misdeed.provoke)
                misdeed.provoke(dialog, acts);
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
    for (const Raising::Kind& kind : kinds()) {
        SCOPED_TRACE(kind.name);
        misbehave(GetParam(), kind);
    }
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
    const NewStyleEvent events[] = {
        {"OnFileNameOK", [](auto& e, auto&, auto& d) { return e.OnFileOk(&d); }, S_FALSE},
        {"OnFileNameChange", [](auto& e, auto&, auto& d) { return e.OnSelectionChange(&d); }, E_UNEXPECTED},
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
