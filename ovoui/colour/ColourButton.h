/// A button for a colour.
///
///     m_pen.SubclassDlgItem(IDC_PEN_COLOUR, this); // a push button of the template
///     m_pen.SetColour(Colour::colorref(m_penColour));
///
///     ON_CONTROL(CColourButton::kChosen, IDC_PEN_COLOUR, &LeafDlg::OnPenColour)
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/Lifeline.h>

#include <ovocor/Colour.h>

#include <afxwin.h>

#include <memory>
#include <optional>
#include <vector>

namespace ovoui::colour
{
enum class DropButtonKey;
class ColourDrop;
struct ColourIdentity;
} // namespace ovoui::colour

/// Shows a colour, and drops a small palette with a line that opens the dialog: by a press of the mouse, or
/// Space, Down, F4, Alt+Down and Alt+Up. Arrows, Home, End and the page keys move in the palette, Enter and Space
/// choose, Escape and Tab close it. It opens upwards where the screen ends. A colour with alpha keeps it when
/// another is chosen from the palette.
///
/// The parent is sent WM_COMMAND with the codes below, and may destroy the button in each of them. It may do
/// so too when it is asked for the brush behind the button. It gets no BN_CLICKED. Whatever the style, the
/// button draws itself; its text is the name that accessibility tells.
class OVOUI_API CColourButton : public CButton
{
    DECLARE_DYNAMIC(CColourButton)

public:
    static constexpr UINT kChosen = 0x50; ///< the user has chosen a colour, which the button has now
    static constexpr UINT kPointed =
        0x51; ///< the mark in the palette has moved: for a preview of PointedColour
    static constexpr UINT kDropped = 0x54; ///< the palette has opened
    /// The palette has closed, before kChosen if a colour was chosen. A colour of the palette is told of
    /// whatever the parent raises here.
    static constexpr UINT kClosed = 0x55;

    CColourButton();
    ~CColourButton() override;

    /// The colour that it shows.
    const Colour& GetColour() const { return m_colour; }
    /// Shows a `colour`. Tells no one.
    void SetColour(const Colour& colour);

    /// The colours that are dropped from the next time on; 40 common ones in rows of 8 at first. Fewer than
    /// one of `columns` count as one.
    void SetPalette(std::vector<COLORREF> colours, int columns);
    /// Whether there is a line that opens the dialog; at first there is.
    void UseDialog(bool use) { m_usesDialog = use; }

    /// Whether the palette is open.
    bool IsDropped() const { return m_drop != nullptr; }
    /// Opens the palette, and tells the parent as when the user does it. Nothing happens when it is open.
    void DropDown();
    /// Closes the palette, and tells the parent as when the user does it. Nothing happens when it is closed.
    void CloseUp();
    /// The colour with the mark in the palette; none when there is none, or it is on the line.
    std::optional<Colour> PointedColour() const;

    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    /// Asks for a colour, modal; none when the user gave up. ColPickerPaletteDlg in the base. An override may
    /// destroy the button.
    virtual std::optional<Colour> askForColour(const Colour& colour);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;

    afx_msg void OnDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnClick(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    void choose(int cell);
    void closeAndTake(const Colour& colour);
    void closeAndAsk();
    void take(const Colour& colour);
    bool tell(UINT code);
    Colour fromPalette(int cell) const;
    void carryOut(ovoui::colour::DropButtonKey meaning, UINT key);
    void closeAndGoOn();

    Colour m_colour;
    std::vector<COLORREF> m_palette;
    int m_columns;
    bool m_usesDialog = true;
    bool m_hot = false;
    std::unique_ptr<ovoui::colour::ColourDrop> m_drop; // while it is open
    std::shared_ptr<ovoui::colour::ColourIdentity> m_identity;
    Lifeline m_lifeline;
};

/// The `colour` of a `button`, for the `exchange` of a DoDataExchange.
OVOUI_API void DDX_Colour(CDataExchange* exchange, CColourButton& button, Colour& colour);
OVOUI_API void DDX_Colour(CDataExchange* exchange, CColourButton& button, COLORREF& colour);
