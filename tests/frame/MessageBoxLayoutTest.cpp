// How the message box looks: sizes and places of its parts, in a real window.
#include <testkit/ImportPatch.h>
#include "MessageBoxScene.h"

#include <ovocor/ovocor.h>
#include <ovoui/frame/Geometry.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

int metric(int index)
{
    return ::GetSystemMetrics(index);
}

CRect clientRect(HWND wnd)
{
    CRect rect;
    ::GetClientRect(wnd, &rect);
    return rect;
}

/// The line height of the font that the box uses.
TEXTMETRICW guiFont()
{
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    ::SelectObject(dc, previous);
    ::ReleaseDC(nullptr, dc);
    return metrics;
}

int lineHeight()
{
    return guiFont().tmHeight + guiFont().tmExternalLeading;
}

DWORD style(HWND wnd)
{
    return static_cast<DWORD>(::GetWindowLongW(wnd, GWL_STYLE));
}

int screenWidth()
{
    const HDC dc = ::GetDC(nullptr);
    const int width = ::GetDeviceCaps(dc, HORZRES);
    ::ReleaseDC(nullptr, dc);
    return width;
}

/// The size of a text in the font that the box uses, in lines of its own.
CSize sizeOf(const wchar_t* text)
{
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    CRect size(0, 0, 0, 0);
    ::DrawTextW(dc, text, -1, &size, DT_CALCRECT | DT_NOPREFIX | DT_EXTERNALLEADING);
    ::SelectObject(dc, previous);
    ::ReleaseDC(nullptr, dc);
    return size.Size();
}

constexpr wchar_t kLongLabel[] = L"No to all of the others that are still to come";

/// A language in which one button has much to say.
int WINAPI longNoToAll(HINSTANCE module, UINT id, LPWSTR buffer, int size)
{
    if (id != IDS_BUTTON_NO_TO_ALL)
        return ::LoadStringW(module, id, buffer, size);
    ::lstrcpynW(buffer, kLongLabel, size);
    return ::lstrlenW(buffer);
}

BOOL WINAPI noWorkArea(UINT action, UINT parameter, void* value, UINT how)
{
    return action != SPI_GETWORKAREA && ::SystemParametersInfoW(action, parameter, value, how);
}

} // namespace

TEST(MessageBoxLayout, TheTextAndTheIconStandAtTheirPlaces)
{
    inspect({.type = MB_ICONQUESTION}, [](HWND box) {
        EXPECT_EQ(placeInParent(textControl(box)).TopLeft(), CPoint(52, 8));
        EXPECT_EQ(placeInParent(iconControl(box)).TopLeft(), CPoint(10, 8));
        EXPECT_EQ(placeInParent(iconControl(box)).Size(), CSize(metric(SM_CXICON), metric(SM_CYICON)));
        EXPECT_EQ(::GetDlgCtrlID(iconControl(box)), -1);
        EXPECT_EQ(style(iconControl(box)), 0x50000003u);
    });
}

TEST(MessageBoxLayout, TheIconIsTheOneAskedFor)
{
    const struct
    {
        UINT type;
        const wchar_t* icon;
    } rows[] = {
        {MB_ICONHAND, L"STOP"},
        {OVOMB_EXTICONS | 0x30, L"DISCNETWORK"},
        {OVOMB_EXTICONS | 0xE0, L"NOTEFULL"},
        {OVOMB_EXTICONS | 0xF0 | MB_YESNO, L"QUERY"},
        {6, L"EXCLAIM"},
    };
    for (const auto& row : rows) {
        inspect({.type = row.type}, [&row](HWND box) {
            EXPECT_EQ(windowText(iconControl(box)), row.icon);
            EXPECT_NE(::SendMessageW(iconControl(box), STM_GETICON, 0, 0), 0) << "the icon is shown";
        });
    }
}

