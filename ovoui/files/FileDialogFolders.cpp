// COVOFileDialogImp: where the classic dialog begins.
#include <ovoui/files/FileDialogImp.h>

#include <ovoui/files/ShellPaths.h>

#include <ovocor/Text.h>

namespace
{

constexpr wchar_t kSection[] = L"settings";

} // namespace

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
    std::wstring remembered;
    if (!m_rememberedAs.empty() && AfxGetApp())
        remembered = AfxGetApp()->GetProfileString(kSection, m_rememberedAs.c_str()).GetString();
    m_beginning = ovoui::existingFolderNear(remembered);
    if (m_beginning.empty())
        m_beginning = ovoui::existingFolderNear(m_defaultFolder);
    m_ofn.lpstrInitialDir = m_beginning.empty() ? nullptr : m_beginning.c_str();
}

void COVOFileDialogImp::keepFolder() const
{
    if (m_rememberedAs.empty() || !AfxGetApp())
        return;
    POSITION position = GetStartPosition();
    if (position)
        AfxGetApp()->WriteProfileString(kSection, m_rememberedAs.c_str(),
                                        getDirectory(GetNextPathName(position).GetString()).c_str());
}
