/// The colour-picking dialog with a palette of the user's own.
#pragma once

#include <ovoui/colour/ColPickerDlgBase.h>
#include <ovoui/colour/ColourDropper.h>
#include <ovoui/colour/ColourGrid.h>
#include <ovoui/colour/ColourHistory.h>
#include <ovoui/colour/RecentColours.h>

#include <array>

/// Beside what ColPickerDlg has: 18 custom colours and those that were last closed with OK, which the
/// application's profile keeps with the last mode; a button that picks a colour from the screen; a field that
/// shows and takes `#RRGGBB`, `#RRGGBBAA` and the names of CSS; the colour as it was, which a click brings
/// back; the contrast to white and black; undo and redo by Ctrl+Z and Ctrl+Y. All of it can be reached by the
/// keyboard.
///
/// It is made of what the library offers to every host; its sources show how.
class OVOUI_API ColPickerPaletteDlg : public ColPickerDlgBase
{
    DECLARE_DYNAMIC(ColPickerPaletteDlg)

public:
    /// `mode` counts where the profile has none. `app`, `colour`, `centreOn` and `parent` are as in the first
    /// constructor of the base.
    ColPickerPaletteDlg(CWinApp& app, ColPickerModeType mode, const Colour& colour, CWnd* centreOn,
                        CWnd* parent);
    ~ColPickerPaletteDlg() override;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// Shows the colour as text and its contrast, and after a drag, when `final`, remembers it for undo. An
    /// override calls this first.
    void UpdateExternalColours(bool final) override;
    COLORREF& customCols(int index) override;
    void LoadSettings() override;
    void SaveSettings() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnBefore();
    afx_msg void OnColourOfScreen();
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int id, DRAWITEMSTRUCT* item);
    afx_msg void OnKillfocusText();
    afx_msg void OnRecent();
    DECLARE_MESSAGE_MAP()

private:
    void use(const Colour& colour);
    void useOpaque(COLORREF colour);
    void keepAlpha();
    void showColour();
    void showRecent();
    bool goBackOrForward(WPARAM key);

    const Colour m_before;
    double m_alpha; ///< of the last colour that had one
    std::array<COLORREF, 18> m_custom;
    ovoui::colour::RecentColours m_recent;
    ovoui::colour::ColourHistory m_history;
    CEdit m_text;
    CColourGrid m_recentGrid;
    CColourDropper m_dropper;
    Lifeline m_paletteLifeline;
};
