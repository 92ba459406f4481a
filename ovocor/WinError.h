/// Failed system calls as exceptions, and the system's own error texts.
#pragma once

#include <ovocor/OvoError.h>
#include <ovocor/export.h>

#include <windows.h>

#include <string>
#include <string_view>

/// A system call failed. The text is "<text>: <the system's text for the code>".
///
///     if (!::GetTextMetricsW(dc, &metrics))
///         throw WinError(L"GetTextMetrics", ::GetLastError());
class OVOCOR_API WinError : public OvoError
{
public:
    /// `text` says what was tried; when it is empty, the system's text stands alone. `code` is a Win32 error
    /// code or an HRESULT.
    WinError(std::wstring_view text, DWORD code);
    WinError(const WinError&) noexcept;
    WinError& operator=(const WinError&) noexcept;
    ~WinError() override;

    /// The Win32 error code or HRESULT.
    DWORD code() const noexcept;

private:
    DWORD m_code;
};

/// The system's text for an error code, on one line and without a line end.
///
/// With `module`, the text is first looked for in that module's message table (wininet.dll has texts of its
/// own). A code without a text gives "error <number>". Placeholders for inserts stay in the text as they are.
/// The thread's last error is left as it was.
OVOCOR_API std::wstring formatMessage(DWORD code, HMODULE module = nullptr);
