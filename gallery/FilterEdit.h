// The edit that filters the list of pages.
#pragma once

#include <afxwin.h>

/// Escape empties it. Enter, Escape and Tab are told to the bar that it lies in; here they write nothing.
class FilterEdit : public CEdit
{
public:
    bool create(CWnd& bar, UINT id);

protected:
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()
};
