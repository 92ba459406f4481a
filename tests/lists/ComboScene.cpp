#include "ComboScene.h"

#include <map>
#include <utility>

using namespace ovo::testkit;

namespace
{

constexpr UINT kCombo = 21;
constexpr UINT kButton = 22;

} // namespace

std::string nameOfNotification(int code)
{
    static const std::map<int, const char*> names{{CBN_SELCHANGE, "SELCHANGE"},
                                                  {CBN_DBLCLK, "DBLCLK"},
                                                  {CBN_SETFOCUS, "SETFOCUS"},
                                                  {CBN_KILLFOCUS, "KILLFOCUS"},
                                                  {CBN_EDITCHANGE, "EDITCHANGE"},
                                                  {CBN_EDITUPDATE, "EDITUPDATE"},
                                                  {CBN_DROPDOWN, "DROPDOWN"},
                                                  {CBN_CLOSEUP, "CLOSEUP"},
                                                  {CBN_SELENDOK, "SELENDOK"},
                                                  {CBN_SELENDCANCEL, "SELENDCANCEL"},
                                                  {0x40, "RETURN"},
                                                  {0x41, "UP"},
                                                  {0x42, "DOWN"}};
    const auto found = names.find(code);
    return found == names.end() ? std::to_string(code) : found->second;
}

ComboParent::ComboParent()
{
    CreateEx(0,
             AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW),
                                 reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1)),
             L"Combo parent", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(60, 60, 460, 400), nullptr, 0);
}

ComboParent::~ComboParent()
{
    DestroyWindow();
}

BOOL ComboParent::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (id != kCombo || code <= 0 || code > 0xFF)
        return CWnd::OnCmdMsg(id, code, extra, info);
    heard.push_back(nameOfNotification(code));
    if (hearing) {
        const auto deed = hearing; // which may replace it, or delete this
        deed(nameOfNotification(code));
    }
    return TRUE;
}

ComboScene::ComboScene(std::initializer_list<const wchar_t*> items, DWORD style)
{
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_AUTOHSCROLL | style,
                 CRect(10, 10, 210, 160), &parent, kCombo);
    for (const wchar_t* item : items)
        combo.AddString(item);
    button.Create(L"Other", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 220, 100, 250), &parent, kButton);
}

ComboScene::~ComboScene()
{
    parent.hearing = nullptr;
    combo.DestroyWindow();
}

void ComboScene::show()
{
    present(parent);
    button.SetFocus();
    GuiThread::settle();
    take();
}

void ComboScene::enter()
{
    enterWith(-1);
}

void ComboScene::enterWith(int selection)
{
    combo.SetCurSel(selection);
    show();
    combo.SetFocus();
    GuiThread::settle();
    take();
}

HWND ComboScene::edit() const
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(combo, &info);
    return info.hwndItem;
}

HWND ComboScene::listBox() const
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(combo, &info);
    return info.hwndList;
}

std::wstring ComboScene::text() const
{
    CString text;
    combo.GetWindowText(text);
    return text.GetString();
}

std::pair<int, int> ComboScene::marked() const
{
    const DWORD both = combo.GetEditSel();
    return {LOWORD(both), HIWORD(both)};
}

Heard ComboScene::take()
{
    return std::exchange(parent.heard, {});
}
