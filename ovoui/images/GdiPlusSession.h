/// GDI+, which hosts start before the first alpha image and end after the last.
///
///     const CGdiPlusSession gdiPlus; // the first member of the main window, or around a modal dialog
#pragma once

#include <ovoui/export.h>

#include <windows.h>

/// Starts GDI+ and ends it with the object. Objects of GDI+ and alpha image lists that hold images are gone
/// by then. Several sessions may live at a time.
class OVOUI_API CGdiPlusSession
{
public:
    CGdiPlusSession();
    ~CGdiPlusSession();
    CGdiPlusSession(const CGdiPlusSession&) = delete;
    CGdiPlusSession& operator=(const CGdiPlusSession&) = delete;

    bool IsStarted() const { return m_token != 0; } ///< False when the system has refused.

private:
    ULONG_PTR m_token = 0;
};
