// CBitmapButton: a push button that shows pictures of its states.
#pragma once

#include <afx/Bitmap.h>
#include <afx/Button.h>

/// A button of style BS_OWNERDRAW with up to four pictures: released, pressed, with the focus, disabled. A
/// state without a picture of its own shows the first one. Pictures are drawn at the upper left corner, in
/// their own size, so they should all have that of the first.
///
/// In a dialog the button's caption names the resources: with the caption "OPEN" they are "OPENU", "OPEND",
/// "OPENF" and "OPENX", of which only the first must exist.
///
///     BOOL COptionsDlg::OnInitDialog()
///     {
///         CDialog::OnInitDialog();
///         m_open.AutoLoad(IDC_OPEN, this);
///         return TRUE;
///     }
class OVOMFC_API CBitmapButton : public CButton
{
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton();

    /// Bitmap resources, by name or number, along the resource chain; 0 and null for none. Replaces all
    /// pictures. FALSE when one of them does not exist; the button keeps those that do.
    BOOL LoadBitmaps(LPCTSTR released, LPCTSTR pressed = nullptr, LPCTSTR focused = nullptr,
                     LPCTSTR disabled = nullptr);
    BOOL LoadBitmaps(UINT releasedId, UINT pressedId = 0, UINT focusedId = 0, UINT disabledId = 0);
    /// Becomes the dialog's control of this number, with the pictures that its caption names, in the size of
    /// the first one. FALSE when there is no such control, or no picture of the released button.
    BOOL AutoLoad(UINT id, CWnd* parent);
    /// Gives the button the size of the first picture, which must be there.
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    CBitmap m_bitmap;         ///< released
    CBitmap m_bitmapSel;      ///< pressed
    CBitmap m_bitmapFocus;    ///< with the focus
    CBitmap m_bitmapDisabled; ///< disabled

private:
    const CBitmap& pictureOf(UINT state) const;
};
