/// What the angle sliders share: a ribbed cylinder, or a knob, that the user turns with the mouse.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

#include <memory>

namespace ovoui::sliders
{
class CylinderDrag;
enum class Turn;
} // namespace ovoui::sliders

/// Accessibility sees a slider with the name of the label in front of it, else with its window's text.
///
/// Hosts use CRoundSlider, CWheelSlider and CDialSlider. The parent gets a scroll message, sent, with
/// SB_THUMBTRACK while the user drags and SB_THUMBPOSITION when the button is released; the high word is the
/// angle in whole degrees, cut to 16 bits, and lParam the slider's window. The slider does not paint itself
/// anew after the release: the parent is to call SetPos with what it accepts. The parent may destroy the
/// slider in either message.
class OVOUI_API CAngleSlider : public CWnd
{
public:
    ~CAngleSlider() override;

    /// The committed angle in degrees; a drag changes it when it ends.
    double GetPos() const;

    /// Sets the angle in degrees and paints it; the parent hears nothing. Any number will do.
    void SetPos(double degrees);

    // Off unless asked for

    /// Whether keyboard and wheel turn the slider: the arrow keys and the wheel by 1 degree, with Ctrl by 5,
    /// Page Up and Page Down by 15, Home to 0; a number that is typed opens a small edit control. A click
    /// gives the slider the focus, which it marks. The parent gets SB_THUMBPOSITION with the new angle, which
    /// shows at once.
    void UseKeyboard(bool use);

    /// While Shift is held, the mouse turns to multiples of so many degrees; 0 for any angle.
    void SetSnap(double degrees);

protected:
    /// How the cylinder lies.
    enum class Axis
    {
        Vertical,   ///< turned sideways
        Horizontal, ///< turned up and down
    };

    /// `axis` says how the cylinder lies, `turn` limits the angle. `reversed`: turning to the right or
    /// downwards makes the angle greater.
    CAngleSlider(Axis axis, ovoui::sliders::Turn turn, bool reversed);

    /// Makes a child window of `parent` with the number `id` at `rect` in its client coordinates, of a class
    /// with double clicks, an arrow and the background of buttons. `text` is its name, `style` has WS_ bits.
    /// FALSE when the system refuses.
    BOOL createNamed(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // What makes a slider another one than a cylinder

    /// The angle in degrees under the pointer at a client `point`. `pressed` when a drag begins with it.
    virtual double angleAt(CPoint point, bool pressed);
    /// What the user's angle `degrees` is limited to: nothing but the turn.
    virtual double limited(double degrees) const;
    /// Paints all of the `client` area on `dc`; `shown` is the angle to be seen, in degrees.
    virtual void paintBody(CDC& dc, const CRect& client, double shown);
    /// Whether a click without a movement nudges the slider. It does at first.
    void useClicks(bool nudge);

    /// Draws on `dc` over the `cylinder` of an enabled slider: nothing. `shown` is the angle to be seen, in
    /// degrees.
    virtual void drawOnCylinder(CDC& dc, const CRect& cylinder, double shown);

    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnDestroy();
    afx_msg void OnEnable(BOOL enable);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* other);
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    CRect cylinder() const;
    int along(CPoint point) const;
    double DegreesFromCentre(int coordinate) const;
    void ShadeRect(const CRect& rect, CDC* dc);
    void DrawLine(CDC* dc, const CRect& rect, int coordinate);
    bool tellParent(UINT code, double degrees);
    void turnTo(double degrees);
    double snapNow() const;
    void announceValue();
    long roundedAngle() const;
    bool showsFocus() const;

    struct Options;

    std::unique_ptr<ovoui::sliders::CylinderDrag> m_drag;
    const Axis m_axis;
    const bool m_reversed;
    std::unique_ptr<Options> m_options;
};
