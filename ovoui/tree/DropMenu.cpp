#include <ovoui/tree/DropMenu.h>

#include <ovoui/frame/Module.h>
#include <ovoui/frame/core/LabelText.h>
#include <ovoui/tree/core/DropEffect.h>

#include <ovocor/Text.h>
#include <ovouires/resource.h>

#include <afxole.h>

namespace
{

struct Choice
{
    UINT command;
    DWORD effect;
};

constexpr Choice kChoices[] = {
    {ID_DROP_MOVE, DROPEFFECT_MOVE},
    {ID_DROP_COPY, DROPEFFECT_COPY},
    {ID_DROP_LINK, DROPEFFECT_LINK},
};

/// Puts the label into a line, whose text is a format for it.
void name(CMenu& menu, UINT command, const std::wstring& label)
{
    CString format;
    menu.GetMenuString(command, format, MF_BYCOMMAND);
    const std::wstring text = stringPrintf(format, ovoui::frame::asLabel(label).c_str());
    menu.ModifyMenu(command, MF_BYCOMMAND | MF_STRING, command, text.c_str());
}

} // namespace

DWORD nondefaultDrop(CWnd& wnd, DWORD defaultEffect, DWORD allowedEffects, const CPoint& point,
                     const std::wstring& label)
{
    CMenu menus;
    if (!menus.Attach(::LoadMenuW(ovoui::resourceModule(), MAKEINTRESOURCEW(IDR_DROP_MENU))))
        return DROPEFFECT_NONE;
    CMenu& menu = *menus.GetSubMenu(label.empty() ? 0 : 1);
    for (const auto& [command, effect] : kChoices) {
        if (!label.empty())
            name(menu, command, label);
        menu.EnableMenuItem(command, MF_BYCOMMAND | ((allowedEffects & effect) ? MF_ENABLED : MF_GRAYED));
        if (effect == defaultEffect)
            menu.SetDefaultItem(command);
    }
    CPoint screen = point;
    wnd.ClientToScreen(&screen);
    const UINT layout = (wnd.GetExStyle() & WS_EX_LAYOUTRTL) ? TPM_LAYOUTRTL : 0;
    const auto chosen = static_cast<UINT>(menu.TrackPopupMenu(
        TPM_LEFTALIGN | TPM_RIGHTBUTTON | TPM_RETURNCMD | TPM_NONOTIFY | layout, screen.x, screen.y, &wnd));
    for (const auto& [command, effect] : kChoices)
        if (chosen == command)
            return effect;
    return DROPEFFECT_NONE;
}
