#include "FilterEdit.h"

#include "resource.h"

#include <commctrl.h>

BEGIN_MESSAGE_MAP(FilterEdit, CEdit)
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
END_MESSAGE_MAP()

bool FilterEdit::create(CWnd& bar, UINT id)
{
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL;
    if (!CreateEx(WS_EX_CLIENTEDGE, L"EDIT", L"", kStyle, CRect(), &bar, id))
        return false;
    CString hint;
    hint.LoadString(IDS_FRAME_FILTER_HINT);
    SendMessage(EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(hint.GetString()));
    return true;
}

void FilterEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key == VK_ESCAPE)
        SetWindowText(L"");
    else
        CEdit::OnKeyDown(key, repeat, flags);
}

void FilterEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    const bool ends = character == VK_RETURN || character == VK_ESCAPE || character == VK_TAB;
    if (!ends) // the control would sound for them
        CEdit::OnChar(character, repeat, flags);
}
