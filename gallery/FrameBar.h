// The toolbar of the gallery's own frame.
#pragma once

#include "FilterEdit.h"

#include <ovoui/toolbar/VantorToolBar.h>

#include <string>
#include <vector>

/// Steps from page to page, opens groups of pages, changes the theme, edits what the page has selected. An
/// edit filters the list of pages, a combo box shows what the open page can show.
class FrameBar : public CVantorToolBar
{
public:
    /// Not docked yet. Flyouts and images need GDI+.
    bool create(CFrameWnd& frame);
    /// Sizes of the controls for the monitor's resolution. The font must live as long as it is used.
    void useFont(CFont& font);

    std::wstring filter() const;
    void clearFilter() { m_filter.SetWindowText(L""); }

    /// The poses of a page, by the names that the command line knows.
    void showPoses(const std::vector<std::wstring>& names);
    /// The pose that is chosen; empty for the page as it opens.
    std::wstring pose() const;

    /// Rows with buttons in them.
    int rowsShown() const;

    /// The command that the button with the groups of pages shows.
    UINT group() const { return GetItemID(Groups); }
    UINT theme() const { return GetItemID(Themes); }

private:
    /// Buttons by their index.
    enum Index
    {
        Previous,
        Next,
        Gap,
        Groups,
        Themes,
        Edit,
        SecondGap,
        Palette,
        ClearLog,
        ThirdGap,
        FilterPlace,
        FourthGap,
        PosesPlace
    };

    void attachFlyouts();

    FilterEdit m_filter;
    CComboBox m_poses;
};
