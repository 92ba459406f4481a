/// The colour-picking dialog with a palette of the user's own.
#pragma once

#include <ovoui/colour/ColPickerDlgBase.h>

#include <array>
#include <memory>

namespace ovoui::colour
{
class ColourHistory;
}

/// Beside what ColPickerDlg has: 18 custom colours, which the application's profile keeps with the last mode;
/// a field that shows and takes `#RRGGBB`, `#RRGGBBAA` and the names of CSS; the colour as it was, which a
/// click brings back; the contrast to white and black; and undo and redo by Ctrl+Z and Ctrl+Y.
class OVOUI_API ColPickerPaletteDlg : public ColPickerDlgBase
{
    DECLARE_DYNAMIC(ColPickerPaletteDlg)

public:
    /// `mode` counts where the profile has none. The rest is as in the first constructor of the base.
    ColPickerPaletteDlg(CWinApp& app, ColPickerModeType mode, const Colour& colour, CWnd* centreOn,
                        CWnd* parent);
    ~ColPickerPaletteDlg() override;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// An override calls this first.
    void UpdateExternalColours(bool final) override;
    COLORREF& customCols(int index) override;
    void LoadSettings() override;
    void SaveSettings() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnBefore();
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int id, DRAWITEMSTRUCT* item);
    afx_msg void OnKillfocusText();
    DECLARE_MESSAGE_MAP()

private:
    void use(const Colour& colour);
    void showColour();
    bool goBackOrForward(WPARAM key);

    const Colour m_before;
    std::array<COLORREF, 18> m_custom;
    std::unique_ptr<ovoui::colour::ColourHistory> m_history;
    CEdit m_text;
    Lifeline m_paletteLifeline;
};
