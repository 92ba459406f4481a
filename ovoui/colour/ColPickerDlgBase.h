/// The dialog in which the user picks a colour.
///
///     ColPickerDlg dialog(*AfxGetApp(), ColPickerModeHLS, Colour::colorref(m_penColour), nullptr, this);
///     if (dialog.DoModal() == IDOK)
///         m_penColour = dialog.GetColour().colorref();
#pragma once

#include <ovoui/colour/ColPicker.h>
#include <ovoui/frame/ModalDialog.h>

/// For hosts to derive from: with swatches of custom colours, for a template of their own, or to hear of each
/// change. ColPickerDlg is ready to use.
class OVOUI_API ColPickerDlgBase : public COVOModalDialog, public ColPicker
{
    DECLARE_DYNAMIC(ColPickerDlgBase)

public:
    /// The library's own template. `app` has the profile of the settings, `mode` is what the edits and
    /// sliders stand for at first, `colour` the colour to begin with. Alpha can be edited when it has one,
    /// that is, when it is not negative; that needs a derived class that attaches the alpha controls, as
    /// ColPickerDlg does. The dialog belongs to `parent` and is centred on `centreOn`; both may be null, and
    /// neither is owned.
    ColPickerDlgBase(CWinApp& app, ColPickerModeType mode, const Colour& colour, CWnd* centreOn,
                     CWnd* parent);
    /// A template `templateId` of the host's, with any of the controls of the library's own; `app`, `colour`,
    /// `centreOn` and `parent` as above. It begins with red, green and blue, without alpha.
    ColPickerDlgBase(int templateId, CWinApp& app, const Colour& colour, CWnd* centreOn, CWnd* parent);
    ~ColPickerDlgBase() override;

    /// Opens the library's own template modeless, and shows it. It is closed by destroying its window, which
    /// OK and Cancel do, too; the object is the caller's.
    void createColPickerDlgBase();

    /// The colour as it is: that of the constructor before the dialog is opened, the last one after it has
    /// been closed, whichever way.
    Colour GetColour();

    /// Whether ring, triangle and swatches take the keyboard focus, by Tab and by a press of the mouse; they
    /// do not at first. Counts for the next window.
    void useKeyboard(bool use) { m_keysEnabled = use; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// Attaches the controls that the dialog has, in any `exchange`.
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnPaint();
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnDestroy();
    afx_msg void OnKillfocusColpickerValues();
    afx_msg void OnColourSpaceChanged();
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    DECLARE_MESSAGE_MAP()

    CButton m_button;  ///< for derived classes; not attached here
    CComboBox m_space; ///< the modes to choose from

private:
    CWnd* m_centreOn;
    CWnd* m_parent;
    Colour m_initialColour;
    bool m_modeless = false;
    Lifeline m_dialogLifeline;
};
