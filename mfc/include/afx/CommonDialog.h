// CCommonDialog: what the system's dialogs have in common.
#pragma once

#include <afx/Dialog.h>

/// A dialog that the system makes and closes.
class OVOMFC_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    /// Without a parent the main window is the owner.
    explicit CCommonDialog(CWnd* parent);

protected:
    // Left to the system, which closes the dialog.
    void OnOK() override;
    void OnCancel() override;

    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()
};
