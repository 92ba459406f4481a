// Opening and closing the message box with a two-line text, against the platform's own dialog made from an
// equal template: the same window, text, icon and button at the same places.
#include "support/DialogAnswer.h"

#include <ovoui/frame/MessageBox.h>

#include <afxwin.h>

#include <catch2/catch.hpp>

#include <string>
#include <vector>

namespace
{

constexpr wchar_t kText[] = L"The document has been changed.\r\nSave the changes before closing?";
constexpr UINT kType = MB_OKCANCEL | MB_ICONQUESTION;

/// A dialog template in memory, written item by item.
class Template
{
public:
    Template(const std::wstring& title, const RECT& units, int items)
    {
        number(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT);
        number(0);
        word(static_cast<WORD>(items));
        place(units);
        word(0); // no menu
        word(0); // the dialog class
        text(title);
        word(8);
        text(L"MS Shell Dlg");
    }

    void item(DWORD style, const RECT& units, WORD id, WORD cls, const std::wstring& label)
    {
        if (m_words.size() % 2)
            word(0);
        number(style | WS_CHILD | WS_VISIBLE);
        number(0);
        place(units);
        word(id);
        word(0xFFFF);
        word(cls);
        text(label);
        word(0);
    }

    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    void word(WORD value) { m_words.push_back(value); }
    void number(DWORD value)
    {
        word(LOWORD(value));
        word(HIWORD(value));
    }
    void place(const RECT& r)
    {
        for (const LONG value : {r.left, r.top, r.right - r.left, r.bottom - r.top})
            word(static_cast<WORD>(value));
    }
    void text(const std::wstring& value)
    {
        for (const wchar_t c : value)
            word(static_cast<WORD>(c));
        word(0);
    }

    std::vector<WORD> m_words;
};

constexpr WORD kButtonClass = 0x0080;
constexpr WORD kEditClass = 0x0081;
constexpr WORD kStaticClass = 0x0082;

Template equalTemplate()
{
    Template result(L"Message", {60, 60, 250, 125}, 4);
    result.item(ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_TABSTOP, {30, 5, 180, 22}, 100, kEditClass,
                kText);
    result.item(BS_DEFPUSHBUTTON | WS_TABSTOP, {70, 40, 125, 54}, IDOK, kButtonClass, L"OK");
    result.item(BS_PUSHBUTTON | WS_TABSTOP, {130, 40, 185, 54}, IDCANCEL, kButtonClass, L"Cancel");
    result.item(SS_ICON, {7, 5, 27, 25}, 101, kStaticClass, L"");
    return result;
}

INT_PTR CALLBACK plainDialog(HWND wnd, UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_INITDIALOG) {
        ::SendDlgItemMessageW(wnd, 101, STM_SETICON,
                              reinterpret_cast<WPARAM>(::LoadIconW(nullptr, IDI_QUESTION)), 0);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDOK)
        return ::EndDialog(wnd, IDOK);
    return FALSE;
}

} // namespace

TEST_CASE("Opening and closing a message box with two lines")
{
    const DialogAnswer<IDOK> answering;
    const Template plain = equalTemplate();
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    REQUIRE(::DialogBoxIndirectParamW(instance, plain.get(), nullptr, &plainDialog, 0) == IDOK);
    REQUIRE(OVOMessageBox(nullptr, kText, nullptr, kType, nullptr, 0) == IDOK);

    BENCHMARK("DialogBoxIndirectParam of an equal template")
    {
        return ::DialogBoxIndirectParamW(instance, plain.get(), nullptr, &plainDialog, 0);
    };
    BENCHMARK("OVOMessageBox [at most 1.5]")
    {
        return OVOMessageBox(nullptr, kText, nullptr, kType, nullptr, 0);
    };
}
