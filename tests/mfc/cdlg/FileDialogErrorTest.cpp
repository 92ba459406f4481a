// Exceptions out of the handlers, in both kinds of dialog.
#include "FakeShellDialog.h"
#include "FileDialogScene.h"
#include "resource.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

class FileDialogError : public testing::TestWithParam<Kind>
{
protected:
    Kind kind() const { return GetParam(); }
    TemporaryFiles files{L"a.txt"};
};

/// Whether the dialog closes by itself and DoModal raises what the handler did.
bool comesOut(RecordingFileDialog& dialog)
{
    try {
        dialog.DoModal();
    } catch (const std::runtime_error& error) {
        return std::string(error.what()) == "of the handler";
    }
    return false;
}

[[noreturn]] void fail()
{
    throw std::runtime_error("of the handler");
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, FileDialogError, testing::Values(Kind::Classic, Kind::Newer),
                         [](const auto& info) { return nameOf(info.param); });

TEST_P(FileDialogError, OfTheBeginningClosesTheDialogAndComesOut)
{
    for (const char* handler : {"InitDone", "FolderChange", "FileNameChange"}) {
        SCOPED_TRACE(handler);
        if (kind() == Kind::Newer && std::string(handler) == "FileNameChange")
            continue; // nothing is selected at the beginning there
        RecordingFileDialog dialog(kind());
        dialog.startIn(files.folder());
        dialog.on[handler] = [] { fail(); };
        EXPECT_TRUE(comesOut(dialog));
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(dialog.m_dwRef, 1);
    }
}

TEST_P(FileDialogError, OfTheCheckClosesTheDialogAndComesOut)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    dialog.onFileNameOK = []() -> BOOL { fail(); };
    auto answering = whenAsked().type(L"a.txt").key(VK_RETURN).start();
    EXPECT_TRUE(comesOut(dialog));
    EXPECT_EQ(dialog.count("FileNameOK"), 1);
}

TEST_P(FileDialogError, OfATypeChangeComesOut)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_NOCHANGEDIR, L"Text|*.txt|All|*.*||");
    dialog.startIn(files.folder());
    bool ready = false;
    dialog.on["TypeChange"] = [&] {
        if (ready)
            fail();
    };
    auto answering = whenAsked()
                         .then([&] { ready = true; })
                         .click([] { return controlWithText(L"Text"); })
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .start();
    EXPECT_TRUE(comesOut(dialog));
}

TEST_P(FileDialogError, LeavesTheOwnerEnabledAndTheDialogUsable)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                   nullptr);
    RecordingFileDialog dialog(kind(), TRUE, OFN_NOCHANGEDIR, nullptr, &owner);
    dialog.startIn(files.folder());
    dialog.on["InitDone"] = [] { fail(); };
    EXPECT_TRUE(comesOut(dialog));
    EXPECT_TRUE(owner.IsWindowEnabled());
    dialog.on.clear();
    auto answering = whenAsked().type(L"a.txt").key(VK_RETURN).start();
    EXPECT_EQ(dialog.DoModal(), IDOK);
    owner.DestroyWindow();
}

TEST_P(FileDialogError, OfTheFrameworkIsReportedAndTheFileRefused)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    bool first = true;
    dialog.onFileNameOK = [&] {
        if (std::exchange(first, false))
            AfxThrowNotSupportedException();
        return FALSE;
    };
    auto answering = whenAsked()
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .waitFor("the report", [] { return TestApp::instance().boxes().size() == 1; })
                         .key(VK_RETURN)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.count("FileNameOK"), 2);
}

TEST_P(FileDialogError, OfADialogInsideADialogStaysThere)
{
    RecordingFileDialog outer(kind());
    outer.startIn(files.folder());
    bool inside = false;
    outer.on["InitDone"] = [&] {
        RecordingFileDialog inner(kind());
        inner.startIn(files.folder());
        inner.on["InitDone"] = [] { fail(); };
        inside = comesOut(inner);
    };
    auto answering = Robot()
                         .waitFor("the outer dialog", [&] { return inside && asked() != nullptr; })
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .start();
    EXPECT_EQ(outer.DoModal(), IDOK);
    EXPECT_TRUE(inside);
}

