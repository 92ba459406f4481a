#include "GalleryPage.h"

#include <afxcmn.h>

namespace
{

std::wstring number(UINT value)
{
    return std::to_wstring(value);
}

/// The name of a notification of a standard control, by the control's class.
std::wstring commandName(HWND control, UINT code)
{
    wchar_t cls[32]{};
    ::GetClassNameW(control, cls, 32);
    const std::wstring kind(cls);
    if (kind == L"Button" && code == BN_CLICKED)
        return L"BN_CLICKED";
    if (kind == L"Edit" && code == EN_CHANGE)
        return L"EN_CHANGE";
    if (kind == L"Edit" && code == EN_UPDATE)
        return L"EN_UPDATE";
    if (kind == L"ComboBox" && code == CBN_SELCHANGE)
        return L"CBN_SELCHANGE";
    if (kind == L"ComboBox" && code == CBN_DROPDOWN)
        return L"CBN_DROPDOWN";
    if (kind == L"ComboBox" && code == CBN_CLOSEUP)
        return L"CBN_CLOSEUP";
    return L"WM_COMMAND code " + number(code);
}

std::wstring notifyName(UINT code)
{
    switch (code) {
    case static_cast<UINT>(TCN_SELCHANGING):
        return L"TCN_SELCHANGING";
    case static_cast<UINT>(TCN_SELCHANGE):
        return L"TCN_SELCHANGE";
    default:
        return {};
    }
}

} // namespace

GalleryPage::GalleryPage(UINT templateId)
    : CDialog(templateId)
{
}

GalleryPage::~GalleryPage() = default;

bool GalleryPage::open(CWnd& parent, Log log)
{
    m_log = std::move(log);
    return Create(m_lpszTemplateName, &parent) != FALSE;
}

void GalleryPage::log(const std::wstring& line) const
{
    if (m_log)
        m_log(line);
}

BOOL GalleryPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam)
        log(commandName(reinterpret_cast<HWND>(lParam), HIWORD(wParam)) + L" from " + number(LOWORD(wParam)));
    return CDialog::OnCommand(wParam, lParam);
}

BOOL GalleryPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const std::wstring name = notifyName(reinterpret_cast<NMHDR*>(lParam)->code);
    if (!name.empty())
        log(name + L" from " + number(static_cast<UINT>(wParam)));
    return CDialog::OnNotify(wParam, lParam, result);
}
