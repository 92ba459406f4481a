/// Not exported: the tip of a flyout's entry.
#pragma once

#include <afxwin.h>

#include <string>

/// A small window with one line of text. It takes neither focus nor mouse.
class CFlyoutTip : public CWnd
{
public:
    ~CFlyoutTip() override;

    /// False on failure.
    bool create(CWnd& owner);

    /// Shows a text below or, where there is no room, above a rectangle of the screen.
    void show(const std::wstring& text, const CRect& entry);
    void hide();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CSize sizeOfText();

    std::wstring m_text;
    CFont m_font;
};
