// CFormView: a view with the controls of a dialog template.
#pragma once

#include <afx/ScrollView.h>
#include <afx/String.h>

/// The template is one for a child window without a border. The view scrolls when its window is smaller than
/// the template. Tab, arrows and mnemonics move between the controls; accelerators of the frame go first.
///
///     class CColourForm : public CFormView
///     {
///         DECLARE_DYNCREATE(CColourForm)
///         CColourForm() : CFormView(IDD_COLOUR) {}
///         void DoDataExchange(CDataExchange* exchange) override;
///     };
///
/// OnInitialUpdate shows the members in the controls (UpdateData(FALSE)).
class OVOMFC_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

public:
    /// Whether the controls exist and were initialised.
    BOOL IsInitDlgCompleted() const { return m_initialised; }

    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    explicit CFormView(LPCTSTR templateName); ///< The name is not copied.
    explicit CFormView(UINT templateId);

    /// FALSE when the template, found along the resource chain, is missing.
    BOOL Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                CCreateContext* context = nullptr) override;

    /// Not called for the screen, which the controls see to. Does nothing.
    void OnDraw(CDC* dc) override;
    void OnActivateView(BOOL activate, CView* activateView, CView* deactiveView) override;
    /// Keeps the control with the focus while another window is active.
    void OnActivateFrame(UINT state, CFrameWnd* frame) override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* old);
    DECLARE_MESSAGE_MAP()

    LPCTSTR m_lpszTemplateName;

private:
    void rememberFocus();

    HWND m_lastFocus = nullptr; ///< the control that had it when the view lost it
    BOOL m_initialised = FALSE;
};
