#include "Clipboard.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace ovo::testkit
{

std::wstring clipboardText()
{
    std::wstring text;
    if (!::OpenClipboard(nullptr))
        return text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(::GlobalLock(data));
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

void emptyClipboard()
{
    ASSERT_TRUE(::OpenClipboard(nullptr)) << "another program has the clipboard open";
    ::EmptyClipboard();
    ::CloseClipboard();
}

} // namespace ovo::testkit