TEST(MessageBoxLayout, ButtonsStandInARowAtTheBottomRight)
{
    inspect({.type = OVOMB_EXTBUTTONS | 3 | MB_HELP}, [](HWND box) {
        const std::vector<int> ids = buttonsFromTheLeft(box);
        EXPECT_EQ(ids, (std::vector<int>{IDYES, IDYESTOALL, IDNO, IDNOTOALL, IDCANCEL, IDHELP}));
        const CRect client = clientRect(box);
        const CRect last = placeInParent(::GetDlgItem(box, IDHELP));
        EXPECT_EQ(last.right, client.right - 10);
        EXPECT_EQ(last.bottom, client.bottom - 8);
        for (std::size_t i = 0; i < ids.size(); ++i) {
            const CRect place = placeInParent(::GetDlgItem(box, ids[i]));
            EXPECT_EQ(place.Size(), last.Size());
            EXPECT_EQ(place.top, last.top);
            EXPECT_EQ(place.left, last.left - static_cast<int>(ids.size() - 1 - i) * (last.Width() + 10));
        }
    });
}

TEST(MessageBoxLayout, ButtonsAreAsTallAsTheFontSaysAndHoldEveryLabel)
{
    inspect({.type = OVOMB_EXTBUTTONS | 3}, [](HWND box) {
        const TEXTMETRICW font = guiFont();
        for (const int id : buttonsFromTheLeft(box)) {
            const HWND button = ::GetDlgItem(box, id);
            EXPECT_EQ(style(button) & ~DWORD{BS_TYPEMASK}, 0x50014000u) << "shown, for Tab, and notifying";
            EXPECT_EQ(::GetWindowLongPtrW(button, GWLP_HINSTANCE),
                      reinterpret_cast<LONG_PTR>(::GetModuleHandleW(L"ovoui.dll")));
            EXPECT_EQ(placeInParent(button).Height(), font.tmHeight * 14 / 8);
            EXPECT_GE(placeInParent(button).Width(), font.tmAveCharWidth * 50 / 4);
            EXPECT_EQ(::SendMessageW(button, WM_GETFONT, 0, 0),
                      reinterpret_cast<LRESULT>(::GetStockObject(DEFAULT_GUI_FONT)));
            SIZE label{};
            const HDC dc = ::GetDC(button);
            const HGDIOBJ previous = ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
            const std::wstring text = windowText(button);
            ::GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &label);
            ::SelectObject(dc, previous);
            ::ReleaseDC(button, dc);
            EXPECT_GE(placeInParent(button).Width(), label.cx + 2 * metric(SM_CXEDGE));
        }
    });
}

TEST(MessageBoxLayout, ButtonsAreAsWideAsTheWidestLabelOfAllSets)
{
    const ImportPatch patch{L"ovoui.dll", "LoadStringW", reinterpret_cast<void*>(&longNoToAll)};
    inspect({.type = MB_OK}, [](HWND box) {
        EXPECT_EQ(placeInParent(::GetDlgItem(box, IDOK)).Width(),
                  sizeOf(kLongLabel).cx + 2 * metric(SM_CXEDGE));
    });
}

TEST(MessageBoxLayout, TheTextControlHasTheRoomOfItsText)
{
    inspect({.text = L"Two lines,\nof which the second is the longer one."}, [](HWND box) {
        const HWND text = textControl(box);
        const CSize needed = sizeOf(L"Two lines,\r\nof which the second is the longer one.");
        const auto margins = static_cast<DWORD>(::SendMessageW(text, EM_GETMARGINS, 0, 0));
        EXPECT_EQ(clientRect(text).Width(),
                  needed.cx + LOWORD(margins) + HIWORD(margins) + 2 * metric(SM_CXBORDER));
        EXPECT_EQ(clientRect(text).Height(), needed.cy + 2 * metric(SM_CYBORDER));
    });
}

TEST(MessageBoxLayout, AShortTextAndAScrolledOneHaveTheSystemsFont)
{
    const std::wstring scrolled = numberedLines(20);
    for (const wchar_t* text : {L"Short.", scrolled.c_str()})
        inspect({.text = text}, [](HWND box) {
            EXPECT_EQ(::SendMessageW(textControl(box), WM_GETFONT, 0, 0),
                      reinterpret_cast<LRESULT>(::GetStockObject(DEFAULT_GUI_FONT)));
        });
}

