// Opening and cancelling a file dialog with five controls of the host, against the system's calls by hand.
#include "resource.h"
#include "support/DialogAnswer.h"

#include <ovoui/files/FileDialog.h>

#include <afxwin.h>
#include <ole2.h>
#include <shobjidl.h>

#include <catch2/catch.hpp>

namespace
{

/// The template's dialog, which has the labels.
class Labels : public CDialog
{
public:
    Labels()
    {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"Labels", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        Create(IDD_CONTROLS, &m_owner);
    }
    ~Labels() override { DestroyWindow(); }

private:
    CWnd m_owner;
};

constexpr DWORD kFlags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
constexpr wchar_t kFilter[] = L"Text|*.txt|All|*.*||";

INT_PTR showNewStyle(const Labels& labels)
{
    COVOFileDialog dialog(TRUE, L"txt", nullptr, kFlags, kFilter, nullptr, TRUE);
    dialog.AddCheckButton(labels, IDC_BACKUP, true);
    dialog.AddComboBox(labels, IDC_FORMAT_LABEL, IDC_FORMAT);
    dialog.AddEditBox(labels, 0, IDC_QUALITY);
    dialog.AddPushButton(labels, IDC_DETAILS);
    dialog.AddText(labels, IDC_NOTE);
    return dialog.DoModal();
}

HRESULT showInterface()
{
    IFileDialog* dialog = nullptr;
    IFileDialogCustomize* customize = nullptr;
    ::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog,
                       reinterpret_cast<void**>(&dialog));
    dialog->QueryInterface(IID_IFileDialogCustomize, reinterpret_cast<void**>(&customize));
    customize->AddCheckButton(IDC_BACKUP, L"&Backup", TRUE);
    customize->StartVisualGroup(IDC_FORMAT_LABEL, L"&Format:");
    customize->AddComboBox(IDC_FORMAT);
    customize->EndVisualGroup();
    customize->AddEditBox(IDC_QUALITY, L"");
    customize->AddPushButton(IDC_DETAILS, L"&Details");
    customize->AddText(IDC_NOTE, L"A note");
    dialog->SetOptions(FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR);
    const COMDLG_FILTERSPEC types[] = {{L"Text", L"*.txt"}, {L"All", L"*.*"}};
    dialog->SetFileTypes(2, types);
    dialog->SetDefaultExtension(L"txt");
    const HRESULT answer = dialog->Show(nullptr);
    customize->Release();
    dialog->Release();
    return answer;
}

INT_PTR showClassic()
{
    COVOFileDialog dialog(TRUE, L"txt", nullptr, kFlags, kFilter, nullptr, FALSE);
    dialog.ofn->Flags |= OFN_ENABLETEMPLATE;
    dialog.ofn->lpTemplateName = MAKEINTRESOURCE(IDD_CONTROLS);
    return dialog.DoModal();
}

UINT_PTR CALLBACK noHook(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

BOOL showGetOpenFileName()
{
    wchar_t file[MAX_PATH]{};
    OPENFILENAMEW ofn{};
    ofn.lStructSize = sizeof ofn;
    ofn.hInstance = ::GetModuleHandleW(nullptr);
    ofn.lpstrFilter = L"Text\0*.txt\0All\0*.*\0";
    ofn.lpstrFile = file;
    ofn.nMaxFile = MAX_PATH;
    ofn.lpstrDefExt = L"txt";
    ofn.Flags = kFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLETEMPLATE | OFN_ENABLESIZING;
    ofn.lpfnHook = &noHook;
    ofn.lpTemplateName = MAKEINTRESOURCE(IDD_CONTROLS);
    return ::GetOpenFileNameW(&ofn);
}

} // namespace

TEST_CASE("opening and cancelling: the new-style dialog")
{
    ::OleInitialize(nullptr);
    {
        const DialogAnswer<IDCANCEL> cancelling;
        const Labels labels;
        REQUIRE(FAILED(showInterface()));
        REQUIRE(showNewStyle(labels) == IDCANCEL);
        BENCHMARK("the interfaces by hand")
        {
            return showInterface();
        };
        BENCHMARK("COVOFileDialog [at most 1.2]")
        {
            return showNewStyle(labels);
        };
    }
    ::OleUninitialize();
}

TEST_CASE("opening and cancelling: the classic dialog")
{
    const DialogAnswer<IDCANCEL> cancelling;
    REQUIRE(!showGetOpenFileName());
    REQUIRE(showClassic() == IDCANCEL);
    BENCHMARK("GetOpenFileName with the same template")
    {
        return showGetOpenFileName();
    };
    BENCHMARK("COVOFileDialog [at most 1.2]")
    {
        return showClassic();
    };
}
