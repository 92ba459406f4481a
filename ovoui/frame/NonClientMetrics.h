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

    UINT cbSize;
    int iBorderWidth;
    int iScrollWidth;
    int iScrollHeight;
    int iCaptionWidth;
    int iCaptionHeight;
    LOGFONTW lfCaptionFont;
    int iSmCaptionWidth;
    int iSmCaptionHeight;
    LOGFONTW lfSmCaptionFont;
    int iMenuWidth;
    int iMenuHeight;
    LOGFONTW lfMenuFont;
    LOGFONTW lfStatusFont;
    LOGFONTW lfMessageFont;
};

static_assert(sizeof(OvoNonClientMetrics) == 500);
