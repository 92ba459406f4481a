// Long texts in the message box: wrapping, scrolling, and what programs read out of the text control.
#include <testkit/Clipboard.h>
#include <testkit/ImportPatch.h>
#include "MessageBoxScene.h"

#include <gtest/gtest.h>

#include <optional>

using namespace ovo::testkit;

namespace
{

int g_screenWidth = 0;
int g_dotsPerInch = 0;

/// A screen of another width or resolution.
int WINAPI otherScreen(HDC dc, int index)
{
    if (index == HORZRES && g_screenWidth)
        return g_screenWidth;
    if (index == LOGPIXELSX && g_dotsPerInch)
        return g_dotsPerInch;
    return ::GetDeviceCaps(dc, index);
}

/// In force while the object lives; 0 leaves the real one.
class OtherScreen
{
public:
    explicit OtherScreen(int width, int dotsPerInch = 0)
        : m_patch(L"ovomfc.dll", "GetDeviceCaps", reinterpret_cast<void*>(&otherScreen))
    {
        g_screenWidth = width;
        g_dotsPerInch = dotsPerInch;
    }
    ~OtherScreen() { g_screenWidth = g_dotsPerInch = 0; }

private:
    ImportPatch m_patch;
};

/// Words of three to eleven letters in one paragraph.
std::wstring prose(int words)
{
    std::wstring text;
    for (int i = 0; i < words; ++i) {
        const int length = 3 + i * 7 % 9;
        for (int k = 0; k < length; ++k)
            text += static_cast<wchar_t>(L'a' + (i + 3 * k) % 26);
        text += L' ';
    }
    text.pop_back();
    return text;
}

LRESULT send(HWND wnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ::SendMessageW(wnd, message, wParam, lParam);
}

DWORD scrollBars(HWND text)
{
    return static_cast<DWORD>(::GetWindowLongW(text, GWL_STYLE)) & (WS_VSCROLL | WS_HSCROLL);
}

/// How far a bar can be moved, in its own units.
int scrollRange(HWND text, int bar)
{
    SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    if (!::GetScrollInfo(text, bar, &info))
        return 0;
    return std::max(0, info.nMax - info.nMin + 1 - static_cast<int>(info.nPage));
}

CPoint placeOf(HWND text, std::size_t position)
{
    const LRESULT place = send(text, EM_POSFROMCHAR, position);
    return {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
}

bool isInView(HWND text, std::size_t position)
{
    CRect client;
    ::GetClientRect(text, &client);
    return client.PtInRect(placeOf(text, position)) != FALSE;
}

/// Goes through the text as a reader does, word by word, and gives the first that does not come into view.
std::optional<std::size_t> wordOutOfReach(HWND text, const std::wstring& message)
{
    for (std::size_t begin = 0; begin < message.size();) {
        const std::size_t end = std::min(message.find_first_of(L" \r", begin), message.size());
        for (const std::size_t position : {begin, end - 1}) {
            send(text, EM_SETSEL, position, static_cast<LPARAM>(position));
            send(text, EM_SCROLLCARET);
            if (!isInView(text, position))
                return position;
        }
        begin = message.find_first_not_of(L" \r\n", end);
    }
    return std::nullopt;
}

std::wstring selected(HWND text, const std::wstring& message)
{
    DWORD start = 0;
    DWORD end = 0;
    send(text, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return message.substr(start, end - start);
}

/// How many words on how wide a screen; 0 is the real one.
const struct
{
    int words;
    int screen;
} kTexts[] = {{100, 0}, {100, 320}, {300, 640}, {500, 320}, {1200, 0}, {1200, 800}, {5000, 0}};

} // namespace

TEST(MessageBoxWrap, AParagraphOfAnyLengthIsWrappedAndCanBeReadToItsEnd)
{
    for (const auto& [words, screen] : kTexts) {
        const OtherScreen narrow(screen);
        const std::wstring message = prose(words);
        inspect({.text = message.c_str()}, [&, words = words, screen = screen](HWND box) {
            const HWND text = textControl(box);
            SCOPED_TRACE(std::to_string(words) + " words, screen " + std::to_string(screen));
            EXPECT_GT(send(text, EM_GETLINECOUNT), words / 40);
            EXPECT_EQ(scrollRange(text, SB_HORZ), 0) << "all fits";
            EXPECT_EQ(windowText(text), message);
            EXPECT_EQ(wordOutOfReach(text, message), std::nullopt);
        });
    }
}

TEST(MessageBoxWrap, LinesBeginWithWords)
{
    const std::wstring message = prose(300);
    inspect({.text = message.c_str()}, [&message](HWND box) {
        const HWND text = textControl(box);
        const LRESULT lines = send(text, EM_GETLINECOUNT);
        ASSERT_GT(lines, 3);
        for (LRESULT line = 1; line < lines; ++line) {
            const auto begin = static_cast<std::size_t>(send(text, EM_LINEINDEX, static_cast<WPARAM>(line)));
            ASSERT_LT(begin, message.size());
            EXPECT_EQ(message[begin - 1], L' ') << line;
        }
    });
}

TEST(MessageBoxWrap, AWordThatFitsNoLineIsScrolledWhileTheRestIsWrapped)
{
    const std::wstring longWord(400, L'W');
    for (const auto& [words, screen] : kTexts) {
        const OtherScreen narrow(screen);
        const std::wstring half = prose(words / 2);
        const std::wstring message = half + L" " + longWord + L" " + half;
        inspect({.text = message.c_str()}, [&, words = words, screen = screen](HWND box) {
            const HWND text = textControl(box);
            SCOPED_TRACE(std::to_string(words) + " words, screen " + std::to_string(screen));
            EXPECT_EQ(windowText(text), message);
            EXPECT_EQ(wordOutOfReach(text, message), std::nullopt);
            if (!(scrollBars(text) & WS_HSCROLL))
                return; // without the bar the word goes on in the next line
            EXPECT_GT(scrollRange(text, SB_HORZ), 0);
            const auto line = send(text, EM_LINEFROMCHAR, half.size() + 1);
            EXPECT_EQ(send(text, EM_LINEFROMCHAR, half.size() + longWord.size()), line);
            EXPECT_EQ(send(text, EM_LINEINDEX, static_cast<WPARAM>(line)),
                      static_cast<LRESULT>(half.size() + 1));
            // The words before and after can be read without scrolling sideways.
            send(text, WM_HSCROLL, SB_LEFT);
            CRect client;
            ::GetClientRect(text, &client);
            for (std::size_t i = 0; i < half.size(); ++i)
                ASSERT_LE(placeOf(text, i).x, client.right) << i;
        });
    }
}

TEST(MessageBoxWrap, AScriptWithoutBlanksIsBrokenAtAnyOfItsCharacters)
{
    const std::wstring message = std::wstring(10, L'\u6728') + L' ' + std::wstring(600, L'\u6728');
    inspect({.text = message.c_str()}, [&message](HWND box) {
        const HWND text = textControl(box);
        EXPECT_EQ(windowText(text), message);
        EXPECT_GT(send(text, EM_LINEINDEX, 1), 11)
            << "the first line is filled, and does not end at the blank";
    });
}

TEST(MessageBoxWrap, TheBarsComeAsSoonAsTheLinesAndTheWidthAskForThem)
{
    // Wrapped prose reaches the width limit, so more than 15 lines of it have both bars.
    const std::wstring manyLines = prose(600);
    inspect({.text = manyLines.c_str()}, [](HWND box) {
        EXPECT_EQ(scrollBars(textControl(box)), static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL));
    });
    const std::wstring fewLines = prose(100);
    inspect({.text = fewLines.c_str()}, [](HWND box) { EXPECT_EQ(scrollBars(textControl(box)), 0u); });
    const std::wstring narrowLines = numberedLines(20);
    inspect({.text = narrowLines.c_str()},
            [](HWND box) { EXPECT_EQ(scrollBars(textControl(box)), static_cast<DWORD>(WS_VSCROLL)); });
}

TEST(MessageBoxWrap, AScrolledTextScrollsByTheLinesThatAreShown)
{
    const struct
    {
        std::wstring message;
        int shown;
    } rows[] = {{numberedLines(40), 15}, {prose(1200), 13}}; // a horizontal bar takes the room of two lines
    for (const auto& row : rows)
        inspect({.text = row.message.c_str()}, [&row](HWND box) {
            const HWND text = textControl(box);
            const auto lines = static_cast<int>(send(text, EM_GETLINECOUNT));
            EXPECT_EQ(scrollRange(text, SB_VERT), lines - row.shown);
            send(text, WM_VSCROLL, SB_BOTTOM);
            EXPECT_EQ(send(text, EM_GETFIRSTVISIBLELINE), lines - row.shown);
            EXPECT_EQ(::GetScrollPos(text, SB_VERT), lines - row.shown);
        });
}

TEST(MessageBoxWrap, TheTextEndsAboveTheButtons)
{
    for (const std::wstring& message : {prose(30), numberedLines(15), numberedLines(40), prose(1200)})
        inspect({.text = message.c_str()}, [](HWND box) {
            EXPECT_LE(placeInParent(textControl(box)).bottom, placeInParent(::GetDlgItem(box, IDOK)).top);
        });
}

TEST(MessageBoxWrap, AShortTextNeverHidesItsLastLine)
{
    // Texts of up to 15 lines have no bar: what is wrapped otherwise than measured would be lost below the
    // edge.
    for (int words = 5; words < 150; words += 7)
        for (const int screen : {400, 700, 1280}) {
            const OtherScreen narrow(screen);
            const std::wstring message = prose(words) + L"  end ";
            inspect({.text = message.c_str()}, [&](HWND box) {
                const HWND text = textControl(box);
                if (scrollBars(text))
                    return;
                EXPECT_TRUE(isInView(text, message.size() - 2)) << words << " words, screen " << screen;
                EXPECT_TRUE(isInView(text, 0));
            });
        }
}

TEST(MessageBoxWrap, SelectionsAreThoseOfTheMessage)
{
    const std::wstring message = prose(700) + L"\r\n" + prose(50);
    inspect({.text = message.c_str()}, [&](HWND box) {
        const HWND text = textControl(box);
        for (const std::size_t begin : {std::size_t{0}, std::size_t{900}, message.size() - 40}) {
            const std::size_t word = message.find_first_not_of(L" \r\n", message.find(L' ', begin));
            send(text, EM_SETSEL, word, static_cast<LPARAM>(word + 30));
            EXPECT_EQ(selected(text, message), message.substr(word, 30));
        }
        send(text, EM_SETSEL, 0, -1);
        EXPECT_EQ(selected(text, message), message);
        send(text, EM_SETSEL, static_cast<WPARAM>(-1), 0);
        EXPECT_EQ(selected(text, message), L"");
    });
}

TEST(MessageBoxWrap, ASelectionIsAnsweredAsFarAs16BitsGo)
{
    const std::wstring message = prose(9000);
    ASSERT_GT(message.size(), 0x10000u);
    inspect({.text = message.c_str()}, [](HWND box) {
        const HWND text = textControl(box);
        const auto answered = [text](WPARAM start, LPARAM end) {
            send(text, EM_SETSEL, start, end);
            return send(text, EM_GETSEL);
        };
        EXPECT_EQ(answered(3, 10), MAKELONG(3, 10));
        EXPECT_EQ(answered(4, 0xFFFF), MAKELONG(4, 0xFFFF));
        EXPECT_EQ(answered(4, 0x10000), -1);
    });
}

TEST(MessageBoxWrap, CopyingNothingLeavesTheClipboardAsItIs)
{
    const std::wstring message = prose(700);
    emptyClipboard();
    inspect({.text = message.c_str()}, [](HWND box) {
        const HWND text = textControl(box);
        send(text, EM_SETSEL, 0, 12);
        send(text, WM_COPY);
        send(text, EM_SETSEL, 30, 30);
        send(text, WM_COPY);
    });
    EXPECT_EQ(clipboardText(), message.substr(0, 12));
}

TEST(MessageBoxWrap, WhatIsCopiedHasNoLineBreaksOfTheBox)
{
    const std::wstring message = prose(700);
    std::wstring copied;
    inspect({.text = message.c_str()}, [&](HWND box) {
        const HWND text = textControl(box);
        send(text, EM_SETSEL, 0, 2000);
        send(text, WM_COPY);
        ASSERT_TRUE(::OpenClipboard(box));
        copied = static_cast<const wchar_t*>(::GlobalLock(::GetClipboardData(CF_UNICODETEXT)));
        ::CloseClipboard();
    });
    EXPECT_EQ(copied, message.substr(0, 2000));
}

TEST(MessageBoxWrap, PositionsAndPointsBelongTogether)
{
    const std::wstring message = prose(400);
    inspect({.text = message.c_str()}, [&](HWND box) {
        const HWND text = textControl(box);
        for (std::size_t position = 0; position < 1500; position += 13) {
            if (message[position] == L' ' || !isInView(text, position))
                continue;
            const CPoint place = placeOf(text, position);
            const LRESULT found = send(text, EM_CHARFROMPOS, 0, MAKELPARAM(place.x + 1, place.y + 3));
            EXPECT_EQ(LOWORD(found), position);
            EXPECT_EQ(HIWORD(found), send(text, EM_LINEFROMCHAR, position));
        }
        const auto second = static_cast<std::size_t>(send(text, EM_LINEINDEX, 1));
        EXPECT_EQ(message[second - 1], L' ') << "the second line begins with a word";
        const LRESULT lines = send(text, EM_GETLINECOUNT);
        for (LRESULT line = 0; line + 1 < lines; ++line) {
            const auto begin = static_cast<WPARAM>(send(text, EM_LINEINDEX, static_cast<WPARAM>(line)));
            const LRESULT next = send(text, EM_LINEINDEX, static_cast<WPARAM>(line + 1));
            EXPECT_EQ(send(text, EM_LINELENGTH, begin), next - static_cast<LRESULT>(begin) - 1)
                << "but for the blank at the end of line " << line;
        }
        EXPECT_EQ(send(text, EM_LINEINDEX, 100000), -1);
        EXPECT_EQ(send(text, EM_CHARFROMPOS, 0, MAKELPARAM(5000, 5000)), -1) << "outside of the control";
    });
}

namespace
{

/// A platform that answers a point outside of the text without a sign.
LRESULT WINAPI unsignedProcedure(WNDPROC procedure, HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT answer = ::CallWindowProcW(procedure, wnd, message, wParam, lParam);
    return message == EM_CHARFROMPOS ? static_cast<LRESULT>(static_cast<DWORD>(answer)) : answer;
}

} // namespace

TEST(MessageBoxWrap, APointOutsideOfTheTextHasNoPositionWhateverItsSign)
{
    const ImportPatch patch{L"ovomfc.dll", "CallWindowProcW", reinterpret_cast<void*>(&unsignedProcedure)};
    const std::wstring message = prose(400);
    inspect({.text = message.c_str()}, [](HWND box) {
        const LRESULT found = send(textControl(box), EM_CHARFROMPOS, 0, MAKELPARAM(5000, 5000));
        EXPECT_EQ(LOWORD(found), 0xFFFF);
        EXPECT_EQ(HIWORD(found), 0xFFFF);
    });
}

TEST(MessageBoxWrap, TheTextCanBeReadInPieces)
{
    const std::wstring message = prose(700);
    inspect({.text = message.c_str()}, [&](HWND box) {
        const HWND text = textControl(box);
        EXPECT_EQ(send(text, WM_GETTEXTLENGTH), static_cast<LRESULT>(message.size()));
        wchar_t buffer[8] = L"#######";
        EXPECT_EQ(send(text, WM_GETTEXT, 0, reinterpret_cast<LPARAM>(buffer)), 0);
        EXPECT_EQ(buffer[0], L'#') << "no room for anything";
        EXPECT_EQ(send(text, WM_GETTEXT, 5, reinterpret_cast<LPARAM>(buffer)), 4);
        EXPECT_EQ(std::wstring(buffer), message.substr(0, 4));
        EXPECT_EQ(buffer[5], L'#');
    });
}

TEST(MessageBoxWrap, ATextSetFromOutsideIsShownAsItIs)
{
    const std::wstring message = prose(700);
    inspect({.text = message.c_str()}, [&](HWND box) {
        ::SetWindowTextW(textControl(box), L"oak elm");
        EXPECT_EQ(windowText(textControl(box)), L"oak elm");
        send(textControl(box), EM_SETSEL, 4, 7);
        EXPECT_EQ(selected(textControl(box), L"oak elm"), L"elm");
    });
}

// Resolution

TEST(MessageBoxResolution, DistancesScaleWithTheResolution)
{
    for (const int dpi : {96, 120, 144, 192}) {
        const OtherScreen screen(0, dpi);
        const auto scaled = [dpi](int pixels) { return (pixels * dpi + 48) / 96; };
        const std::wstring message = numberedLines(9);
        inspect({.type = MB_YESNO, .text = message.c_str()}, [&](HWND box) {
            SCOPED_TRACE(dpi);
            CRect client;
            ::GetClientRect(box, &client);
            EXPECT_EQ(placeInParent(iconControl(box)).TopLeft(), CPoint(scaled(10), scaled(8)));
            EXPECT_EQ(placeInParent(textControl(box)).TopLeft(), CPoint(scaled(52), scaled(8)));
            const CRect yes = placeInParent(::GetDlgItem(box, IDYES));
            const CRect no = placeInParent(::GetDlgItem(box, IDNO));
            EXPECT_EQ(no.right, client.right - scaled(10));
            EXPECT_EQ(no.bottom, client.bottom - scaled(8));
            EXPECT_EQ(yes.right, no.left - scaled(10));
            EXPECT_LE(placeInParent(textControl(box)).bottom, yes.top);
        });
    }
}
