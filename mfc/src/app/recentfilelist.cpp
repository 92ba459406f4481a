// CRecentFileList.
#include "core/displayname.h"

#include <afxadv.h>

namespace
{

std::wstring currentFolder()
{
    std::wstring folder(::GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(::GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    if (!folder.ends_with(L'\\'))
        folder += L'\\';
    return folder;
}

} // namespace

CRecentFileList::CRecentFileList(UINT start, LPCTSTR section, LPCTSTR entryFormat, int size, int maxLength)
    : m_start(start)
    , m_section(section)
    , m_entryFormat(entryFormat)
    , m_maxLength(maxLength)
    , m_files(static_cast<std::size_t>(size))
{
    ASSERT(size > 0);
}

CRecentFileList::~CRecentFileList() = default;

CString& CRecentFileList::operator[](int index)
{
    ASSERT(index >= 0 && index < GetSize());
    return m_files[static_cast<std::size_t>(index)];
}

// Files

void CRecentFileList::Add(LPCTSTR path)
{
    const CString file(path);
    auto place = std::find_if(m_files.begin(), m_files.end(),
                              [&](const CString& other) { return file.CompareNoCase(other) == 0; });
    if (place == m_files.end())
        --place; // the oldest one goes
    std::rotate(m_files.begin(), place, place + 1);
    m_files.front() = file;
}

void CRecentFileList::Remove(int index)
{
    if (index < 0 || index >= GetSize())
        return;
    const auto place = m_files.begin() + index;
    std::rotate(place, place + 1, m_files.end());
    m_files.back().Empty();
}

// The profile

CString CRecentFileList::entry(int index) const
{
    CString name;
    name.Format(m_entryFormat.GetString(), index + 1);
    return name;
}

void CRecentFileList::ReadList()
{
    for (int i = 0; i < GetSize(); ++i)
        (*this)[i] = AfxGetApp()->GetProfileString(m_section, entry(i));
    // Entries that were taken out by hand leave no gaps.
    std::stable_partition(m_files.begin(), m_files.end(),
                          [](const CString& file) { return !file.IsEmpty(); });
}

void CRecentFileList::WriteList()
{
    CWinApp& app = *AfxGetApp();
    app.WriteProfileString(m_section, nullptr, nullptr);
    for (int i = 0; i < GetSize() && !(*this)[i].IsEmpty(); ++i)
        app.WriteProfileString(m_section, entry(i), (*this)[i]);
}

// The menu

BOOL CRecentFileList::GetDisplayName(CString& name, int index, LPCTSTR currentFolder, int folderLength,
                                     BOOL atLeastName) const
{
    if (index < 0 || index >= GetSize() || m_files[static_cast<std::size_t>(index)].IsEmpty())
        return FALSE;
    std::wstring path = m_files[static_cast<std::size_t>(index)].GetString();
    const std::wstring folder(currentFolder, static_cast<std::size_t>(folderLength));
    if (!folder.empty() && afxdetail::liesIn(path, folder))
        path.erase(0, folder.size());
    name =
        afxdetail::abbreviatedPath(path, static_cast<std::size_t>(m_maxLength), atLeastName != FALSE).c_str();
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI* ui)
{
    if (!ui->m_pMenu || ui->m_pSubMenu)
        return;
    if (m_original.IsEmpty())
        ui->m_pMenu->GetMenuString(ui->m_nID, m_original, MF_BYCOMMAND);
    if (m_files.front().IsEmpty()) {
        if (!m_original.IsEmpty())
            ui->SetText(m_original);
        ui->Enable(FALSE);
        return;
    }
    removeItems(*ui);
    insertItems(*ui);
    ui->m_nIndexMax = static_cast<UINT>(ui->m_pMenu->GetMenuItemCount());
    ui->m_bEnableChanged = TRUE; // all of them are enabled
}

void CRecentFileList::removeItems(CCmdUI& ui) const
{
    for (int i = 0; i < GetSize(); ++i)
        ui.m_pMenu->DeleteMenu(ui.m_nID + static_cast<UINT>(i), MF_BYCOMMAND);
}

void CRecentFileList::insertItems(CCmdUI& ui)
{
    const std::wstring folder = currentFolder();
    CString name;
    for (int i = 0; GetDisplayName(name, i, folder.c_str(), static_cast<int>(folder.size())); ++i) {
        const int number = static_cast<int>(m_start) + i + 1;
        ui.m_pMenu->InsertMenu(ui.m_nIndex++, MF_STRING | MF_BYPOSITION, ui.m_nID++,
                               afxdetail::numberedItem(number, name.GetString()).c_str());
    }
    // The item that was brought up to date last is the last one of the list.
    --ui.m_nIndex;
    --ui.m_nID;
}
