// The text of the message box: line ends, selecting, copying.
#include "MessageBoxScene.h"

#include <testkit/Clipboard.h>
#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

int s_refusals = 0;

HGLOBAL WINAPI noMemory(UINT, SIZE_T)
{
    ++s_refusals;
    ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

Story copyUntil(std::function<bool()> condition)
{
    return whenOpen().chordUntil("the copying", VK_CONTROL, 'C', std::move(condition)).key(VK_ESCAPE);
}

} // namespace

TEST(MessageBoxText, EveryKindOfLineEndStartsANewLine)
{
    inspect({.text = L"oak\r\nelm\nash\rfir\u2028yew\u2029box"}, [](HWND box) {
        EXPECT_EQ(windowText(textControl(box)), L"oak\r\nelm\r\nash\r\nfir\r\nyew\r\nbox");
        EXPECT_EQ(::SendMessageW(textControl(box), EM_GETLINECOUNT, 0, 0), 6);
    });
}

TEST(MessageBoxText, AmpersandsAreText)
{
    inspect({.text = L"Oak & elm"}, [](HWND box) { EXPECT_EQ(windowText(textControl(box)), L"Oak & elm"); });
}

TEST(MessageBoxText, TabsAndAmpersandsHaveTheRoomInWhichTheyAreShown)
{
    const auto linesOf = [](const wchar_t* message) {
        LRESULT lines = 0;
        inspect({.text = message},
                [&](HWND box) { lines = ::SendMessageW(textControl(box), EM_GETLINECOUNT, 0, 0); });
        return lines;
    };
    EXPECT_EQ(linesOf(L"Name\tColour\tSize\nOak\tbrown\tlarge"), 2);
    EXPECT_EQ(linesOf(L"Oak & elm & ash & fir & yew & box"), 1);
}

TEST(MessageBoxText, NoTextIsAnEmptyMessage)
{
    inspect({.text = L""}, [](HWND box) { EXPECT_EQ(windowText(textControl(box)), L""); });
    inspect({.text = nullptr}, [](HWND box) { EXPECT_EQ(windowText(textControl(box)), L""); });
}

TEST(MessageBoxText, CannotBeTypedOver)
{
    auto typing = whenOpen()
                      .click([] { return textControl(openBox()); })
                      .type(L"elm")
                      .then([] { EXPECT_EQ(windowText(textControl(openBox())), L"The message."); })
                      .key(VK_ESCAPE)
                      .start();
    EXPECT_EQ(show({}), IDCANCEL);
}

TEST(MessageBoxText, CtrlCCopiesTheWholeMessageWhenNothingIsSelected)
{
    emptyClipboard();
    auto copying = whenOpen()
                       .chordUntil("the text on the clipboard", VK_CONTROL, 'C',
                                   [] { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; })
                       .key(VK_ESCAPE)
                       .start();
    show({.text = L"oak\nelm"});
    copying.finish();
    EXPECT_EQ(clipboardText(), L"oak\r\nelm");
}

TEST(MessageBoxText, CtrlCCopiesTheSelectionWhereverTheFocusIs)
{
    for (const bool focusInText : {true, false}) {
        emptyClipboard();
        auto copying = whenOpen()
                           .then([focusInText] {
                               if (focusInText)
                                   ::SetFocus(textControl(openBox()));
                               ::SendMessageW(textControl(openBox()), EM_SETSEL, 4, 7);
                           })
                           .chordUntil("the text on the clipboard", VK_CONTROL, 'C',
                                       [] { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; })
                           .key(VK_ESCAPE)
                           .start();
        show({.text = L"oak elm ash"});
        copying.finish();
        EXPECT_EQ(clipboardText(), L"elm");
    }
}

TEST(MessageBoxText, WithoutMemoryForACopyTheClipboardKeepsWhatItHas)
{
    emptyClipboard();
    {
        auto first = copyUntil([] { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; }).start();
        show({.text = L"oak"});
    }
    s_refusals = 0;
    {
        const ImportPatch patch{L"ovoui.dll", "GlobalAlloc", reinterpret_cast<void*>(&noMemory)};
        auto second = copyUntil([] { return s_refusals > 0; }).start();
        show({.text = L"elm"});
    }
    EXPECT_EQ(clipboardText(), L"oak");
}

TEST(MessageBoxText, CanBeSelectedWithTheMouse)
{
    emptyClipboard();
    auto selecting = whenOpen()
                         .doubleClick([] {
                             CRect text = screenRect(textControl(openBox()));
                             return CPoint(text.left + 8, text.top + 8);
                         })
                         .then([] { ::SendMessageW(textControl(openBox()), WM_COPY, 0, 0); })
                         .key(VK_ESCAPE)
                         .start();
    show({.text = L"Oakwood"});
    selecting.finish();
    EXPECT_EQ(clipboardText(), L"Oakwood");
}
