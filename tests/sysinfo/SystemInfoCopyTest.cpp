// What the system information dialog leaves on the clipboard, and how long it stays there.
#include "ShownModules.h"
#include <testkit/Clipboard.h>
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <afxole.h>

#include <future>
#include <thread>

using namespace ovo::testkit;

namespace
{

void copyByCommand(Shown& shown)
{
    shown.dialog().SendMessage(WM_COMMAND, kCopy, 0);
}

/// Another program's hold on the clipboard: a thread with a window of its own that does not close it.
class Holder
{
public:
    Holder()
        : m_thread([this] { hold(); })
    {
        m_held.get_future().wait();
    }
    ~Holder()
    {
        m_over.set_value();
        m_thread.join();
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

private:
    void hold()
    {
        const HWND window =
            ::CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        EXPECT_TRUE(::OpenClipboard(window));
        m_held.set_value();
        m_over.get_future().wait();
        ::CloseClipboard();
        ::DestroyWindow(window);
    }

    std::promise<void> m_held;
    std::promise<void> m_over;
    std::thread m_thread;
};

int g_tries = 0;
int g_refused = 0;

/// Refuses the first tries.
HRESULT WINAPI setClipboard(IDataObject* object)
{
    return ++g_tries > g_refused ? ::OleSetClipboard(object) : CLIPBRD_E_CANT_OPEN;
}

class SystemInfoCopy : public ::testing::Test
{
protected:
    SystemInfoCopy()
    {
        g_tries = 0;
        g_refused = 0;
    }
    ~SystemInfoCopy() override { ::OleFlushClipboard(); }

    ImportPatch patch{L"ovomfc.dll", "OleSetClipboard", reinterpret_cast<void*>(&setClipboard)};
};

} // namespace

TEST_F(SystemInfoCopy, TheButtonPutsTheTextOnTheClipboard)
{
    Shown shown;
    present(shown.dialog());
    Robot().click(Spot{shown.dialog().GetDlgItem(kCopy)->m_hWnd}).waitFor("the text on the clipboard", [] {
        return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE;
    });
    EXPECT_EQ(clipboardText(), shown.text());
}

TEST_F(SystemInfoCopy, ItsKeyDoesTheSame)
{
    Shown shown;
    present(shown.dialog());
    Robot().holding(VK_MENU).key('C');
    EXPECT_EQ(g_tries, 1);
    EXPECT_EQ(clipboardText(), shown.text());
}

// How long it stays

TEST_F(SystemInfoCopy, TheProgramHoldsTheTextWhenTheDialogHasGone)
{
    std::wstring text;
    {
        Shown shown;
        copyByCommand(shown);
        text = shown.text();
    }
    EXPECT_NE(COleDataSource::GetClipboardOwner(), nullptr) << "the dialog does not flush";
    EXPECT_EQ(clipboardText(), text);
}

TEST_F(SystemInfoCopy, AfterAFlushTheTextOutlivesOle)
{
    std::wstring text;
    {
        Shown shown;
        copyByCommand(shown);
        text = shown.text();
    }
    COleDataSource::FlushClipboard();
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), nullptr);
    AfxOleTerm();
    EXPECT_EQ(clipboardText(), text);
    ASSERT_TRUE(AfxOleInit());
    EXPECT_EQ(clipboardText(), text);
}

TEST_F(SystemInfoCopy, WithoutOneTheFrameworkLeavesItThereWhenItEndsOle)
{
    std::wstring text;
    {
        Shown shown;
        copyByCommand(shown);
        text = shown.text();
    }
    AfxOleTerm();
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), nullptr);
    EXPECT_EQ(clipboardText(), text);
    ASSERT_TRUE(AfxOleInit());
}

// A clipboard in use

TEST_F(SystemInfoCopy, AClipboardThatIsFreeAfterAMomentGetsTheText)
{
    g_refused = 3;
    Shown shown;
    copyByCommand(shown);
    EXPECT_EQ(g_tries, 4);
    EXPECT_TRUE(TestApp::instance().boxes().empty());
    EXPECT_EQ(clipboardText(), shown.text());
}

TEST_F(SystemInfoCopy, OneThatStaysInUseIsSaidClearlyAndNothingIsLost)
{
    Shown shown;
    copyByCommand(shown);
    const std::wstring before = clipboardText();
    shown.dialog().ShowWindow(SW_HIDE);
    const Library module(L"sysinfo_odd_type.dll");
    shown.dialog().ShowWindow(SW_SHOW);
    const std::wstring text = shown.text();
    ASSERT_NE(text, before);

    g_tries = 0;
    {
        const Holder holder;
        copyByCommand(shown);
    }
    EXPECT_GT(g_tries, 1);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_NE(TestApp::instance().boxes()[0].text.find(L"another program is using the clipboard"),
              std::wstring::npos);
    EXPECT_TRUE(shown.dialog().IsWindowVisible());
    EXPECT_EQ(shown.text(), text);
    EXPECT_EQ(clipboardText(), before);

    copyByCommand(shown);
    EXPECT_EQ(clipboardText(), text) << "the next try";
}

TEST_F(SystemInfoCopy, WithoutOleItIsSaidThatTheProgramHasNotStartedIt)
{
    Shown shown;
    AfxOleTerm();
    copyByCommand(shown);
    ASSERT_TRUE(AfxOleInit());
    EXPECT_EQ(g_tries, 1) << "there is nothing to wait for";
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_NE(TestApp::instance().boxes()[0].text.find(L"has not started OLE"), std::wstring::npos);
    EXPECT_TRUE(shown.dialog().IsWindowVisible());
}
