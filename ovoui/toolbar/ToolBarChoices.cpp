// CVantorToolBar: the choices of flyout buttons in the application's profile.
#include <ovoui/frame/ProfileSection.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>

using namespace ovoui::toolbar;
using ovoui::frame::ProfileSection;

namespace
{

/// The profile entry of a button.
std::wstring entryOf(int button)
{
    return L"Button" + std::to_wstring(button);
}

} // namespace

void CVantorToolBar::SaveChoices(LPCTSTR section) const
{
    const ProfileSection choices(section);
    for (int i = 0; i < buttonCount(); ++i)
        if (HasFlyout(i))
            choices.write(entryOf(i), static_cast<int>(GetItemID(i)));
}

void CVantorToolBar::LoadChoices(LPCTSTR section)
{
    const ProfileSection choices(section);
    for (int i = 0; i < buttonCount(); ++i) {
        const int command = HasFlyout(i) ? choices.number(entryOf(i)) : 0;
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
