/// Not exported: what the library puts on the clipboard, all of it from here.
#pragma once

#include <ovoui/frame/GlobalMemory.h>

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

class COleDataSource;

namespace ovoui::frame
{

/// Contents in one format.
struct ClipboardFormat
{
    UINT format;
    GlobalMemory memory; ///< null when there was none
};

/// Replaces the clipboard's contents, and takes the memory. Needs no OLE, so boxes and controls of any host
/// can do it. Returns false, and leaves the clipboard as it was, when another program holds it or memory is
/// missing.
bool setClipboard(HWND owner, std::span<ClipboardFormat> contents);

/// The same with Unicode text.
bool setClipboardText(HWND owner, std::wstring_view text);

/// Unicode text with its zero, in memory for the clipboard.
GlobalMemory globalText(std::wstring_view text);

/// Offers text on a data source, as Unicode text and in the ANSI code page. A format for which there is no
/// memory is left out.
void offerText(COleDataSource& source, const std::wstring& text);

/// Puts text on the clipboard by OLE, for hosts that have started it: the text is theirs until they flush
/// the clipboard or end OLE. Tries again for a moment while another program has the clipboard open, and
/// throws OvoError when that does not end; without OLE WinError with CO_E_NOTINITIALIZED, at once.
void copyByOle(const std::wstring& text);

} // namespace ovoui::frame
