// A list of a million rows, none of which is stored: the control asks for what it shows.
#pragma once

#include <ovoui/lists/ListCtrlEx.h>

class MillionList : public COVOListCtrlEx
{
public:
    static constexpr int kRows = 1000000;

    bool create(CWnd& parent);

    /// Columns as wide as the window's resolution asks for.
    void fill();

protected:
    DWORD rowColour(int item) override;
    afx_msg void OnGetDispInfo(NMHDR* header, LRESULT* result);
    afx_msg void OnFindItem(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()
};