TEST(MessageBoxLayout, TheDialogIsSizedToTheText)
{
    inspect({.text = L"A message of one line that is a good deal wider than its only button is."},
            [](HWND box) {
                const CRect text = placeInParent(textControl(box));
                EXPECT_EQ(screenRect(box).Width(), text.Width() + 2 * metric(SM_CXDLGFRAME) + 62);
            });
}

TEST(MessageBoxLayout, TheDialogIsSizedToManyButtons)
{
    inspect({.type = OVOMB_EXTBUTTONS | 3 | MB_HELP, .text = L"Short."}, [](HWND box) {
        const int button = placeInParent(::GetDlgItem(box, IDYES)).Width();
        EXPECT_EQ(screenRect(box).Width(), (button + 10) * 6 + 2 * metric(SM_CXDLGFRAME) + 10);
    });
}

TEST(MessageBoxLayout, TheHeightFollowsTheLines)
{
    const int button = guiFont().tmHeight * 14 / 8;
    const int frame = metric(SM_CYCAPTION) + 2 * metric(SM_CYDLGFRAME);
    inspect({.text = L"One line."},
            [&](HWND box) { EXPECT_EQ(screenRect(box).Height(), frame + 56 + button); });
    const std::wstring ten = numberedLines(10);
    inspect({.text = ten.c_str()},
            [&](HWND box) { EXPECT_EQ(screenRect(box).Height(), frame + 24 + 10 * lineHeight() + button); });
}

TEST(MessageBoxLayout, FifteenLinesAreShownPlain)
{
    const std::wstring text = numberedLines(15);
    inspect({.text = text.c_str()}, [](HWND box) {
        EXPECT_EQ(style(textControl(box)) & (WS_VSCROLL | WS_HSCROLL), 0u);
        EXPECT_EQ(::GetWindowLongW(textControl(box), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
        EXPECT_GE(clientRect(textControl(box)).Height(), 15 * lineHeight());
    });
}

TEST(MessageBoxLayout, SixteenLinesAreScrolledInAFrameOfFifteen)
{
    const std::wstring text = numberedLines(16);
    inspect({.text = text.c_str()}, [](HWND box) {
        EXPECT_EQ(style(textControl(box)) & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_VSCROLL));
        EXPECT_NE(::GetWindowLongW(textControl(box), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
        const int height = clientRect(textControl(box)).Height();
        EXPECT_GE(height, 15 * lineHeight());
        EXPECT_LT(height, 16 * lineHeight());
    });
}

TEST(MessageBoxLayout, TheScrolledTextCanBeScrolledToItsEnd)
{
    const std::wstring text = numberedLines(40);
    inspect({.text = text.c_str()}, [](HWND box) {
        ::SendMessageW(textControl(box), WM_VSCROLL, SB_BOTTOM, 0);
        const auto first = ::SendMessageW(textControl(box), EM_GETFIRSTVISIBLELINE, 0, 0);
        EXPECT_GE(first, 40 - 16);
        SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
        EXPECT_TRUE(::GetScrollInfo(textControl(box), SB_VERT, &info));
        EXPECT_GT(info.nMax, 0);
        EXPECT_GT(info.nPos, 0);
    });
}

TEST(MessageBoxLayout, AnUnbreakableLineWiderThanTwoThirdsOfTheScreenIsScrolledSidewaysOnlyInALongText)
{
    const std::wstring wide(static_cast<std::size_t>(screenWidth() / 4), L'W');
    inspect({.text = wide.c_str()},
            [](HWND box) { EXPECT_EQ(style(textControl(box)) & (WS_VSCROLL | WS_HSCROLL), 0u); });
    const std::wstring tall = wide + L"\n" + numberedLines(20);
    inspect({.text = tall.c_str()}, [](HWND box) {
        EXPECT_EQ(style(textControl(box)) & (WS_VSCROLL | WS_HSCROLL),
                  static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL));
    });
}

TEST(MessageBoxLayout, ALongLineIsWrappedAtTwoThirdsOfTheScreen)
{
    std::wstring text;
    for (int i = 0; i < 200; ++i)
        text += L"words ";
    inspect({.text = text.c_str()}, [](HWND box) {
        EXPECT_LE(clientRect(textControl(box)).Width(), screenWidth() * 2 / 3 + 20);
        EXPECT_GT(::SendMessageW(textControl(box), EM_GETLINECOUNT, 0, 0), 1);
    });
}

TEST(MessageBoxLayout, AWordWiderThanTwoThirdsOfTheScreenGoesOnInTheNextLine)
{
    const std::wstring word(400, L'W');
    inspect({.text = word.c_str()}, [](HWND box) {
        const int limit = screenWidth() * 2 / 3;
        const int width = clientRect(textControl(box)).Width();
        EXPECT_LE(width, limit + 20);
        EXPECT_GT(width, limit - 60) << "as much of it as may be";
        EXPECT_GT(::SendMessageW(textControl(box), EM_GETLINECOUNT, 0, 0), 1);
    });
}

TEST(MessageBoxLayout, WithoutAnOwnerTheBoxIsCentredInTheWorkArea)
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    inspect({}, [&work](HWND box) {
        const CRect place = screenRect(box);
        EXPECT_EQ(place.left, (work.right - place.Width() + work.left) / 2);
        EXPECT_EQ(place.top, (work.top + work.bottom - place.Height()) / 2);
    });
}

TEST(MessageBoxLayout, WithAnOwnerTheBoxIsCentredOnItsClientSizeAtTheScreensOrigin)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 300, 200, 700, 600, nullptr,
                   nullptr);
    inspect({.owner = owner.m_hWnd}, [](HWND box) {
        const CRect place = screenRect(box);
        EXPECT_EQ(place.left, (700 - place.Width()) / 2);
        EXPECT_EQ(place.top, (600 - place.Height()) / 2);
    });
    owner.DestroyWindow();
}

