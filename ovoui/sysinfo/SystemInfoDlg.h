/// A dialog that lists the modules of the process, for support reports.
///
///     CSystemInfoDlg(this).DoModal();
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/ModalDialog.h>

#include <afxcmn.h>

#include <memory>
#include <string>

namespace ovoui::sysinfo
{
class StretchedControls;
}

/// The text has a line for each module: name, address, size, link time, versions, type, path and description,
/// with tabs between them. It is made anew whenever the dialog is shown. The user can copy it, for which the
/// host has called AfxOleInit, and make the dialog larger.
class OVOUI_API CSystemInfoDlg : public COVOModalDialog
{
    DECLARE_DYNCREATE(CSystemInfoDlg)

public:
    /// `pParent` is disabled while the dialog is open; null for the main window.
    explicit CSystemInfoDlg(CWnd* pParent = nullptr);
    ~CSystemInfoDlg() override;

    /// Whether the text begins with what is known about the machine, from the next time on that it is made.
    /// Off at first.
    void ShowMachine(bool show);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnCopy();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void showModules();
    void useFixedFont();

    CEdit m_text;
    std::wstring m_modules;
    bool m_aboutMachine = false;
    CFont m_fixedFont; // so that the columns line up
    std::unique_ptr<ovoui::sysinfo::StretchedControls> m_controls;
};
