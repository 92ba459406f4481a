// The list of what is in a folder. What has changed lately is coloured.
#pragma once

#include "FolderTree.h"

#include <shlwapi.h>

class FileList : public COVOListCtrlEx
{
public:
    static constexpr wchar_t kSection[] = L"FolderBrowser"; // of the profile
    static constexpr int kName = 0, kSize = 1, kChanged = 2; // the columns

    bool create(CWnd& parent, UINT id)
    {
        constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
        if (!CreateEx(WS_EX_CLIENTEDGE, kStyle, CRect(), &parent, id))
            return false;
        SetImageList(shellImages(), LVSIL_SMALL);
        UseRowColours(TRUE);
        addColumns(*this,
                   {{.heading = L"Name", .sample = L"A name of the usual length.document"},
                    {.heading = L"Size", .sample = L"9,999,999 KB", .format = LVCFMT_RIGHT},
                    {.heading = L"Changed", .sample = L"30.12.2000 23:59:59 PM", .showsColour = true}});
        m_sorter.Attach(*this);
        m_sorter.SetKind(kSize, COVOListSorter::Kind::Number);
        m_sorter.SetKind(kChanged, COVOListSorter::Kind::Date);
        m_finder.Attach(*this);
        m_tips.Attach(*this);
        if (!restoreColumnLayout(*this, kSection, L"Columns", &m_sorter))
            sortBy(kName);
        return true;
    }
    void saveLayout() { saveColumnLayout(*this, kSection, L"Columns", &m_sorter); }
    void sortBy(int column) { m_sorter.Sort(column, true); }
    const fs::path& path(int row) const { return m_paths[GetItemData(row)]; }

    /// Throws fs::filesystem_error when the folder cannot be read; the list is empty then, and for no folder.
    void show(const fs::path& folder)
    {
        DeleteAllItems();
        m_paths.clear();
        for (const auto& entry : folder.empty() ? fs::directory_iterator() : fs::directory_iterator(folder))
            add(entry.path());
        m_sorter.Sort(m_sorter.Column(), m_sorter.Ascending());
    }

    /// The paths of the selected rows, or of all without any, as lines.
    std::wstring chosenPaths() const
    {
        std::wstring paths;
        const int which = GetSelectedCount() ? LVNI_SELECTED : LVNI_ALL;
        for (int row = GetNextItem(-1, which); row >= 0; row = GetNextItem(row, which))
            paths += path(row).wstring() + L"\r\n";
        return paths;
    }

private:
    void add(const fs::path& path)
    {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
        wchar_t size[32]{}, time[64]{};
        DWORD how = FDTF_SHORTDATE | FDTF_SHORTTIME;
        ::SHFormatDateTimeW(&data.ftLastWriteTime, &how, time, std::size(time));
        if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            ::StrFormatKBSizeW(LONGLONG{data.nFileSizeHigh} << 32 | data.nFileSizeLow, size, std::size(size));
        const std::wstring name = path.filename().wstring();
        const int row = static_cast<int>(m_paths.size());
        m_paths.push_back(path);
        AddItem(row, kName, name, colourOfAge(path), shellImage(name.c_str(), data.dwFileAttributes));
        AddItem(row, kSize, size, 0, -1);
        AddItem(row, kChanged, time, 0, -1);
    }

    /// Green, and the fresher the stronger; opaque.
    static DWORD colourOfAge(const fs::path& path)
    {
        using std::chrono::days;
        std::error_code gone;
        const auto age = std::chrono::file_clock::now() - fs::last_write_time(path, gone);
        const double lightness = age < days(1) ? 0.75 : age < days(7) ? 0.87 : age < days(30) ? 0.95 : 1;
        return 0xFF000000 | Colour::hls(Angle::degrees(110), lightness, 0.6).colorref();
    }

    std::vector<fs::path> m_paths; // by item data
    COVOListSorter m_sorter;
    COVOListFinder m_finder;
    COVOListCellTips m_tips;
};