TEST(MessageBoxLayout, AnEmptyOwnerDoesNotCount)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 300, 200, 0, 0, nullptr,
                   nullptr);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    inspect({.owner = owner.m_hWnd}, [&work](HWND box) {
        const CRect place = screenRect(box);
        EXPECT_EQ(place.left, (work.right - place.Width() + work.left) / 2);
    });
    owner.DestroyWindow();
}

TEST(MessageBoxLayout, ABoxLargerThanItsOwnerIsPulledIntoView)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 300, 200, 60, 40, nullptr,
                   nullptr);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    inspect({.owner = owner.m_hWnd},
            [&work](HWND box) { EXPECT_EQ(screenRect(box).TopLeft(), work.TopLeft()); });
    owner.DestroyWindow();
}

TEST(MessageBoxLayout, WithoutAWorkAreaTheBoxIsCentredInAScreenOfTheUsualSize)
{
    const ImportPatch patch{L"ovoui.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&noWorkArea)};
    inspect({}, [](HWND box) {
        const CRect place = screenRect(box);
        CRect expected(CPoint((1280 - place.Width()) / 2, (1024 - place.Height()) / 2), place.Size());
        EnsureRectVisible(expected);
        EXPECT_EQ(place, expected);
    });
}

TEST(MessageBoxLayout, NoCaptionIsTheDefaultCaption)
{
    const std::wstring expected = libraryString(IDS_MESSAGE_CAPTION);
    ASSERT_FALSE(expected.empty());
    for (const wchar_t* caption : {static_cast<const wchar_t*>(nullptr), L""})
        inspect({.caption = caption}, [&](HWND box) { EXPECT_EQ(windowText(box), expected); });
    inspect({.caption = L"Own"}, [](HWND box) { EXPECT_EQ(windowText(box), L"Own"); });
}

TEST(MessageBoxLayout, AFontThatCannotBeMeasuredThrowsAndLeavesNothingBehind)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr,
                   nullptr);
    {
        const ImportPatch patch{L"ovomfc.dll", "GetTextMetricsW", reinterpret_cast<void*>(&noTextMetrics)};
        try {
            show({.owner = owner.m_hWnd});
            ADD_FAILURE() << "no error was raised";
        } catch (const WinError& error) {
            EXPECT_EQ(error.code(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
            EXPECT_NE(std::wstring(error.wwhat()).find(L"GetTextMetrics"), std::wstring::npos);
        }
    }
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(shownDialog(), nullptr);
    EXPECT_EQ(inspect({.owner = owner.m_hWnd}, [](HWND) {}), IDCANCEL) << "the next box works";
    owner.DestroyWindow();
}
