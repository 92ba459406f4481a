/// The gallery's pages as a screen reader tells of them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// Whether the window answers clients of accessibility itself.
bool answersItself(HWND window);

/// A line for each shown window inside `parent` and for each part of one, in the order of Tab: its role, its
/// name, its states and, where the control has an answer of its own, value and action. Digits in the names of
/// other windows are read as "#", since they tell of the machine.
std::vector<std::wstring> readAloud(HWND parent);

/// What is read of the window itself.
std::wstring readAloudAlone(HWND window);

/// Lines that only one of the texts has, marked by "-" and "+" and each under the last heading (a line that
/// begins with "=") before it. Empty for equal texts.
std::wstring differenceOf(const std::vector<std::wstring>& expected, const std::vector<std::wstring>& read);
