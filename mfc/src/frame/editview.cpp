// CEditView: a view that is an editor of plain text.
#include <afxext.h>

#include "finddialog.h"

IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

namespace
{

const UINT kFindMessage = afxdetail::FindDialog::message();
constexpr UINT kMostCharacters = 1024 * 1024 - 1;

LOGFONT messageFont()
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    return metrics.lfMessageFont;
}

} // namespace

BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    // the Edit menu
    ON_COMMAND(ID_EDIT_UNDO, &CEditView::OnEditUndo)
    ON_COMMAND(ID_EDIT_CUT, &CEditView::OnEditCut)
    ON_COMMAND(ID_EDIT_COPY, &CEditView::OnEditCopy)
    ON_COMMAND(ID_EDIT_PASTE, &CEditView::OnEditPaste)
    ON_COMMAND(ID_EDIT_CLEAR, &CEditView::OnEditClear)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &CEditView::OnEditSelectAll)
    ON_COMMAND(ID_EDIT_FIND, &CEditView::OnEditFind)
    ON_COMMAND(ID_EDIT_REPLACE, &CEditView::OnEditReplace)
    ON_COMMAND(ID_EDIT_REPEAT, &CEditView::OnEditRepeat)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::OnUpdateEditUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::OnUpdateNeedClip)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_FIND, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REPLACE, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REPEAT, &CEditView::OnUpdateNeedFind)
    ON_REGISTERED_MESSAGE(kFindMessage, &CEditView::OnFindReplaceCmd)
END_MESSAGE_MAP()

const DWORD CEditView::dwStyleDefault = AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL |
                                        ES_AUTOVSCROLL | ES_MULTILINE | ES_NOHIDESEL;

CEditView::CEditView()
    : CCtrlView(WC_EDITW, dwStyleDefault)
    , m_find(std::make_unique<afxdetail::FindDialog>())
{
}

CEditView::~CEditView() = default;

int CEditView::OnCreate(LPCREATESTRUCT cs)
{
    if (CCtrlView::OnCreate(cs) == -1)
        return -1;
    const LOGFONT font = messageFont();
    m_font.CreateFontIndirect(&font);
    SetFont(&m_font, FALSE);
    GetEditCtrl().SetLimitText(kMostCharacters);
    return 0;
}

void CEditView::OnDestroy()
{
    m_find->close();
    CCtrlView::OnDestroy();
}

CEdit& CEditView::GetEditCtrl() const
{
    m_edit.m_hWnd = m_hWnd;
    return m_edit;
}

// The text

CString CEditView::text() const
{
    CString all;
    GetWindowText(all);
    return all;
}

UINT CEditView::GetBufferLength() const
{
    return static_cast<UINT>(GetWindowTextLength());
}

LPCTSTR CEditView::LockBuffer() const
{
    m_locked = text();
    return m_locked;
}

void CEditView::UnlockBuffer() const
{
    m_locked.Empty();
}

void CEditView::GetSelectedText(CString& result) const
{
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    result = text().Mid(start, end - start).SpanExcluding(L"\r\n");
}

void CEditView::SetTabStops(int width)
{
    GetEditCtrl().SetTabStops(width);
    Invalidate();
}

// The Edit menu

void CEditView::OnEditUndo()
{
    GetEditCtrl().Undo();
}

void CEditView::OnEditCut()
{
    GetEditCtrl().Cut();
}

void CEditView::OnEditCopy()
{
    GetEditCtrl().Copy();
}

void CEditView::OnEditPaste()
{
    GetEditCtrl().Paste();
}

void CEditView::OnEditClear()
{
    GetEditCtrl().Clear();
}

void CEditView::OnEditSelectAll()
{
    GetEditCtrl().SetSel(0, -1);
}

void CEditView::OnUpdateEditUndo(CCmdUI* ui)
{
    ui->Enable(GetEditCtrl().CanUndo());
}

void CEditView::OnUpdateNeedSel(CCmdUI* ui)
{
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    ui->Enable(start != end);
}

void CEditView::OnUpdateNeedText(CCmdUI* ui)
{
    ui->Enable(GetBufferLength() > 0);
}

void CEditView::OnUpdateNeedClip(CCmdUI* ui)
{
    ui->Enable(::IsClipboardFormatAvailable(CF_UNICODETEXT));
}
