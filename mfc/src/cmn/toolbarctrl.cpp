#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

CToolBarCtrl::CToolBarCtrl() = default;

BOOL CToolBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateEx(0, style, rect, parent, id);
}

BOOL CToolBarCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    if (!CWnd::CreateEx(exStyle, TOOLBARCLASSNAMEW, nullptr, style | WS_CHILD, rect, parent, id))
        return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON)); // the control knows several versions of it
    return TRUE;
}

int CToolBarCtrl::GetButtonCount() const
{
    return send<int>(*this, TB_BUTTONCOUNT);
}

BOOL CToolBarCtrl::AddButtons(int count, LPTBBUTTON buttons)
{
    return send<BOOL>(*this, TB_ADDBUTTONSW, count, buttons);
}

BOOL CToolBarCtrl::InsertButton(int index, LPTBBUTTON button)
{
    return send<BOOL>(*this, TB_INSERTBUTTONW, index, button);
}

BOOL CToolBarCtrl::DeleteButton(int index)
{
    return send<BOOL>(*this, TB_DELETEBUTTON, index);
}

BOOL CToolBarCtrl::MoveButton(UINT oldIndex, UINT newIndex)
{
    return send<BOOL>(*this, TB_MOVEBUTTON, oldIndex, newIndex);
}

BOOL CToolBarCtrl::GetButton(int index, LPTBBUTTON button) const
{
    return send<BOOL>(*this, TB_GETBUTTON, index, button);
}

int CToolBarCtrl::GetButtonInfo(int id, TBBUTTONINFO* info) const
{
    return send<int>(*this, TB_GETBUTTONINFOW, id, info);
}

BOOL CToolBarCtrl::SetButtonInfo(int id, TBBUTTONINFO* info)
{
    return send<BOOL>(*this, TB_SETBUTTONINFOW, id, info);
}

UINT CToolBarCtrl::CommandToIndex(UINT id) const
{
    return send<UINT>(*this, TB_COMMANDTOINDEX, id);
}

BOOL CToolBarCtrl::SetCmdID(int index, UINT id)
{
    return send<BOOL>(*this, TB_SETCMDID, index, id);
}

CString CToolBarCtrl::GetButtonText(int id) const
{
    CString text;
    const int length = send<int>(*this, TB_GETBUTTONTEXTW, id);
    if (length <= 0)
        return text;
    send(*this, TB_GETBUTTONTEXTW, id, text.GetBuffer(length));
    text.ReleaseBuffer(length);
    return text;
}

BOOL CToolBarCtrl::MapAccelerator(TCHAR character, UINT* id)
{
    return send<BOOL>(*this, TB_MAPACCELERATORW, character, id);
}

int CToolBarCtrl::GetState(int id) const
{
    return send<int>(*this, TB_GETSTATE, id);
}

BOOL CToolBarCtrl::SetState(int id, UINT state)
{
    return send<BOOL>(*this, TB_SETSTATE, id, MAKELPARAM(state, 0));
}

BOOL CToolBarCtrl::EnableButton(int id, BOOL enable)
{
    return send<BOOL>(*this, TB_ENABLEBUTTON, id, MAKELPARAM(enable, 0));
}

BOOL CToolBarCtrl::CheckButton(int id, BOOL check)
{
    return send<BOOL>(*this, TB_CHECKBUTTON, id, MAKELPARAM(check, 0));
}

BOOL CToolBarCtrl::PressButton(int id, BOOL press)
{
    return send<BOOL>(*this, TB_PRESSBUTTON, id, MAKELPARAM(press, 0));
}

BOOL CToolBarCtrl::HideButton(int id, BOOL hide)
{
    return send<BOOL>(*this, TB_HIDEBUTTON, id, MAKELPARAM(hide, 0));
}

BOOL CToolBarCtrl::Indeterminate(int id, BOOL indeterminate)
{
    return send<BOOL>(*this, TB_INDETERMINATE, id, MAKELPARAM(indeterminate, 0));
}

BOOL CToolBarCtrl::MarkButton(int id, BOOL highlight)
{
    return send<BOOL>(*this, TB_MARKBUTTON, id, MAKELPARAM(highlight, 0));
}

BOOL CToolBarCtrl::IsButtonEnabled(int id) const
{
    return send<BOOL>(*this, TB_ISBUTTONENABLED, id);
}

BOOL CToolBarCtrl::IsButtonChecked(int id) const
{
    return send<BOOL>(*this, TB_ISBUTTONCHECKED, id);
}

BOOL CToolBarCtrl::IsButtonPressed(int id) const
{
    return send<BOOL>(*this, TB_ISBUTTONPRESSED, id);
}

BOOL CToolBarCtrl::IsButtonHidden(int id) const
{
    return send<BOOL>(*this, TB_ISBUTTONHIDDEN, id);
}

BOOL CToolBarCtrl::IsButtonIndeterminate(int id) const
{
    return send<BOOL>(*this, TB_ISBUTTONINDETERMINATE, id);
}

BOOL CToolBarCtrl::IsButtonHighlighted(int id) const
{
    return send<BOOL>(*this, TB_ISBUTTONHIGHLIGHTED, id);
}

int CToolBarCtrl::GetHotItem() const
{
    return send<int>(*this, TB_GETHOTITEM);
}

int CToolBarCtrl::SetHotItem(int index)
{
    return send<int>(*this, TB_SETHOTITEM, index);
}

BOOL CToolBarCtrl::GetAnchorHighlight() const
{
    return send<BOOL>(*this, TB_GETANCHORHIGHLIGHT);
}

BOOL CToolBarCtrl::SetAnchorHighlight(BOOL anchor)
{
    return send<BOOL>(*this, TB_SETANCHORHIGHLIGHT, anchor);
}

BOOL CToolBarCtrl::GetItemRect(int index, LPRECT rect) const
{
    return send<BOOL>(*this, TB_GETITEMRECT, index, rect);
}

BOOL CToolBarCtrl::GetRect(int id, LPRECT rect) const
{
    return send<BOOL>(*this, TB_GETRECT, id, rect);
}

int CToolBarCtrl::HitTest(LPPOINT point) const
{
    return send<int>(*this, TB_HITTEST, 0, point);
}

void CToolBarCtrl::GetInsertMark(TBINSERTMARK* mark) const
{
    send(*this, TB_GETINSERTMARK, 0, mark);
}

void CToolBarCtrl::SetInsertMark(TBINSERTMARK* mark)
{
    send(*this, TB_SETINSERTMARK, 0, mark);
}

COLORREF CToolBarCtrl::GetInsertMarkColor() const
{
    return send<COLORREF>(*this, TB_GETINSERTMARKCOLOR);
}

COLORREF CToolBarCtrl::SetInsertMarkColor(COLORREF colour)
{
    return send<COLORREF>(*this, TB_SETINSERTMARKCOLOR, 0, colour);
}

BOOL CToolBarCtrl::InsertMarkHitTest(LPPOINT point, LPTBINSERTMARK mark) const
{
    return send<BOOL>(*this, TB_INSERTMARKHITTEST, point, mark);
}
