// A frame with a text and a modeless dialog that finds in it.
#include <testkit/RunningProgram.h>
#include "finder/Resource.h"

#include <afxres.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr wchar_t kText[] = L"An oak, an elm, an Oak.";

class Finder : public ::testing::Test
{
protected:
    Finder()
    {
        m_program.type(kText);
        m_program.waitFor("the text", [this] { return textOf(editor()) == kText; });
        m_program.key(VK_HOME);
    }

    HWND editor() const { return ::GetDlgItem(m_program.main(), AFX_IDW_PANE_FIRST); }

    HWND openDialog()
    {
        const auto inFront = [] { return textOf(::GetForegroundWindow()) == L"Find"; };
        m_program.tryUntil(
            "the dialog", [this] { m_program.chord(VK_CONTROL, 'F'); }, inFront);
        return m_program.window(L"Find");
    }

    void waitForSelection(int start, int end)
    {
        m_program.waitFor("the selection from " + std::to_string(start), [=, this] {
            return ::SendMessageW(editor(), EM_GETSEL, 0, 0) == MAKELONG(start, end);
        });
    }

    void close()
    {
        ::SetForegroundWindow(m_program.main());
        m_program.closeByKeys();
        EXPECT_EQ(m_program.waitForEnd(), 0u);
    }

    RunningProgram m_program{L"mfc_program_finder"};
};

} // namespace

TEST_F(Finder, FindsOneAfterTheOtherAndBeginsAgain)
{
    const HWND dialog = openDialog();
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, IDC_FIND_NEXT))) << "there is nothing to find yet";
    m_program.type(L"oak");
    m_program.waitFor("the button",
                      [&] { return ::IsWindowEnabled(::GetDlgItem(dialog, IDC_FIND_NEXT)) != FALSE; });
    m_program.key(VK_RETURN);
    waitForSelection(3, 6);
    m_program.key(VK_RETURN);
    waitForSelection(19, 22);
    m_program.key(VK_RETURN);
    waitForSelection(3, 6);
    close();
}

TEST_F(Finder, MayRespectTheCase)
{
    const HWND dialog = openDialog();
    m_program.type(L"Oak");
    m_program.chord(VK_MENU, 'C');
    m_program.waitFor("the mark", [&] {
        return ::SendMessageW(::GetDlgItem(dialog, IDC_MATCH_CASE), BM_GETCHECK, 0, 0) == BST_CHECKED;
    });
    m_program.key(VK_RETURN);
    waitForSelection(19, 22);
    close();
}

TEST_F(Finder, StaysOpenWhileTheTextIsEdited)
{
    const HWND dialog = openDialog();
    m_program.type(L"elm");
    EXPECT_TRUE(::IsWindowEnabled(m_program.main())) << "the dialog is not modal";
    m_program.click(editor(), CPoint(60, 260)); // below the dialog
    m_program.waitFor("the frame in front", [this] { return ::GetForegroundWindow() == m_program.main(); });
    m_program.chord(VK_CONTROL, VK_END);
    m_program.type(L" Elm");
    m_program.waitFor("the longer text",
                      [this] { return textOf(editor()) == std::wstring(kText) + L" Elm"; });
    EXPECT_TRUE(::IsWindowVisible(dialog));
    // Wine puts a frame that is clicked in front of the dialog that it owns.
    const auto findNext = [&] {
        ::SetForegroundWindow(dialog);
        m_program.waitFor("the dialog in front", [&] { return ::GetForegroundWindow() == dialog; });
        m_program.click(::GetDlgItem(dialog, IDC_FIND_NEXT));
    };
    m_program.tryUntil("the elm", findNext, [this] {
        const LRESULT selection = ::SendMessageW(editor(), EM_GETSEL, 0, 0);
        return selection == MAKELONG(11, 14);
    });
    close();
}

TEST_F(Finder, TellsWhatItCannotFind)
{
    openDialog();
    m_program.type(L"ash");
    m_program.key(VK_RETURN);
    const HWND box = m_program.window(L"mfc_program_finder");
    bool told = false;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        told = told || textOf(child) == L"\"ash\" was not found.";
    EXPECT_TRUE(told);
    m_program.key(VK_ESCAPE);
    m_program.window(L"Find");
    close();
}

TEST_F(Finder, OpensItsDialogOnceAndAgainAfterItWasClosed)
{
    const HWND first = openDialog();
    ::SetForegroundWindow(m_program.main());
    m_program.waitFor("the frame in front", [this] { return ::GetForegroundWindow() == m_program.main(); });
    EXPECT_EQ(openDialog(), first);
    m_program.key(VK_ESCAPE);
    m_program.waitFor("the dialog to go", [&] { return !::IsWindow(first); });
    EXPECT_TRUE(::IsWindow(openDialog()));
    close();
}
