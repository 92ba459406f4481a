// The smaller common controls.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, WC_HEADERW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CHeaderCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_HEADERW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CHeaderCtrl::GetItemCount() const
{
    return static_cast<int>(SendMessage(HDM_GETITEMCOUNT));
}

int CHeaderCtrl::InsertItem(int position, HDITEM* item)
{
    return static_cast<int>(SendMessage(HDM_INSERTITEMW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(item)));
}

BOOL CHeaderCtrl::DeleteItem(int position)
{
    return static_cast<BOOL>(SendMessage(HDM_DELETEITEM, static_cast<WPARAM>(position)));
}

BOOL CHeaderCtrl::GetItem(int position, HDITEM* item) const
{
    return static_cast<BOOL>(SendMessage(HDM_GETITEMW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(item)));
}

BOOL CHeaderCtrl::SetItem(int position, HDITEM* item)
{
    return static_cast<BOOL>(SendMessage(HDM_SETITEMW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(item)));
}

int CHeaderCtrl::OrderToIndex(int order) const
{
    return static_cast<int>(SendMessage(HDM_ORDERTOINDEX, static_cast<WPARAM>(order)));
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* layout)
{
    return static_cast<BOOL>(SendMessage(HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(layout)));
}

BOOL CHeaderCtrl::GetItemRect(int index, LPRECT rect) const
{
    return static_cast<BOOL>(SendMessage(HDM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* list)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list->GetSafeHandle()))));
}

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

BOOL CProgressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, PROGRESS_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CProgressCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, PROGRESS_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

void CProgressCtrl::SetRange(short lower, short upper)
{
    SendMessage(PBM_SETRANGE, 0, MAKELPARAM(lower,upper));
}

void CProgressCtrl::SetRange32(int lower, int upper)
{
    SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(lower), upper);
}

int CProgressCtrl::GetPos()
{
    return static_cast<int>(SendMessage(PBM_GETPOS));
}

int CProgressCtrl::SetPos(int position)
{
    return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(position)));
}

int CProgressCtrl::OffsetPos(int distance)
{
    return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(distance)));
}

int CProgressCtrl::SetStep(int step)
{
    return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(step)));
}

int CProgressCtrl::StepIt()
{
    return static_cast<int>(SendMessage(PBM_STEPIT));
}

void CProgressCtrl::GetRange(int& lower, int& upper)
{
    PBRANGE range{};
    SendMessage(PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    lower = range.iLow;
    upper = range.iHigh;
}

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, UPDOWN_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, UPDOWN_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CSpinButtonCtrl::SetBase(int base)
{
    return static_cast<int>(SendMessage(UDM_SETBASE, static_cast<WPARAM>(base)));
}

UINT CSpinButtonCtrl::GetBase() const
{
    return static_cast<UINT>(SendMessage(UDM_GETBASE));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy->GetSafeHwnd()))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY)));
}

int CSpinButtonCtrl::GetPos32(LPBOOL error) const
{
    return static_cast<int>(SendMessage(UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(error)));
}

int CSpinButtonCtrl::SetPos32(int position)
{
    return static_cast<int>(SendMessage(UDM_SETPOS32, 0, position));
}

void CSpinButtonCtrl::SetRange(short lower, short upper)
{
    SendMessage(UDM_SETRANGE, 0, MAKELPARAM(upper,lower));
}

void CSpinButtonCtrl::SetRange32(int lower, int upper)
{
    SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
}

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CStatusBarCtrl::CStatusBarCtrl() = default;

BOOL CStatusBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, STATUSCLASSNAMEW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CStatusBarCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, STATUSCLASSNAMEW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CStatusBarCtrl::SetParts(int count, int* ends)
{
    return static_cast<BOOL>(SendMessage(SB_SETPARTS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(ends)));
}

int CStatusBarCtrl::GetParts(int count, int* ends) const
{
    return static_cast<int>(SendMessage(SB_GETPARTS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(ends)));
}

BOOL CStatusBarCtrl::GetRect(int pane, LPRECT rect) const
{
    return static_cast<BOOL>(SendMessage(SB_GETRECT, static_cast<WPARAM>(pane), reinterpret_cast<LPARAM>(rect)));
}

void CStatusBarCtrl::SetMinHeight(int height)
{
    SendMessage(SB_SETMINHEIGHT, static_cast<WPARAM>(height));
}

BOOL CStatusBarCtrl::SetSimple(BOOL simple)
{
    return static_cast<BOOL>(SendMessage(SB_SIMPLE, static_cast<WPARAM>(simple)));
}

