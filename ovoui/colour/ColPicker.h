/// The engine of colour-picking dialogs.
///
/// A dialog derives from it, beside its dialog base, and hands it its messages. ColPickerDlgBase is such a
/// dialog; hosts rarely need to write another one.
#pragma once

#include <ovoui/colour/ColPickerMode.h>
#include <ovoui/colour/PickerPart.h>
#include <ovoui/export.h>
#include <ovoui/frame/Lifeline.h>

#include <ovocor/Colour.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <array>
#include <memory>
#include <string>

class CShadedTabCtrl;
class ColourWheelImage;

namespace ovoui::colour
{
class PickerStop;
enum class WheelKey;
} // namespace ovoui::colour

/// Shows a colour as numbers in edits and sliders, as a ring of hues with a triangle of their shades, and as
/// a patch, and lets the user change it in each of them. The patch can be dragged onto swatches of the user's
/// own colours, where the dialog has room for these.
///
/// The picker takes what it finds: of the controls, those that the dialog has attached to the members; for
/// the patch and the wheel, the places of the dialog items IDC_PATCH and IDC_WHEEL.
/// In all operations `wnd` is the dialog.
class OVOUI_API ColPicker
{
public:
    ColPicker(const ColPicker&) = delete;
    ColPicker& operator=(const ColPicker&) = delete;

    virtual ~ColPicker();

protected:
    // What a derived class may override. An override may close or delete the dialog.

    /// The shaded tab control that the picker lies on, or null: the base.
    virtual CShadedTabCtrl* tabCtrl();
    /// Called after each change of the colour by the user; `final` is false while a drag goes on. Does
    /// nothing in the base.
    virtual void UpdateExternalColours(bool final);
    /// Where the custom colour `index`, 0 to 17, is kept.
    virtual COLORREF& customCols(int index) = 0;
    /// Called before the picker reads its members: for a derived class that remembers them. Does nothing in
    /// the base.
    virtual void LoadSettings();
    /// Called after each change of the mode, for a derived class that remembers it. Does nothing in the base.
    virtual void SaveSettings();

    /// `app` has the profile of the settings; `mode` is what the edits and sliders stand for at first.
    ColPicker(CWinApp& app, ColPickerModeType mode);

    // What the dialog calls. `wnd` is the dialog.

    /// To be called once for each window, after the controls have been attached.
    /// `spaceCombo` gets the names of the modes.
    void DoInit(CWnd* wnd, CComboBox& spaceCombo);
    /// To be called when the window is destroyed.
    void doOnDestroy();

    /// For WM_PAINT: draws wheel, patch and swatches on `dc`.
    void DoPaint(CWnd* wnd, CPaintDC* dc);
    /// Fills the patch on `dc`, and shows the colour in the edits.
    void DrawPatch(CPaintDC* dc);
    /// Draws the swatches on `dc`.
    void DrawCustomColours(CWnd* wnd, CDC* dc);

    // True when the picker has dealt with the message; else it is the window's.
    /// For WM_LBUTTONDOWN with its `flags` and `point`. True when the picker has dealt with the message; else
    /// it is the window's.
    bool DoLButtonDown(CWnd* wnd, UINT flags, CPoint point);
    /// The same for WM_LBUTTONUP with its `flags` and `point`.
    bool DoLButtonUp(CWnd* wnd, UINT flags, CPoint point);
    /// The same for WM_LBUTTONDBLCLK with its `flags` and `point`.
    bool DoLButtonDblClk(CWnd* wnd, UINT flags, CPoint point);
    /// The same for WM_MOUSEMOVE with its `flags` and `point`.
    bool DoMouseMove(CWnd* wnd, UINT flags, CPoint point);
    /// For WM_CAPTURECHANGED: ends a drag that another window, `gaining`, interrupts by taking the capture.
    void DoCaptureChanged(CWnd* wnd, CWnd* gaining);
    /// Ends a drag that goes on, for Escape. False when there is none.
    bool cancelDrag(CWnd* wnd);

