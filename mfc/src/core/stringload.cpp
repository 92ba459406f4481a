// CString: string resources, and parts of them.
#include "stringdata.h"

#include <detail/resourcechain.h>

#include <cwchar>

BOOL CString::LoadString(UINT id)
{
    assign(afxdetail::stringResource(id));
    return !IsEmpty();
}

BOOL CString::LoadString(HINSTANCE module, UINT id)
{
    return LoadString(module, id, MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL));
}

BOOL CString::LoadString(HINSTANCE module, UINT id, WORD language)
{
    assign(afxdetail::stringResource(module, id, language));
    return !IsEmpty();
}

BOOL AFXAPI AfxExtractSubString(CString& part, LPCTSTR text, int index, TCHAR separator)
{
    if (!text)
        return FALSE;
    for (; text && index > 0; --index) {
        text = std::wcschr(text, separator);
        text = text ? text + 1 : nullptr;
    }
    if (!text) {
        part.Empty();
        return FALSE;
    }
    const LPCTSTR end = std::wcschr(text, separator);
    part.SetString(text, static_cast<int>(end ? end - text : static_cast<std::ptrdiff_t>(std::wcslen(text))));
    return TRUE;
}
