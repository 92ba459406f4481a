#include <ovoui/toolbar/ButtonUpdate.h>

namespace ovoui::toolbar
{

namespace
{

/// Shows a command as a button.
class ButtonUI : public CCmdUI
{
public:
    ButtonUI(CToolBar& bar, const std::function<bool()>& usable)
        : m_bar(bar)
        , m_usable(usable)
    {
        m_pOther = &bar;
    }

    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        show(on ? 0 : TBBS_DISABLED, TBBS_DISABLED);
    }
    void SetCheck(int check) override
    {
        const UINT state = check == 2 ? TBBS_INDETERMINATE : check ? TBBS_CHECKED : 0;
        show(state | TBBS_CHECKBOX, TBBS_CHECKED | TBBS_INDETERMINATE | TBBS_CHECKBOX);
    }
    void SetText(LPCTSTR) override {}

private:
    void show(UINT bits, UINT among)
    {
        const int index = static_cast<int>(m_nIndex);
        if (!m_usable() || index >= static_cast<int>(m_bar.SendMessage(TB_BUTTONCOUNT)))
            return;
        const UINT style = m_bar.GetButtonStyle(index);
        m_bar.SetButtonStyle(index, (style & ~among) | bits);
    }

    CToolBar& m_bar;
    const std::function<bool()>& m_usable;
};

} // namespace

void updateButtons(CToolBar& bar, CCmdTarget& target, bool disableIfNoHandler,
                   const std::function<bool()>& usable)
{
    ButtonUI ui(bar, usable);
    for (ui.m_nIndex = 0; usable(); ++ui.m_nIndex) {
        ui.m_nIndexMax = static_cast<UINT>(bar.SendMessage(TB_BUTTONCOUNT));
        TBBUTTON button{};
        if (!bar.SendMessage(TB_GETBUTTON, ui.m_nIndex, reinterpret_cast<LPARAM>(&button)))
            break; // behind the last one
        if (button.fsStyle & TBSTYLE_SEP)
            continue;
        ui.m_nID = static_cast<UINT>(button.idCommand);
        const bool done =
            bar.CWnd::OnCmdMsg(ui.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr) != FALSE;
        if (!done && usable())
            ui.DoUpdate(&target, disableIfNoHandler);
    }
    if (usable())
        bar.UpdateDialogControls(&target, disableIfNoHandler); // controls that lie in the bar
}

} // namespace ovoui::toolbar
