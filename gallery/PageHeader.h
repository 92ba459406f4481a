// The band above a page: its title and one sentence.
#pragma once

#include <afxwin.h>

#include <optional>

class PageHeader : public CWnd
{
public:
    bool create(CWnd& parent);

    /// Takes the fonts for the resolution of the monitor that the window is on.
    void useFont(const LOGFONT& font);

    /// The texts must live as long as they are shown.
    void show(const wchar_t* title, const wchar_t* summary);

    /// The colour of the line below it.
    void setAccent(COLORREF colour);

    /// In pixels, for the font in use.
    int height() const { return m_height; }

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CFont m_font;
    CFont m_titleFont;
    std::optional<COLORREF> m_accent;
    int m_height = 0;
    int m_margin = 0;
    int m_gap = 0;
    int m_titleHeight = 0;
    const wchar_t* m_title = L"";
    const wchar_t* m_summary = L"";
};