BOOL CStatusBarCtrl::IsSimple() const
{
    return static_cast<BOOL>(SendMessage(SB_ISSIMPLE));
}

BOOL CStatusBarCtrl::SetText(LPCTSTR text, int pane, int type)
{
    return static_cast<BOOL>(
        SendMessage(SB_SETTEXTW, static_cast<WPARAM>(pane | type), reinterpret_cast<LPARAM>(text)));
}

CString CStatusBarCtrl::GetText(int pane, int* type) const
{
    const auto length = static_cast<DWORD>(SendMessage(SB_GETTEXTLENGTHW, static_cast<WPARAM>(pane)));
    if (type)
        *type = HIWORD(length);
    CString text;
    SendMessage(SB_GETTEXTW, static_cast<WPARAM>(pane), reinterpret_cast<LPARAM>(text.GetBuffer(LOWORD(length))));
    text.ReleaseBuffer();
    return text;
}

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

CToolTipCtrl::CToolTipCtrl() = default;

int CToolTipCtrl::GetToolCount() const
{
    return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT));
}

void CToolTipCtrl::Activate(BOOL activate)
{
    SendMessage(TTM_ACTIVATE, static_cast<WPARAM>(activate));
}

void CToolTipCtrl::RelayEvent(LPMSG message)
{
    SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message));
}

void CToolTipCtrl::Pop()
{
    SendMessage(TTM_POP);
}

int CToolTipCtrl::GetDelayTime(DWORD which) const
{
    return static_cast<int>(SendMessage(TTM_GETDELAYTIME, static_cast<WPARAM>(which)));
}

void CToolTipCtrl::SetDelayTime(UINT delay)
{
    SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, MAKELPARAM(delay, 0));
}

void CToolTipCtrl::SetDelayTime(DWORD which, int milliseconds)
{
    SendMessage(TTM_SETDELAYTIME, which, MAKELPARAM(milliseconds, 0));
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return static_cast<int>(SendMessage(TTM_GETMAXTIPWIDTH));
}

int CToolTipCtrl::SetMaxTipWidth(int width)
{
    return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, width));
}

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style)
{
    return CWnd::CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, style | WS_POPUP, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, parent->GetSafeHwnd(), nullptr);
}

namespace
{

/// The record of a tool: a window of its own, or a rectangle in one.
TOOLINFO toolOf(CWnd* wnd, UINT_PTR idTool)
{
    TOOLINFO info{};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    if (idTool == 0) {
        info.hwnd = ::GetParent(wnd->GetSafeHwnd());
        info.uFlags = TTF_IDISHWND;
        info.uId = reinterpret_cast<UINT_PTR>(wnd->GetSafeHwnd());
    } else {
        info.hwnd = wnd->GetSafeHwnd();
        info.uId = idTool;
    }
    return info;
}

} // namespace

BOOL CToolTipCtrl::AddTool(CWnd* wnd, LPCTSTR text, LPCRECT rectTool, UINT_PTR idTool)
{
    TOOLINFO info = toolOf(wnd, idTool);
    if (rectTool)
        info.rect = *rectTool;
    info.lpszText = const_cast<LPTSTR>(text);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info)));
}

void CToolTipCtrl::DelTool(CWnd* wnd, UINT_PTR idTool)
{
    TOOLINFO info = toolOf(wnd, idTool);
    SendMessage(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd* wnd, UINT_PTR idTool)
{
    TOOLINFO info = toolOf(wnd, idTool);
    info.lpszText = const_cast<LPTSTR>(text);
    SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&info));
}

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

CToolBarCtrl::CToolBarCtrl() = default;

BOOL CToolBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, TOOLBARCLASSNAMEW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CToolBarCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, TOOLBARCLASSNAMEW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CToolBarCtrl::GetButtonCount() const
{
    return static_cast<int>(SendMessage(TB_BUTTONCOUNT));
}

BOOL CToolBarCtrl::AddButtons(int count, LPTBBUTTON buttons)
{
    return static_cast<BOOL>(SendMessage(TB_ADDBUTTONSW, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(buttons)));
}

BOOL CToolBarCtrl::InsertButton(int index, LPTBBUTTON button)
{
    return static_cast<BOOL>(SendMessage(TB_INSERTBUTTONW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(button)));
}

BOOL CToolBarCtrl::DeleteButton(int index)
{
    return static_cast<BOOL>(SendMessage(TB_DELETEBUTTON, static_cast<WPARAM>(index)));
}

