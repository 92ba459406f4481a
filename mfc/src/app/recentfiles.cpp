// CWinApp: recent files and the other standard settings.
#include <afxadv.h>

#include <utility>

namespace
{

constexpr LPCTSTR kFileSection = L"Recent File List";
constexpr LPCTSTR kFileEntry = L"File%d";
constexpr LPCTSTR kSection = L"Settings";
constexpr LPCTSTR kPreviewEntry = L"PreviewPages";

CString fullPath(LPCTSTR path)
{
    CString full;
    const DWORD room = ::GetFullPathNameW(path, 0, nullptr, nullptr);
    if (room == 0)
        return path;
    ::GetFullPathNameW(path, room, full.GetBuffer(static_cast<int>(room)), nullptr);
    full.ReleaseBuffer();
    return full;
}

} // namespace

void CWinApp::LoadStdProfileSettings(UINT maxFiles)
{
    ASSERT(!m_pRecentFileList); // once is enough
    if (maxFiles > 0) {
        const int size = static_cast<int>(std::min<UINT>(maxFiles, _AFX_MRU_MAX_COUNT));
        m_pRecentFileList = new CRecentFileList(0, kFileSection, kFileEntry, size);
        m_pRecentFileList->ReadList();
    }
    m_nNumPreviewPages = GetProfileInt(kSection, kPreviewEntry, 0);
}

void CWinApp::SaveStdProfileSettings()
{
    if (m_pRecentFileList)
        m_pRecentFileList->WriteList();
    if (m_nNumPreviewPages != 0)
        WriteProfileInt(kSection, kPreviewEntry, static_cast<int>(m_nNumPreviewPages));
}

void CWinApp::AddToRecentFileList(LPCTSTR path)
{
    if (m_pRecentFileList)
        m_pRecentFileList->Add(fullPath(path));
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR)
{
    return nullptr;
}

BOOL CWinApp::OnOpenRecentFile(UINT id)
{
    const int index = static_cast<int>(id) - ID_FILE_MRU_FILE1;
    if (!m_pRecentFileList || index < 0 || index >= m_pRecentFileList->GetSize())
        return FALSE;
    const CString path = (*m_pRecentFileList)[index];
    if (path.IsEmpty() || OpenDocumentFile(path))
        return TRUE;
    // Opening it may have changed the list.
    for (int i = 0; i < m_pRecentFileList->GetSize(); ++i)
        if ((*m_pRecentFileList)[i] == path)
            m_pRecentFileList->Remove(i);
    return TRUE;
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI* ui)
{
    if (m_pRecentFileList)
        m_pRecentFileList->UpdateMenu(ui);
    else
        ui->Enable(FALSE); // there is no list of them
}
