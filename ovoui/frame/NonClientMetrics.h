/// The system's non-client metrics: fonts and sizes of captions, menus and messages.
///
///     const OvoNonClientMetrics metrics;
///     font.CreateFontIndirect(&metrics.lfMessageFont);
#pragma once

#include <ovoui/export.h>

#include <windows.h>

/// NONCLIENTMETRICSW in its 500-byte form, which every system takes: without the padded border's width, so it
/// does not depend on the platform version that a host is built for.
struct OVOUI_API OvoNonClientMetrics
{
    /// Reads the metrics. Throws WinError when the system does not give them.
    OvoNonClientMetrics();

    UINT cbSize;              ///< of this structure, in bytes; all others are in pixels
    int iBorderWidth;         ///< of the border that sizes a window
    int iScrollWidth;         ///< of an upright scroll bar
    int iScrollHeight;        ///< of a level scroll bar
    int iCaptionWidth;        ///< of the buttons in a caption
    int iCaptionHeight;       ///< of a caption
    LOGFONTW lfCaptionFont;   ///< of captions
    int iSmCaptionWidth;      ///< of the buttons in the caption of a tool window
    int iSmCaptionHeight;     ///< of the caption of a tool window
    LOGFONTW lfSmCaptionFont; ///< of captions of tool windows
    int iMenuWidth;           ///< of the buttons in a menu bar
    int iMenuHeight;          ///< of a menu bar
    LOGFONTW lfMenuFont;      ///< of menus
    LOGFONTW lfStatusFont;    ///< of status bars and tips
    LOGFONTW lfMessageFont;   ///< of message boxes and dialogs
};

static_assert(sizeof(OvoNonClientMetrics) == 500);