BOOL CToolBarCtrl::GetButton(int index, LPTBBUTTON button) const
{
    return static_cast<BOOL>(SendMessage(TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(button)));
}

UINT CToolBarCtrl::CommandToIndex(UINT id) const
{
    return static_cast<UINT>(SendMessage(TB_COMMANDTOINDEX, id));
}

int CToolBarCtrl::GetState(int id) const
{
    return static_cast<int>(SendMessage(TB_GETSTATE, static_cast<WPARAM>(id)));
}

BOOL CToolBarCtrl::SetState(int id, UINT state)
{
    return static_cast<BOOL>(SendMessage(TB_SETSTATE, static_cast<WPARAM>(id), MAKELPARAM(state,0)));
}

BOOL CToolBarCtrl::EnableButton(int id, BOOL enable)
{
    return static_cast<BOOL>(SendMessage(TB_ENABLEBUTTON, static_cast<WPARAM>(id), MAKELPARAM(enable,0)));
}

BOOL CToolBarCtrl::CheckButton(int id, BOOL check)
{
    return static_cast<BOOL>(SendMessage(TB_CHECKBUTTON, static_cast<WPARAM>(id), MAKELPARAM(check,0)));
}

BOOL CToolBarCtrl::PressButton(int id, BOOL press)
{
    return static_cast<BOOL>(SendMessage(TB_PRESSBUTTON, static_cast<WPARAM>(id), MAKELPARAM(press,0)));
}

BOOL CToolBarCtrl::HideButton(int id, BOOL hide)
{
    return static_cast<BOOL>(SendMessage(TB_HIDEBUTTON, static_cast<WPARAM>(id), MAKELPARAM(hide,0)));
}

BOOL CToolBarCtrl::IsButtonEnabled(int id) const
{
    return static_cast<BOOL>(SendMessage(TB_ISBUTTONENABLED, static_cast<WPARAM>(id)));
}

BOOL CToolBarCtrl::IsButtonChecked(int id) const
{
    return static_cast<BOOL>(SendMessage(TB_ISBUTTONCHECKED, static_cast<WPARAM>(id)));
}

BOOL CToolBarCtrl::IsButtonPressed(int id) const
{
    return static_cast<BOOL>(SendMessage(TB_ISBUTTONPRESSED, static_cast<WPARAM>(id)));
}

BOOL CToolBarCtrl::IsButtonHidden(int id) const
{
    return static_cast<BOOL>(SendMessage(TB_ISBUTTONHIDDEN, static_cast<WPARAM>(id)));
}

BOOL CToolBarCtrl::GetItemRect(int index, LPRECT rect) const
{
    return static_cast<BOOL>(SendMessage(TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

int CToolBarCtrl::HitTest(LPPOINT point) const
{
    return static_cast<int>(SendMessage(TB_HITTEST, 0, reinterpret_cast<LPARAM>(point)));
}

int CToolBarCtrl::GetRows() const
{
    return static_cast<int>(SendMessage(TB_GETROWS));
}

void CToolBarCtrl::SetRows(int rows, BOOL larger, LPRECT rect)
{
    SendMessage(TB_SETROWS, MAKEWPARAM(rows,larger), reinterpret_cast<LPARAM>(rect));
}

BOOL CToolBarCtrl::SetButtonSize(CSize size)
{
    return static_cast<BOOL>(SendMessage(TB_SETBUTTONSIZE, 0, static_cast<LPARAM>(MAKELONG(size.cx, size.cy))));
}

BOOL CToolBarCtrl::SetBitmapSize(CSize size)
{
    return static_cast<BOOL>(SendMessage(TB_SETBITMAPSIZE, 0, static_cast<LPARAM>(MAKELONG(size.cx, size.cy))));
}

void CToolBarCtrl::AutoSize()
{
    SendMessage(TB_AUTOSIZE);
}

CImageList* CToolBarCtrl::GetImageList() const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TB_GETIMAGELIST)));
}

CImageList* CToolBarCtrl::SetImageList(CImageList* list)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list->GetSafeHandle()))));
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TB_GETTOOLTIPS))));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* tip)
{
    SendMessage(TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(tip->GetSafeHwnd()));
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}

BOOL CToolTipCtrl::CreateEx(CWnd* parent, DWORD style, DWORD exStyle)
{
    return CWnd::CreateEx(WS_EX_TOPMOST | exStyle, TOOLTIPS_CLASSW, nullptr, style | WS_POPUP, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent->GetSafeHwnd(), nullptr);
}
