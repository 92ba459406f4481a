// Extended lists: a table of colours, a list of processes, and a list of a million rows.
#pragma once

#include "GalleryPage.h"
#include "model/MillionList.h"

#include <ovoui/images/AlphaImageList.h>
#include <ovoui/lists/ListCellTips.h>
#include <ovoui/lists/ListCopier.h>
#include <ovoui/lists/ListCtrlEx.h>
#include <ovoui/lists/ListFinder.h>
#include <ovoui/lists/ListSorter.h>

class ListsPage : public GalleryPage
{
public:
    ListsPage();
    ~ListsPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnRowColours();
    afx_msg void OnFilter();
    afx_msg void OnSaveLayout();
    afx_msg void OnRestoreLayout();
    DECLARE_MESSAGE_MAP()

private:
    void createColours();
    void fillColours(const std::wstring& part);
    void createProcesses();
    void createStates();
    void createIcons();
    void addHelpers();
    void arrange();

    COVOListCtrlEx m_colours;
    CImageList m_states; // shown by the next list until its end, as are the icons
    CAlphaImageList m_icons;
    COVOListCtrlEx m_processes;
    MillionList m_million;
    COVOListSorter m_colourSorter;
    COVOListSorter m_processSorter;
    COVOListFinder m_colourFinder;
    COVOListFinder m_processFinder;
    COVOListFinder m_millionFinder;
    COVOListCellTips m_colourTips;
    COVOListCellTips m_processTips;
    COVOListCopier m_colourCopier;
    COVOListCopier m_processCopier;
};
