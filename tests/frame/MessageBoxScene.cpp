#include "MessageBoxScene.h"

#include <ovouires/resource.h>

#include <algorithm>

using namespace ovo::testkit;

int show(const BoxArguments& arguments)
{
    return OVOMessageBox(arguments.owner, arguments.text, arguments.caption, arguments.type, arguments.settingsKey,
                         arguments.helpId);
}

HWND openBox()
{
    const HWND dialog = shownDialog();
    return dialog && ::GetDlgItem(dialog, IDC_MESSAGE_TEXT) ? dialog : nullptr;
}

Story whenOpen()
{
    return Robot().waitFor("the message box", [] { return openBox() != nullptr; });
}

int inspect(const BoxArguments& arguments, const std::function<void(HWND)>& look)
{
    auto looking = whenOpen().then([look] { look(openBox()); }).key(VK_ESCAPE).start();
    return show(arguments);
}

BOOL WINAPI noTextMetrics(HDC, LPTEXTMETRICW)
{
    ::SetLastError(ERROR_INVALID_HANDLE);
    return FALSE;
}

HRSRC WINAPI noDialogs(HMODULE module, LPCWSTR name, LPCWSTR type)
{
    if (type == RT_DIALOG) {
        ::SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    return ::FindResourceW(module, name, type);
}

HWND textControl(HWND box)
{
    return ::GetDlgItem(box, IDC_MESSAGE_TEXT);
}

HWND iconControl(HWND box)
{
    return ::FindWindowExW(box, nullptr, L"STATIC", nullptr);
}

std::vector<int> buttonsFromTheLeft(HWND box)
{
    std::vector<HWND> buttons;
    for (HWND wnd = nullptr; (wnd = ::FindWindowExW(box, wnd, L"BUTTON", nullptr)) != nullptr;)
        buttons.push_back(wnd);
    std::sort(buttons.begin(), buttons.end(),
              [](HWND a, HWND b) { return placeInParent(a).left < placeInParent(b).left; });
    std::vector<int> ids;
    for (const HWND wnd : buttons)
        ids.push_back(::GetDlgCtrlID(wnd));
    return ids;
}

std::wstring windowText(HWND wnd)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(wnd)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(wnd, text.data(), static_cast<int>(text.size()))));
    return text;
}

CRect screenRect(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect;
}

CRect placeInParent(HWND wnd)
{
    CRect rect = screenRect(wnd);
    ::MapWindowPoints(nullptr, ::GetParent(wnd), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

std::wstring libraryString(UINT id)
{
    wchar_t text[256];
    const int length = ::LoadStringW(::GetModuleHandleW(L"ovouires.dll"), id, text, 256);
    return {text, static_cast<std::size_t>(length)};
}

std::wstring numberedLines(int count)
{
    std::wstring text;
    for (int i = 1; i <= count; ++i)
        text += (i > 1 ? L"\n" : L"") + (L"Line " + std::to_wstring(i));
    return text;
}
