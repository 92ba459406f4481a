// CEditView: finding and replacing.
#include <afxext.h>

#include "core/textsearch.h"
#include "finddialog.h"

#include <detail/pending.h>

namespace afxdetail
{

FindDialog::~FindDialog()
{
    close();
}

UINT FindDialog::message()
{
    static const UINT number = ::RegisterWindowMessageW(FINDMSGSTRINGW);
    return number;
}

void FindDialog::open(const CWnd& owner, bool replace, const CString& text)
{
    if (m_window.m_hWnd && m_replaces == replace) {
        m_window.SetActiveWindow();
        return;
    }
    close();
    if (!text.IsEmpty())
        ::lstrcpynW(m_what.data(), text, static_cast<int>(m_what.size()));
    m_data = {};
    m_data.lStructSize = sizeof m_data;
    m_data.hwndOwner = owner.m_hWnd;
    m_data.Flags = m_settings | FR_HIDEWHOLEWORD;
    m_data.lpstrFindWhat = m_what.data();
    m_data.wFindWhatLen = static_cast<WORD>(m_what.size());
    m_data.lpstrReplaceWith = m_with.data();
    m_data.wReplaceWithLen = static_cast<WORD>(m_with.size());
    m_replaces = replace;
    const HWND wnd = callOut([&] { return replace ? ::ReplaceTextW(&m_data) : ::FindTextW(&m_data); });
    if (wnd)
        m_window.SubclassWindow(wnd);
}

void FindDialog::close()
{
    if (m_window.m_hWnd)
        m_window.DestroyWindow();
}

} // namespace afxdetail

void CEditView::OnEditFind()
{
    openFindDialog(false);
}

void CEditView::OnEditReplace()
{
    openFindDialog(true);
}

void CEditView::openFindDialog(bool replace)
{
    CString selected;
    GetSelectedText(selected);
    m_find->open(*this, replace, selected);
}

void CEditView::OnEditRepeat()
{
    OnFindNext(m_find->what(), m_find->next(), m_find->matchCase());
}

void CEditView::OnUpdateNeedFind(CCmdUI* ui)
{
    ui->Enable(*m_find->what() != 0 && GetBufferLength() > 0);
}

LRESULT CEditView::OnFindReplaceCmd(WPARAM, LPARAM lParam)
{
    const auto* const told = reinterpret_cast<const FINDREPLACEW*>(lParam);
    if (!m_find->sent(told) || (told->Flags & FR_DIALOGTERM))
        return 0;
    m_find->keepSettings();
    // The handlers may do away with the view.
    const DWORD wanted = told->Flags;
    const CString what(m_find->what());
    const CString with(m_find->with());
    const bool matchCase = m_find->matchCase();
    const bool next = m_find->next();
    if (wanted & FR_FINDNEXT)
        OnFindNext(what, next, matchCase);
    else if (wanted & FR_REPLACE)
        OnReplaceSel(what, next, matchCase, with);
    else if (wanted & FR_REPLACEALL)
        OnReplaceAll(what, with, matchCase);
    return 0;
}

BOOL CEditView::FindText(LPCTSTR what, BOOL next, BOOL matchCase)
{
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    const CString all = text();
    const auto found = afxdetail::findText(all.GetString(), what, static_cast<std::size_t>(start),
                                           static_cast<std::size_t>(end), next != FALSE, matchCase != FALSE);
    if (!found)
        return FALSE;
    const int at = static_cast<int>(*found);
    GetEditCtrl().SetSel(at, at + ::lstrlenW(what));
    return TRUE;
}

bool CEditView::isSelected(LPCTSTR what, BOOL matchCase) const
{
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    return *what && afxdetail::sameText(text().Mid(start, end - start).GetString(), what, matchCase != FALSE);
}

void CEditView::OnFindNext(LPCTSTR what, BOOL next, BOOL matchCase)
{
    if (!FindText(what, next, matchCase))
        OnTextNotFound(what);
}

void CEditView::OnReplaceSel(LPCTSTR what, BOOL next, BOOL matchCase, LPCTSTR replacement)
{
    if (isSelected(what, matchCase))
        GetEditCtrl().ReplaceSel(replacement, TRUE);
    if (!FindText(what, next, matchCase))
        OnTextNotFound(what);
}

void CEditView::OnReplaceAll(LPCTSTR what, LPCTSTR replacement, BOOL matchCase)
{
    if (!isSelected(what, matchCase)) {
        if (!FindText(what, TRUE, matchCase))
            OnTextNotFound(what);
        return;
    }
    do
        GetEditCtrl().ReplaceSel(replacement, TRUE);
    while (FindText(what, TRUE, matchCase));
}

void CEditView::OnTextNotFound(LPCTSTR)
{
    ::MessageBeep(MB_ICONHAND);
}
