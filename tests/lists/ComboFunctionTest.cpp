// selectString, SelectListboxFromText and resizeCombo.
#include "ComboScene.h"

#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

#include <cwctype>

using namespace ovo::testkit;

TEST(SelectString, SelectsTheItemThatIsTheText)
{
    ComboScene scene{L"abc", L"ab", L"ab"};
    EXPECT_EQ(selectString(scene.combo, L"ab", false), 1);
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
    EXPECT_EQ(scene.text(), L"ab");
}

TEST(SelectString, LeavesTheSelectionWhenThereIsNone)
{
    ComboScene scene{L"abc", L"AB"};
    scene.combo.SetCurSel(0);
    EXPECT_EQ(selectString(scene.combo, L"ab", false), -1);
    EXPECT_EQ(selectString(scene.combo, L"", false), -1);
    EXPECT_EQ(scene.combo.GetCurSel(), 0);
    EXPECT_EQ(scene.text(), L"abc");
}

TEST(SelectString, AnEmptyItem)
{
    ComboScene scene{L"abc", L""};
    EXPECT_EQ(selectString(scene.combo, L"", false), 1);
}

TEST(SelectString, IgnoresTheCaseOfLatinLetters)
{
    ComboScene scene{L"abc", L"Ab"};
    EXPECT_EQ(selectString(scene.combo, L"aB", true), 1);
    EXPECT_EQ(selectString(scene.combo, L"aB", false), -1);
}

TEST(SelectString, ItemsAreLoweredByTheCLibraryAndTheTextByUnicode)
{
    ASSERT_EQ(std::towlower(0x00C4), 0x00C4) << "the C library leaves A umlaut alone in this locale";
    ComboScene scene{L"\u00C4B", L"\u00E4b"};
    EXPECT_EQ(selectString(scene.combo, L"\u00C4B", true), 1)
        << "found only as it is written in small letters";
    EXPECT_EQ(selectString(scene.combo, L"\u00C4B", false), 0);
}

TEST(SelectString, TextsAroundTheLengthOfTheBuffer)
{
    for (const std::size_t length : {126u, 127u, 128u, 129u, 1000u}) {
        ComboScene scene{L"abc"};
        const std::wstring text(length, L'x');
        scene.combo.AddString((text + L"y").c_str());
        scene.combo.AddString(text.c_str());
        EXPECT_EQ(selectString(scene.combo, text.c_str(), false), 2) << length;
        EXPECT_EQ(selectString(scene.combo, std::wstring(length, L'X').c_str(), true), 2) << length;
    }
}

TEST(SelectString, ReadsOnlyItemsOfTheSameLength)
{
    static int read;
    read = 0;
    class Counting : public CComboBox
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            read += message == CB_GETLBTEXT;
            return CComboBox::WindowProc(message, wParam, lParam);
        }
    };
    ComboParent parent;
    Counting combo;
    combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 100, 100), &parent, 3);
    for (const wchar_t* item : {L"a", L"bb", L"cc", L"ddd"})
        combo.AddString(item);
    EXPECT_EQ(selectString(combo, L"cc", false), 2);
    EXPECT_EQ(read, 2);
}

TEST(SelectListboxFromText, TakesTheEditFieldsText)
{
    ComboScene scene{L"abc", L"ab"};
    scene.setText(L"ab");
    EXPECT_TRUE(scene.combo.SelectListboxFromText());
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
    scene.setText(L"AB");
    EXPECT_FALSE(scene.combo.SelectListboxFromText());
    EXPECT_EQ(scene.text(), L"AB");
}

namespace
{

SIZE g_size;
UINT g_flags;

BOOL WINAPI noteSize(HWND, HWND, int, int, int cx, int cy, UINT flags)
{
    g_size = {cx, cy};
    g_flags = flags;
    return TRUE;
}

/// A combo box that does not know its lines' height.
class Speechless : public CComboBox
{
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == CB_GETITEMHEIGHT ? CB_ERR : CComboBox::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(ResizeCombo, MakesRoomForTheLines)
{
    ComboScene scene{L"a"};
    scene.show();
    CRect closed;
    scene.combo.GetWindowRect(&closed);
    const auto dropped = [&](DWORD lines) {
        resizeCombo(scene.combo, lines);
        CRect rect;
        scene.combo.GetDroppedControlRect(&rect);
        return rect;
    };
    EXPECT_EQ(dropped(9).Height() - dropped(5).Height(), 4 * scene.combo.GetItemHeight(-1));
    EXPECT_EQ(dropped(5).Width(), closed.Width());
    CRect after;
    scene.combo.GetWindowRect(&after);
    EXPECT_EQ(after, closed) << "the closed combo box keeps its size and place";
}

TEST(ResizeCombo, AsksForExactlyThisSizeAndNothingElse)
{
    ComboScene scene{L"a"};
    CRect closed;
    scene.combo.GetWindowRect(&closed);
    const int line = scene.combo.GetItemHeight(-1);
    const ImportPatch patch(L"ovomfc.dll", "SetWindowPos", reinterpret_cast<void*>(&noteSize));
    for (const DWORD lines : {0u, 1u, 3u, 25u}) {
        resizeCombo(scene.combo, lines);
        EXPECT_EQ(g_size.cx, closed.Width());
        EXPECT_EQ(g_size.cy,
                  closed.Height() + line * static_cast<int>(lines) + 2 * ::GetSystemMetrics(SM_CYBORDER));
        EXPECT_EQ(g_flags, UINT{SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE});
    }
}

TEST(ResizeCombo, TakesLinesOf12PixelsWhenTheyAreUnknown)
{
    ComboParent parent;
    Speechless combo;
    combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 100, 100), &parent, 3);
    CRect closed;
    combo.GetWindowRect(&closed);
    const ImportPatch patch(L"ovomfc.dll", "SetWindowPos", reinterpret_cast<void*>(&noteSize));
    resizeCombo(combo, 4);
    EXPECT_EQ(g_size.cy, closed.Height() + 48 + 2 * ::GetSystemMetrics(SM_CYBORDER));
}
