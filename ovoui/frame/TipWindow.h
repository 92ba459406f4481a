/// Not exported. A small window that shows one text in the colours of tips.
#pragma once

#include <afxwin.h>

#include <string>

namespace ovoui::frame
{

/// For controls that place and time such a text themselves. It takes neither focus nor mouse.
class TipWindow : public CWnd
{
public:
    ~TipWindow() override;

    void hide();

protected:
    /// `margins` from each edge to the text, in pixels at the usual resolution; the border lies within.
    explicit TipWindow(CSize margins);

    /// `font` stays the caller's; null for that of the platform's dialogs.
    void setFont(HFONT font) { m_font = font; }
    void setText(const std::wstring& text) { m_text = text; }
    /// Of the window around the text; to be asked once there is a window.
    CSize sizeAroundText();
    /// In screen pixels.
    void showAt(const CRect& place, const CWnd& below);

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    HGDIOBJ font() const;
    /// In pixels of the device.
    CSize marginsOn(const CDC& dc) const;

    const CSize m_margins;
    HFONT m_font = nullptr;
    std::wstring m_text;
};

} // namespace ovoui::frame
