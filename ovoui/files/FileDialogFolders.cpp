// COVOFileDialogImp: where the classic dialog begins.
#include <ovoui/files/FileDialogImp.h>

#include <ovoui/files/ShellPaths.h>
#include <ovoui/frame/ProfileSection.h>

#include <ovocor/Text.h>

#include <vector>

using ovoui::frame::settingsSection;

void COVOFileDialogImp::rememberFolder(const GUID& purpose)
{
    wchar_t text[40]{};
    ::StringFromGUID2(purpose, text, static_cast<int>(std::size(text)));
    m_rememberedAs = text;
}

/// What the host has put into the record goes first.
void COVOFileDialogImp::beginInFolder()
{
    if (m_ofn.lpstrInitialDir && m_ofn.lpstrInitialDir != m_beginning.c_str())
        return;
    const std::wstring remembered =
        m_rememberedAs.empty() ? std::wstring() : settingsSection().text(m_rememberedAs);
    m_beginning = ovoui::existingFolderNear(std::vector{remembered, m_defaultFolder});
    m_ofn.lpstrInitialDir = m_beginning.empty() ? nullptr : m_beginning.c_str();
}

void COVOFileDialogImp::keepFolder() const
{
    if (m_rememberedAs.empty())
        return;
    if (POSITION position = GetStartPosition())
        settingsSection().write(m_rememberedAs, getDirectory(GetNextPathName(position).GetString()));
}