TEST(ClassicFileDialogError, OfItsControlsAndItsInitialisationComesOut)
{
    class Failing : public RecordingFileDialog
    {
    public:
        explicit Failing(UINT when)
            : RecordingFileDialog(Kind::Classic)
            , m_when(when)
        {
            SetTemplate(0u, IDD_CHILD);
        }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == m_when && (message != WM_COMMAND || LOWORD(wParam) == IDC_PUSH))
                fail();
            return RecordingFileDialog::WindowProc(message, wParam, lParam);
        }

    private:
        UINT m_when;
    };
    {
        Failing dialog(WM_COMMAND);
        auto answering = whenAsked().click([&] { return dialog.GetDlgItem(IDC_PUSH)->m_hWnd; }).start();
        EXPECT_TRUE(comesOut(dialog));
    }
    for (const UINT message : {static_cast<UINT>(WM_INITDIALOG), static_cast<UINT>(WM_SIZE)}) {
        Failing dialog(message);
        EXPECT_TRUE(comesOut(dialog)) << message;
    }
    {
        RecordingFileDialog dialog(Kind::Classic);
        dialog.on["InitDialog"] = [] { fail(); };
        EXPECT_TRUE(comesOut(dialog));
    }
}

TEST(ShellFileDialogError, OfEachEventComesOut)
{
    using Event = std::function<void(IFileDialogEvents&, IFileDialogControlEvents&, IFileDialog&)>;
    const std::map<std::string, Event> events{
        {"FileNameChange", [](auto& e, auto&, auto& d) { EXPECT_TRUE(FAILED(e.OnSelectionChange(&d))); }},
        {"FolderChange", [](auto& e, auto&, auto& d) { EXPECT_TRUE(FAILED(e.OnFolderChange(&d))); }},
        {"TypeChange", [](auto& e, auto&, auto& d) { EXPECT_TRUE(FAILED(e.OnTypeChange(&d))); }},
        {"FileNameOK", [](auto& e, auto&, auto& d) { EXPECT_EQ(e.OnFileOk(&d), S_FALSE); }},
        {"ShareViolation",
         [](auto& e, auto&, auto& d) {
             IShellItem* item = nullptr;
             d.GetResult(&item);
             FDE_SHAREVIOLATION_RESPONSE response{};
             EXPECT_TRUE(FAILED(e.OnShareViolation(&d, item, &response)));
             item->Release();
         }},
        {"ItemSelected", [](auto&, auto& c, auto&) { EXPECT_TRUE(FAILED(c.OnItemSelected(nullptr, 1, 2))); }},
        {"ButtonClicked", [](auto&, auto& c, auto&) { EXPECT_TRUE(FAILED(c.OnButtonClicked(nullptr, 1))); }},
        {"CheckButtonToggled",
         [](auto&, auto& c, auto&) { EXPECT_TRUE(FAILED(c.OnCheckButtonToggled(nullptr, 1, TRUE))); }},
        {"ControlActivating",
         [](auto&, auto& c, auto&) { EXPECT_TRUE(FAILED(c.OnControlActivating(nullptr, 1))); }},
    };
    for (const auto& [handler, event] : events) {
        SCOPED_TRACE(handler);
        FakeShellDialog fake;
        fake.results = {L"C:\\a"};
        RecordingFileDialog dialog(Kind::Newer);
        dialog.on[handler] = [] { fail(); };
        fake.onShow = [&fake, &event = event](IFileDialogEvents& fileEvents) {
            IFileDialogControlEvents* controls = nullptr;
            fileEvents.QueryInterface(IID_IFileDialogControlEvents, reinterpret_cast<void**>(&controls));
            event(fileEvents, *controls, *fake.dialog());
            controls->Release();
            return HRESULT_FROM_WIN32(ERROR_CANCELLED);
        };
        EXPECT_TRUE(comesOut(dialog));
        EXPECT_EQ(dialog.m_dwRef, 1);
    }
}

TEST_P(FileDialogError, OfShowingADialogThatIsShown)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto showTwice = [this] {
        RecordingFileDialog dialog(kind());
        dialog.on["InitDone"] = [&] { dialog.DoModal(); };
        dialog.DoModal();
    };
    EXPECT_DEATH(showTwice(), "assertion failed");
}
