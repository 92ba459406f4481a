/// Not exported. A small window with the number, beside the thumb of a slider.
#pragma once

#include <afxwin.h>

#include <string>

namespace ovoui::sliders
{

/// It never takes the activation or the mouse.
class SliderBubble : public CWnd
{
public:
    ~SliderBubble() override;

    /// Shows the text above a slider's thumb, or moves there. The slider's window owns the bubble's.
    void show(CWnd& slider, const std::wstring& text);
    void hide();

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CSize sizeOf(const std::wstring& text);

    std::wstring m_text;
};

} // namespace ovoui::sliders
