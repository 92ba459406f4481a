#include "FakeClassicDialog.h"

namespace
{

constexpr UINT kShown = WM_APP + 1;
constexpr UINT kUserCancels = WM_APP + 2;

FakeClassicDialog* s_current = nullptr;

/// A dialog without controls, as the system reads it.
struct alignas(DWORD) EmptyTemplate
{
    DLGTEMPLATE dialog{WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 10, 10, 340, 60};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

} // namespace

FakeClassicDialog::FakeClassicDialog()
    : m_opening(L"ovomfc.dll", "GetOpenFileNameW", reinterpret_cast<void*>(&show))
    , m_saving(L"ovomfc.dll", "GetSaveFileNameW", reinterpret_cast<void*>(&show))
{
    s_current = this;
}

FakeClassicDialog::~FakeClassicDialog()
{
    s_current = nullptr;
}

LRESULT FakeClassicDialog::notify(UINT event) const
{
    OFNOTIFYW notification{};
    notification.hdr = {::GetParent(m_child), 0, event};
    notification.lpOFN = m_settings;
    return ::SendMessageW(m_child, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification));
}

BOOL WINAPI FakeClassicDialog::show(OPENFILENAMEW* settings)
{
    const EmptyTemplate empty;
    s_current->m_settings = settings;
    s_current->m_cancelled = false;
    return ::DialogBoxIndirectParamW(::GetModuleHandleW(nullptr), &empty.dialog, settings->hwndOwner,
                                     &procedure, 0) == IDOK;
}

INT_PTR CALLBACK FakeClassicDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    FakeClassicDialog& fake = *s_current;
    switch (message) {
    case WM_INITDIALOG:
        fake.begin(dialog);
        return TRUE;
    case kShown:
        if (fake.onShow)
            fake.onShow(fake.m_child);
        ::PostMessageW(dialog, kUserCancels, 0, 0);
        return TRUE;
    case kUserCancels:
        fake.m_cancelled = true;
        ::EndDialog(dialog, IDCANCEL);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)
            ::EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    default:
        return FALSE;
    }
}

INT_PTR CALLBACK FakeClassicDialog::childProcedure(HWND child, UINT message, WPARAM wParam, LPARAM lParam)
{
    return static_cast<INT_PTR>(s_current->m_settings->lpfnHook(child, message, wParam, lParam));
}

void FakeClassicDialog::begin(HWND dialog)
{
    ::ShowWindow(dialog, SW_SHOW);
    m_child = ::CreateDialogParamW(m_settings->hInstance, m_settings->lpTemplateName, dialog, &childProcedure,
                                   reinterpret_cast<LPARAM>(m_settings));
    ::ShowWindow(m_child, SW_SHOW);
    notify(CDN_INITDONE);
    ::PostMessageW(dialog, kShown, 0, 0);
}
