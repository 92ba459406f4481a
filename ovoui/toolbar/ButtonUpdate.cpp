#include <ovoui/toolbar/ButtonUpdate.h>

#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/core/ButtonRules.h>

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
        show([on](unsigned style) { return withEnabled(style, on != FALSE); });
    }
    void SetCheck(int check) override
    {
        show([check](unsigned style) { return withCheck(style, check); });
    }
    void SetText(LPCTSTR) override {}

private:
    /// Asks for the button anew: the handler may have changed the bar.
    template <class Change>
    void show(Change change)
    {
        TBBUTTON button;
        if (!m_usable() || !readButton(m_bar, static_cast<int>(m_nIndex), button))
            return;
        const unsigned style = frameworkStyle(fieldsOf(button));
        const unsigned wanted = change(style);
        if (wanted != style)
            m_bar.SetButtonStyle(static_cast<int>(m_nIndex), wanted);
    }

    CToolBar& m_bar;
    const std::function<bool()>& m_usable;
};

} // namespace

void updateButtons(CToolBar& bar, CCmdTarget& target, bool disableIfNoHandler,
                   const std::function<bool()>& usable)
{
    ButtonUI ui(bar, usable);
    ui.m_nIndexMax = static_cast<UINT>(bar.SendMessage(TB_BUTTONCOUNT));
    for (ui.m_nIndex = 0; usable(); ++ui.m_nIndex) {
        TBBUTTON button;
        if (!readButton(bar, static_cast<int>(ui.m_nIndex), button))
            break; // behind the last one
        if (isSeparator(fieldsOf(button)))
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
