#include "FileDialogScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

std::string nameOf(Kind kind)
{
    return kind == Kind::Classic ? "classic" : "newer";
}

RecordingFileDialog::RecordingFileDialog(Kind kind, BOOL open, DWORD flags, const wchar_t* filter,
                                         CWnd* parent, const wchar_t* fileName, const wchar_t* extension)
    : CFileDialog(open, extension, fileName, flags, filter, parent, 0, kind == Kind::Newer)
{
    EXPECT_EQ(m_bVistaStyle != FALSE, kind == Kind::Newer);
}

int RecordingFileDialog::count(const std::string& event) const
{
    return static_cast<int>(std::count(events.begin(), events.end(), event));
}

void RecordingFileDialog::note(const std::string& event)
{
    events.push_back(event);
    const auto deed = on.find(event.substr(0, event.find(' ')));
    if (deed != on.end())
        deed->second();
}

BOOL RecordingFileDialog::OnInitDialog()
{
    const BOOL result = CFileDialog::OnInitDialog();
    note("InitDialog");
    return result;
}

BOOL RecordingFileDialog::OnFileNameOK()
{
    note("FileNameOK");
    return onFileNameOK();
}

UINT RecordingFileDialog::OnShareViolation(LPCTSTR path)
{
    note("ShareViolation");
    return onShareViolation ? onShareViolation(path) : CFileDialog::OnShareViolation(path);
}

void RecordingFileDialog::OnLBSelChangedNotify(UINT box, UINT selection, UINT code)
{
    note("LBSelChanged " + std::to_string(box) + " " + std::to_string(selection) + " " +
         std::to_string(code));
}

void RecordingFileDialog::OnItemSelected(DWORD control, DWORD item)
{
    note("ItemSelected " + std::to_string(control) + " " + std::to_string(item));
}

void RecordingFileDialog::OnButtonClicked(DWORD control)
{
    note("ButtonClicked " + std::to_string(control));
}

void RecordingFileDialog::OnCheckButtonToggled(DWORD control, BOOL checked)
{
    note("CheckButtonToggled " + std::to_string(control) + " " + std::to_string(checked));
}

void RecordingFileDialog::OnControlActivating(DWORD control)
{
    note("ControlActivating " + std::to_string(control));
}

Story whenAsked()
{
    return Robot().waitFor("the file dialog", [] { return asked() != nullptr; });
}

HWND asked()
{
    return shownDialog();
}

HWND controlWithText(const wchar_t* text)
{
    struct Search
    {
        const wchar_t* text;
        HWND found;
    } search{text, nullptr};
    ::EnumChildWindows(
        asked(),
        [](HWND wnd, LPARAM parameter) -> BOOL {
            auto& looked = *reinterpret_cast<Search*>(parameter);
            wchar_t buffer[260]{};
            ::GetWindowTextW(wnd, buffer, 260);
            if (std::wstring(buffer) == looked.text && ::IsWindowVisible(wnd))
                looked.found = wnd;
            return looked.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND nameBox()
{
    const HWND combo = ::GetDlgItem(asked(), cmb13);
    return combo ? combo : ::GetDlgItem(asked(), edt1);
}
