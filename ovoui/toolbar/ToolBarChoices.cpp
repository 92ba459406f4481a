// CVantorToolBar: the choices of flyout buttons in the application's profile.
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>

using namespace ovoui::toolbar;

namespace
{

/// The profile entry of a button.
CString entryOf(int button)
{
    CString name;
    name.Format(L"Button%d", button);
    return name;
}

} // namespace

void CVantorToolBar::SaveChoices(LPCTSTR section) const
{
    CWinApp* const app = AfxGetApp();
    for (int i = 0; app && i < buttonCount(); ++i)
        if (HasFlyout(i))
            app->WriteProfileInt(section, entryOf(i), static_cast<int>(GetItemID(i)));
}

void CVantorToolBar::LoadChoices(LPCTSTR section)
{
    CWinApp* const app = AfxGetApp();
    for (int i = 0; app && i < buttonCount(); ++i) {
        if (!HasFlyout(i))
            continue;
        const int command = static_cast<int>(app->GetProfileInt(section, entryOf(i), 0));
        if (command != 0)
            restoreChoice(i, command);
    }
}

/// Looks the command up in the flyout as it would open.
void CVantorToolBar::restoreChoice(int index, int command)
{
    const FlyoutRecord record = *m_state->records.find(index);
    const auto flyout = std::make_shared<CFlyoutToolbar>();
    if (!flyout->create(*this, record, true))
        return;
    const int entry = flyout->entryOf(command);
    TBBUTTON button;
    _getButton(index, &button);
    if (entry >= 0)
        showChoice(index, command, imageOfEntry(record, entry, button.iBitmap));
}