    /// For WM_HSCROLL of a slider, `bar`, with its `code`.
    void DoHScroll(CWnd* wnd, UINT code, CScrollBar* bar);
    /// Takes over what is in the edits; to be called when one loses the focus.
    void DoKillfocusColpickerValues(CWnd* wnd);

    /// Changes the `colour` and shows it; the host hears nothing. A colour that looks the same as the present
    /// one is ignored; with `force` only if its hue is the same, too, which greys may have.
    void SetColour(CWnd* wnd, const Colour& colour, bool force);
    /// Changes what the edits and sliders stand for. A `mode` that is none is ignored.
    void SetSliderMode(CWnd* wnd, ColPickerModeType mode);
    /// Sets the sliders from the colour.
    void UpdateSlider();
    /// Puts the colour that the sliders stand for into `out`.
    void GetSliderColour(Colour& out) const;

    // Markers are drawn by inverting. With a point, the one shown before is taken away first; without, the
    // point is that of the present colour.
    /// Draws the marker of the ring on `dc` by inverting, at the hue of the present colour.
    void draw_hue_marker(CDC* dc);
    /// The same at a `point` of the ring; the marker that was shown before is taken away first.
    void draw_hue_marker(CDC* dc, CPoint& point);
    /// Draws the marker of the triangle on `dc` by inverting, at the shade of the present colour.
    void draw_tri_marker(CDC* dc);
    /// The same at a `point` of the triangle; the marker that was shown before is taken away first.
    void draw_tri_marker(CDC* dc, CPoint& point);

    /// The number of the swatch at a client point; false, with `index` left alone, where there is none.
    bool PtInCustomColour(const CPoint& point, int& index);
    /// Does nothing with `x`, `y` and `rgb`: the wheel writes its own pixels.
    void set_bitmap_pixel(int x, int y, const unsigned char* rgb);

    /// What the left button is held down for.
    using Drag = ovoui::colour::PickerPart;

    // To be attached by the dialog
    CEdit m_value1;            ///< red or hue; to be attached by the dialog, as the next ones
    CEdit m_value2;            ///< green, lightness or saturation
    CEdit m_value3;            ///< blue, saturation or value
    CEdit m_valueAlpha;        ///< alpha, 0 to 255
    CSliderCtrl m_slider1;     ///< beside `m_value1`; to be attached by the dialog, as the next ones
    CSliderCtrl m_slider2;     ///< beside `m_value2`
    CSliderCtrl m_slider3;     ///< beside `m_value3`
    CSliderCtrl m_sliderAlpha; ///< beside `m_valueAlpha`
    CString m_caption1;        ///< of `m_value1` in the present mode
    CString m_caption2;        ///< of `m_value2`
    CString m_caption3;        ///< of `m_value3`

    CRect m_patchRect; ///< client coordinates of the dialog, as all others
    CRect m_wheelRect; ///< the place of the ring
    Colour m_colour;   ///< the present colour

private:
    std::unique_ptr<ColourWheelImage> m_wheel;
    double m_innerRadius = 0;
    double m_outerRadius = 0;
    double m_centreX = 0;
    double m_centreY = 0;
    bool m_hueMarkerDrawn = false;
    CPoint m_hueMarker;
    CRect m_hueMarkerRect;

protected:
    CRect m_customRect; ///< the place of the item `m_customAreaId`

private:
    bool m_triMarkerDrawn = false;
    CPoint m_triMarker;

protected:
    ColPickerModeType m_mode;         ///< what the edits and sliders stand for
    Drag m_drag = Drag::None;         ///< the drag that goes on
    std::array<CRect, 18> m_swatches; ///< where the user hits them; known once they have been drawn
    /// The dialog item in whose place the swatches are shown; 0 for none. To be set before the dialog is
    /// made.
    int m_customAreaId = 0;

private:
    HCURSOR m_cursorBefore = nullptr; // shared, of the time before the patch is dragged

protected:
    /// Whether the fourth edit and slider are used. To be set before the dialog is made.
    bool m_alphaEnabled = false;
    /// Whether ring, triangle and swatches can have the keyboard focus, by Tab and by a press of the mouse.
    /// To be set before the dialog is made.
    bool m_keysEnabled = false;
    /// Whether the edits are read only after the user has typed something. Else leaving one of them, Enter
    /// and OK round the colour to the numbers that they show.
    bool m_onlyTypedNumbers = false;

private:
    bool m_initialised = false;
    bool m_mirrored = false; // the dialog is laid out from right to left

protected:
    CWinApp& m_app; ///< for settings in its profile

private:
    using Values = std::array<int, 3>;

