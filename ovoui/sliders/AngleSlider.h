/// What the two angle sliders share: a ribbed cylinder that the user turns with the mouse.
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

#include <memory>

namespace ovoui::sliders
{
class CylinderDrag;
enum class Turn;
} // namespace ovoui::sliders

/// Hosts use CRoundSlider and CWheelSlider. The parent gets a scroll message, sent, with SB_THUMBTRACK while
/// the user drags and SB_THUMBPOSITION when the button is released; the high word is the angle in whole
/// degrees, cut to 16 bits, and lParam the slider's window. The slider does not paint itself anew after the
/// release: the parent is to call SetPos with what it accepts. The parent may destroy the slider in either
/// message.
class OVOUI_API CAngleSlider : public CWnd
{
public:
    ~CAngleSlider() override;

    /// The committed angle in degrees; a drag changes it when it ends.
    double GetPos() const;

    /// Sets the angle in degrees and paints it; the parent hears nothing. Any number will do.
    void SetPos(double degrees);

protected:
    enum class Axis
    {
        Vertical,   ///< turned sideways
        Horizontal, ///< turned up and down
    };

    CAngleSlider(Axis axis, ovoui::sliders::Turn turn, bool reversed);

    /// Makes a child window of a class with double clicks, an arrow and the background of buttons.
    BOOL createNamed(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Draws over the cylinder of an enabled slider: nothing. `shown` is the angle to be seen.
    virtual void drawOnCylinder(CDC& dc, const CRect& cylinder, double shown);

    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnEnable(BOOL enable);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    CRect cylinder() const;
    int along(CPoint point) const;
    double DegreesFromCentre(int coordinate) const;
    void ShadeRect(const CRect& rect, CDC* dc);
    void DrawLine(CDC* dc, const CRect& rect, int coordinate);
    bool tellParent(UINT code, double degrees);

    std::unique_ptr<ovoui::sliders::CylinderDrag> m_drag;
    const Axis m_axis;
    const bool m_reversed;
    Lifeline m_lifeline;
};
