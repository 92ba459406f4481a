// A colour dialog outside the source tree, made of what the package exports alone.
#include "HostPaletteDlg.h"

#include <ovouires/resource.h>

class PaletteApp : public CWinApp
{
    BOOL InitInstance() override
    {
        HostPaletteDlg dialog(*this, ColPickerModeHLS, Colour::rgb(1, 0, 0), nullptr, nullptr);
        if (!dialog.Create(IDD_COLOUR_PALETTE, nullptr))
            return FALSE;
        CString name;
        dialog.GetDlgItemText(IDC_COLOUR_TEXT, name);
        dialog.SetDlgItemText(IDC_COLOUR_TEXT, L"navy");
        const HWND field = ::GetDlgItem(dialog, IDC_COLOUR_TEXT);
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_COLOUR_TEXT, EN_KILLFOCUS),
                           reinterpret_cast<LPARAM>(field));
        m_works = name == L"red" && dialog.GetColour().colorref() == RGB(0, 0, 128);
        dialog.DestroyWindow();
        return FALSE;
    }
    int ExitInstance() override { return m_works ? 0 : 1; }

    bool m_works = false;
} theApp;
