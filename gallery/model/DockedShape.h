// The shape that the docking page's palette changes.
#pragma once

#include <afxwin.h>

#include <string>

/// An ellipse in the middle of the window, with a text in it.
class DockedShape : public CWnd
{
public:
    bool create(CWnd& parent);

    /// In hundredths of the room there is.
    void setSize(int percent);
    void setText(const std::wstring& text);
    void setFilled(bool filled);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    int m_percent = 60;
    std::wstring m_text = L"drag a bar by its gripper";
    bool m_filled = true;
};