    // Making
    CRect takePlace(CWnd* wnd, int id);
    void prepareEdits();
    void fillSpaces(CComboBox& combo);

    // Numbers
    Values shownValues() const;
    void showValues();
    static void showValue(CEdit& edit, int value);
    static int sliderOr(const CSliderCtrl& slider, int value);
    bool hasTyped() const;
    static int typedOr(CEdit& edit, int value, int maximum);
    void invalidatePatch(CWnd* wnd);
    bool change(CWnd* wnd, const Colour& colour, bool force, bool final);

    // Mouse
    CPoint inWheel(CPoint point) const;
    Drag partAt(CPoint point) const;
    Colour colourAt(Drag part, CPoint point) const;
    bool isOnSwatches(CPoint point) const;
    void takeByPress(CWnd* wnd, Drag part, CPoint point);
    void takePureHue(CWnd* wnd, CPoint point);
    void beginDrag(CWnd* wnd, Drag drag);
    void beginPatchDrag(CWnd* wnd);
    void followDrag(CWnd* wnd, CPoint point);
    void endByRelease(CWnd* wnd, CPoint point);
    void showDragCursor(CPoint point);
    void dropPatch(CWnd* wnd, CPoint point);
    void pickSwatch(CWnd* wnd, CPoint point);
    void takeSwatch(CWnd* wnd, int swatch);
    void keepInSwatch(CWnd* wnd, int swatch);
    bool isDragging(CWnd* wnd);
    void endDrag();

    // Keyboard
    struct Stops;
    void makeStops(CWnd* wnd);
    void makeSwatchStop(CWnd* wnd);
    bool focusPart(CWnd* wnd, Drag part);
    bool focusSwatch(CWnd* wnd, int swatch);
    bool carryOutKey(CWnd* wnd, HWND from);
    void carryOutKey(CWnd* wnd, const ovoui::colour::PickerStop& stop);
    void carryOutSwatchKey(CWnd* wnd, UINT key);
    void moveHue(CWnd* wnd, ovoui::colour::WheelKey key);
    void moveShade(CWnd* wnd, ovoui::colour::WheelKey key);
    void moveToSwatch(CWnd* wnd, ovoui::colour::WheelKey key);
    void changeByKey(CWnd* wnd, const Colour& colour);
    void drawFocusMark(CDC* dc, CSize offset) const;
    void drawSwatchMark(CDC* dc) const;
    std::wstring shadeText() const;
    void announceColour();

    // Drawing
    CPoint asDrawn(CPoint point) const;
    CPoint hueMarkerPoint() const;
    CPoint triMarkerPoint() const;
    CRect triMarkerRect() const;
    CRect wheelArea() const;
    bool hasWheel() const;
    int markerRadius() const;
    bool fillMarkerAreas(CWnd* wnd, CDC* dc);
    void drawWheel(CWnd* wnd, CPaintDC* dc);
    void drawCircle(CDC* dc, CPoint centre) const;
    void drawCross(CDC* dc, CPoint centre) const;
    void makeCheckerboard();

    CBrush m_checkerboard;          ///< of the patch: the colour over black and white
    std::unique_ptr<Stops> m_stops; ///< null unless the keyboard is asked for
    Lifeline m_lifeline;
};
