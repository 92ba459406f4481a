// Notifications in words, for the log.
#pragma once

#include <windows.h>

#include <string>

/// A WM_COMMAND notification of a control, such as: CBN_SELCHANGE from "Icon".
std::wstring describeCommand(HWND control, UINT code);

/// A WM_NOTIFY notification; empty for those sent while drawing, which would drown the others.
std::wstring describeNotify(const NMHDR& header);
