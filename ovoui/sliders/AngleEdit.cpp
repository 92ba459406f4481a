#include <ovoui/sliders/AngleEdit.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/WindowText.h>
#include <ovoui/sliders/UnitNumbers.h>
#include <ovoui/sliders/core/SliderPlaces.h>

#include <string>
#include <utility>

namespace ovoui::sliders
{

BEGIN_MESSAGE_MAP(AngleEdit, CEdit)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

namespace
{

constexpr int kCharacters = 7; // room for "-360.25"

CSize digitSize(CWnd& window)
{
    CClientDC dc(&window);
    const frame::SelectedTool font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    return dc.GetTextExtent(L"0", 1);
}

} // namespace

void AngleEdit::open(CWnd& over, wchar_t first, Done done)
{
    CRect client;
    over.GetClientRect(&client);
    const CSize digit = digitSize(over);
    const RECT place = frame::toRect(editPlace(frame::toBox(client), kCharacters, digit.cx, digit.cy));
    if (!Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL | ES_CENTER, place, &over, 1))
        return;
    m_done = std::move(done);
    SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))), FALSE);
    SetWindowText(std::wstring(1, first).c_str());
    SetSel(1, 1);
    SetFocus();
}

UINT AngleEdit::OnGetDlgCode()
{
    return CEdit::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

void AngleEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const EditEnd end = editEndOf(key);
    if (end == EditEnd::GoesOn)
        CEdit::OnKeyDown(key, repeat, flags);
    else
        finish(end, true);
}

void AngleEdit::OnKillFocus(CWnd* other)
{
    const Lifeline::Watch watch(*this); // the slider is told, which a host may have derived
    CEdit::OnKillFocus(other);
    if (watch.alive())
        finish(EditEnd::Accept, false);
}

/// Destroying the window takes the focus from it: the second time there is nothing left to do.
void AngleEdit::finish(EditEnd end, bool byKey)
{
    const Done done = std::exchange(m_done, nullptr);
    if (!done)
        return;
    CUnitNumbers usersSigns(std::wstring(), false);
    std::wstring text;
    usersSigns.fromDisplay(text, frame::windowText(m_hWnd));
    DestroyWindow();
    done(typedAngle(end, text), byKey);
}

} // namespace ovoui::sliders
