/// What the message box's tests share: opening a box, and looking at it while it is open.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/Robot.h>

#include <afxwin.h>
#include <ovoui/frame/MessageBox.h>

#include <functional>
#include <string>
#include <vector>

/// The arguments of OVOMessageBox, with defaults for what a test does not care about.
struct BoxArguments
{
    UINT type = MB_OK;
    const wchar_t* text = L"The message.";
    HWND owner = nullptr;
    const wchar_t* caption = L"Box";
    const wchar_t* settingsKey = L"box";
    UINT helpId = 0;
};

int show(const BoxArguments& arguments);

/// The box that waits for its answer, or null.
HWND openBox();

/// A story that begins when the box is open.
ovo::testkit::Story whenOpen();

/// Shows a box, hands it to `look`, and closes it with Escape. Gives the box's answer.
int inspect(const BoxArguments& arguments, const std::function<void(HWND box)>& look);

/// Takes the place of GetTextMetricsW: the font cannot be measured.
BOOL WINAPI noTextMetrics(HDC dc, LPTEXTMETRICW metrics);

/// Takes the place of FindResourceW: there is no template of a dialog.
HRSRC WINAPI noDialogs(HMODULE module, LPCWSTR name, LPCWSTR type);

/// The control that shows the text.
HWND textControl(HWND box);
/// The control that shows the icon.
HWND iconControl(HWND box);
/// Ids of the buttons from left to right.
std::vector<int> buttonsFromTheLeft(HWND box);

std::wstring windowText(HWND wnd);
/// A child's rectangle in the client coordinates of its parent.
CRect placeInParent(HWND wnd);
CRect screenRect(HWND wnd);
/// A string of the library's resources.
std::wstring libraryString(UINT id);
/// `count` lines that say their number.
std::wstring numberedLines(int count);
