#include "NotificationNames.h"

#include <ovoui/colour/ColourButton.h>
#include <ovoui/colour/ColourDropper.h>
#include <ovoui/lists/ComboBox.h>

#include <commctrl.h>

#include <array>
#include <map>
#include <utility>

namespace
{

#define NAMED(code)                                                                                          \
    {                                                                                                        \
        static_cast<UINT>(code), L## #code                                                                   \
    }

using Names = std::map<UINT, const wchar_t*>;

// The codes of WM_COMMAND mean something else in every class of controls.
const std::map<std::wstring, Names>& commandNames()
{
    static const std::map<std::wstring, Names> names{
        {L"Button",
         {NAMED(BN_CLICKED), NAMED(BN_DOUBLECLICKED), NAMED(BN_SETFOCUS), NAMED(BN_KILLFOCUS),
          NAMED(CColourButton::kChosen), NAMED(CColourButton::kPointed), NAMED(CColourButton::kDropped),
          NAMED(CColourButton::kClosed), NAMED(CColourDropper::kTaken)}},
        {L"Edit",
         {NAMED(EN_SETFOCUS), NAMED(EN_KILLFOCUS), NAMED(EN_CHANGE), NAMED(EN_UPDATE), NAMED(EN_MAXTEXT),
          NAMED(EN_HSCROLL), NAMED(EN_VSCROLL)}},
        {L"ComboBox",
         {NAMED(CBN_SELCHANGE), NAMED(CBN_DBLCLK), NAMED(CBN_SETFOCUS), NAMED(CBN_KILLFOCUS),
          NAMED(CBN_EDITCHANGE), NAMED(CBN_EDITUPDATE), NAMED(CBN_DROPDOWN), NAMED(CBN_CLOSEUP),
          NAMED(CBN_SELENDOK), NAMED(CBN_SELENDCANCEL), NAMED(OVOCBN_RETURN), NAMED(OVOCBN_UP),
          NAMED(OVOCBN_DOWN)}},
        {L"ListBox",
         {NAMED(LBN_SELCHANGE), NAMED(LBN_DBLCLK), NAMED(LBN_SELCANCEL), NAMED(LBN_SETFOCUS),
          NAMED(LBN_KILLFOCUS)}},
    };
    return names;
}

const Names& notifyNames()
{
    static const Names names{
        NAMED(NM_CLICK),        NAMED(NM_DBLCLK),           NAMED(NM_RETURN),
        NAMED(NM_RCLICK),       NAMED(NM_RDBLCLK),          NAMED(NM_SETFOCUS),
        NAMED(NM_KILLFOCUS),    NAMED(NM_RELEASEDCAPTURE),  NAMED(TCN_SELCHANGING),
        NAMED(TCN_SELCHANGE),   NAMED(TCN_KEYDOWN),         NAMED(TVN_SELCHANGINGW),
        NAMED(TVN_SELCHANGEDW), NAMED(TVN_ITEMEXPANDINGW),  NAMED(TVN_ITEMEXPANDEDW),
        NAMED(TVN_BEGINDRAGW),  NAMED(TVN_BEGINRDRAGW),     NAMED(TVN_DELETEITEMW),
        NAMED(TVN_KEYDOWN),     NAMED(TVN_BEGINLABELEDITW), NAMED(TVN_ENDLABELEDITW),
        NAMED(LVN_ITEMCHANGED), NAMED(LVN_COLUMNCLICK),     NAMED(LVN_ITEMACTIVATE),
        NAMED(LVN_KEYDOWN),     NAMED(LVN_ITEMCHANGING),    NAMED(LVN_INSERTITEM),
        NAMED(LVN_DELETEITEM),  NAMED(LVN_DELETEALLITEMS),  NAMED(LVN_ODSTATECHANGED),
        NAMED(LVN_ODFINDITEMW), NAMED(LVN_BEGINDRAG),       NAMED(LVN_BEGINRDRAG),
        NAMED(LVN_BEGINSCROLL), NAMED(LVN_ENDSCROLL),       NAMED(LVN_MARQUEEBEGIN),
        NAMED(UDN_DELTAPOS),    NAMED(TBN_HOTITEMCHANGE),   NAMED(TBN_DELETINGBUTTON),
    };
    return names;
}

#undef NAMED

bool isSentWhileDrawing(UINT code)
{
    return code == static_cast<UINT>(NM_CUSTOMDRAW) || code == static_cast<UINT>(NM_SETCURSOR) ||
           code == static_cast<UINT>(TVN_GETDISPINFOW) || code == static_cast<UINT>(LVN_GETDISPINFOW) ||
           code == static_cast<UINT>(TTN_GETDISPINFOW) || code == static_cast<UINT>(LVN_ODCACHEHINT);
}

std::wstring classOf(HWND window)
{
    std::array<wchar_t, 64> name{};
    const int length = ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return {name.data(), static_cast<std::size_t>(length)};
}

std::wstring textOf(HWND window)
{
    std::array<wchar_t, 128> text{};
    const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return {text.data(), static_cast<std::size_t>(length)};
}

// What stands before a control, or before the window that it fills, as a tree fills its pane.
HWND windowBefore(HWND control)
{
    const HWND before = ::GetWindow(control, GW_HWNDPREV);
    const HWND parent = ::GetParent(control);
    const bool onDialog = classOf(parent) == L"#32770"; // whose own neighbours are no labels
    return before || onDialog ? before : ::GetWindow(parent, GW_HWNDPREV);
}

// A button is called by its text, another control by the label before it.
std::wstring labelOf(HWND control)
{
    const HWND before = windowBefore(control);
    std::wstring text = classOf(control) == L"Button"  ? textOf(control)
                        : classOf(before) == L"Static" ? textOf(before)
                                                       : std::wstring();
    std::erase(text, L'&');
    if (text.ends_with(L':'))
        text.pop_back();
    return text;
}

std::wstring withSender(std::wstring name, HWND sender)
{
    const std::wstring label = labelOf(sender);
    return label.empty() ? std::move(name) + L" from control " + std::to_wstring(::GetDlgCtrlID(sender))
                         : std::move(name) + L" from \u201C" + label + L"\u201D";
}

std::wstring nameIn(const Names& names, UINT code)
{
    const auto found = names.find(code);
    return found == names.end() ? std::to_wstring(static_cast<int>(code)) : found->second;
}

} // namespace

std::wstring describeCommand(HWND control, UINT code)
{
    const auto names = commandNames().find(classOf(control));
    return withSender(names == commandNames().end() ? L"WM_COMMAND code " + std::to_wstring(code)
                                                    : nameIn(names->second, code),
                      control);
}

std::wstring describeNotify(const NMHDR& header)
{
    if (isSentWhileDrawing(header.code))
        return {};
    return withSender(nameIn(notifyNames(), header.code), header.hwndFrom);
}
