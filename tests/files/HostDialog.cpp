#include "HostDialog.h"
#include "resource.h"
#include "support/WindowFacts.h"

#include <gtest/gtest.h>

#include <dlgs.h>

using namespace ovo::testkit;
using support::classOf;

namespace
{

constexpr const wchar_t* kFormats[] = {L"Plain", L"Packed", L"Sealed"};

} // namespace

std::string nameOf(Kind kind)
{
    return kind == Kind::Classic ? "classic" : "newStyle";
}

Labels::Labels(UINT templateId)
{
    static CWnd s_owner;
    if (!s_owner.m_hWnd)
        s_owner.CreateEx(0, AfxRegisterWndClass(0), L"Labels", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    Create(templateId, &s_owner);
}

Labels::~Labels()
{
    CWnd* const owner = GetParent();
    DestroyWindow();
    owner->DestroyWindow();
}

HostDialog::HostDialog(Kind kind, BOOL open, CWnd* parent, const wchar_t* filter, DWORD flags)
    : COVOFileDialog(open, L"txt", nullptr, flags, filter, parent, kind == Kind::NewStyle)
{
    EXPECT_EQ(IsVistaStyle(), kind == Kind::NewStyle);
    if (IsVistaStyle()) {
        addControls();
    } else {
        ofn->Flags |= OFN_ENABLETEMPLATE;
        ofn->lpTemplateName = MAKEINTRESOURCE(IDD_CONTROLS);
    }
}

HostDialog::~HostDialog() = default;

void HostDialog::addControls()
{
    const Labels labels(IDD_CONTROLS);
    AddCheckButton(labels, IDC_BACKUP, false);
    AddComboBox(labels, IDC_FORMAT_LABEL, IDC_FORMAT);
    for (DWORD item = 0; item < std::size(kFormats); ++item)
        AddControlItem(IDC_FORMAT, item, kFormats[item]);
    SetSelectedControlItem(IDC_FORMAT, 0);
    AddEditBox(labels, IDC_QUALITY_TEXT, IDC_QUALITY);
}

int HostDialog::count(const std::string& event) const
{
    return static_cast<int>(std::count(events.begin(), events.end(), event));
}

void HostDialog::note(const std::string& event)
{
    events.push_back(event);
    const auto deed = on.find(event.substr(0, event.find(' ')));
    if (deed != on.end())
        deed->second();
}

BOOL HostDialog::OnHelpInfo(HELPINFO*, BOOL handled)
{
    note("HelpInfo " + std::to_string(handled));
    return TRUE;
}

void HostDialog::OnSize(UINT, int, int)
{
    note("Size");
}

BOOL HostDialog::OnInitDialog()
{
    for (const wchar_t* item : kFormats)
        ::SendMessageW(GetDlgItem(IDC_FORMAT)->m_hWnd, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    ::SendMessageW(GetDlgItem(IDC_FORMAT)->m_hWnd, CB_SETCURSEL, 0, 0);
    note("InitDialog");
    return TRUE;
}

BOOL HostDialog::OnFileNameOK(BOOL result)
{
    note("FileNameOK " + std::to_string(result));
    return onFileNameOK(result);
}

void HostDialog::OnLBSelChangedNotify(UINT box, UINT selection, UINT code)
{
    note("LBSelChanged " + std::to_string(box) + " " + std::to_string(selection) + " " +
         std::to_string(code));
}

LRESULT HostDialog::OnPostInit(WPARAM wParam, LPARAM lParam)
{
    note("PostInit " + std::to_string(wParam) + " " + std::to_string(lParam));
    return 1;
}

void HostDialog::OnItemSelected(DWORD id, DWORD item)
{
    note("ItemSelected " + std::to_string(id) + " " + std::to_string(item));
}

void HostDialog::OnButtonClicked(DWORD id)
{
    note("ButtonClicked " + std::to_string(id));
}

void HostDialog::OnCheckButtonToggled(DWORD id, BOOL checked)
{
    note("CheckButtonToggled " + std::to_string(id) + " " + std::to_string(checked));
}

void HostDialog::OnControlActivating(DWORD id)
{
    note("ControlActivating " + std::to_string(id));
}

void HostDialog::OnEnChange(DWORD id)
{
    note("EnChange " + std::to_string(id));
}

Story whenAsked()
{
    return Robot().waitFor("the file dialog", [] { return asked() != nullptr; });
}

HWND asked()
{
    return shownDialog();
}

namespace
{

HWND below(HWND root, const std::function<bool(HWND)>& wanted)
{
    struct Search
    {
        const std::function<bool(HWND)>& wanted;
        HWND found;
    } search{wanted, nullptr};
    ::EnumChildWindows(
        root,
        [](HWND wnd, LPARAM parameter) -> BOOL {
            auto& looked = *reinterpret_cast<Search*>(parameter);
            if (looked.wanted(wnd))
                looked.found = wnd;
            return looked.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

HWND controlWithText(const wchar_t* text)
{
    return below(asked(), [text](HWND wnd) {
        wchar_t buffer[260]{};
        ::GetWindowTextW(wnd, buffer, 260);
        return ::IsWindowVisible(wnd) && std::wstring(buffer) == text;
    });
}

HWND controlOf(const HostDialog& dialog, DWORD id)
{
    if (!dialog.IsVistaStyle())
        return dialog.GetDlgItem(static_cast<int>(id))->GetSafeHwnd();
    // The system gives the controls numbers of its own; this dialog has one of each class.
    const HWND pane = below(asked(), [](HWND wnd) { return classOf(wnd) == L"idlg_container_pane"; });
    const std::wstring wanted = id == IDC_BACKUP ? L"Button" : id == IDC_FORMAT ? L"ComboBox" : L"Edit";
    return below(pane, [&](HWND wnd) { return classOf(wnd) == wanted; });
}

HWND nameBox()
{
    const HWND combo = ::GetDlgItem(asked(), cmb13);
    return combo ? combo : ::GetDlgItem(asked(), edt1);
}

HWND controlOfClass(const wchar_t* windowClass, const wchar_t* text)
{
    return below(asked(), [=](HWND wnd) {
        wchar_t buffer[260]{};
        ::GetWindowTextW(wnd, buffer, 260);
        return ::IsWindowVisible(wnd) && classOf(wnd) == windowClass &&
               (!text || std::wstring(buffer) == text);
    });
}
