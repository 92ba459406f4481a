// CRecentFileList: the files that were open last.
#pragma once

#include <afx/WinApp.h>

#include <vector>

/// A list of files, the latest first, which the profile keeps and a menu shows.
///
/// Most programs need only CWinApp::LoadStdProfileSettings and AddToRecentFileList, which keep such a list,
/// and a menu item ID_FILE_MRU_FILE1.
class OVOMFC_API CRecentFileList
{
public:
    /// `start` is added to the numbers that the menu shows. `entryFormat` has a %d for the number of the
    /// entry in the profile's section, from 1. `maxLength` is what the menu shows of a path, in characters.
    CRecentFileList(UINT start, LPCTSTR section, LPCTSTR entryFormat, int size,
                    int maxLength = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();

    int GetSize() const { return static_cast<int>(m_files.size()); } ///< The places, empty ones included.
    CString& operator[](int index);

    virtual void Add(LPCTSTR path); ///< At the head; a file that is there already moves up.
    virtual void Remove(int index); ///< The others move up.
    virtual void ReadList();
    virtual void WriteList();
    /// Puts the files in the place of the menu item, with its number and the numbers after it. While there
    /// are none the item shows what it showed at first, and is grey.
    virtual void UpdateMenu(CCmdUI* ui);
    /// What the menu shows of a path: in `currentFolder` (with a backslash at its end, of `folderLength`
    /// characters) the name alone, else as much as there is room for. FALSE when there is no file in this
    /// place.
    virtual BOOL GetDisplayName(CString& name, int index, LPCTSTR currentFolder, int folderLength,
                                BOOL atLeastName = TRUE) const;

private:
    CString entry(int index) const;
    void removeItems(CCmdUI& ui) const;
    void insertItems(CCmdUI& ui);

    UINT m_start;
    CString m_section;
    CString m_entryFormat;
    int m_maxLength;
    std::vector<CString> m_files; ///< empty texts at the end
    CString m_original;           ///< what the menu item showed at first
};
