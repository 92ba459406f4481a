/// Not exported: the framework's file dialog behind COVOFileDialog.
#pragma once

#include <ovoui/files/FileDialog.h>
#include <ovoui/files/core/DeclaredControls.h>

#include <afxdlgs.h>

#include <exception>
#include <string>

/// Passes on to its owner what happens in either dialog.
class COVOFileDialogImp : public CFileDialog
{
public:
    COVOFileDialogImp(BOOL open, LPCWSTR defaultExtension, LPCWSTR fileName, DWORD flags, LPCWSTR filter,
                      CWnd* parent, BOOL vistaStyle);

    bool isNewStyle() const { return m_bVistaStyle != FALSE; }
    IFileDialog* fileDialog() const { return m_pIFileDialog; }

    /// The interface for the host's controls. `operation` is named when there is none, which is an error of
    /// the host.
    IFileDialogCustomize* customize(const char* operation) const;

    /// The text of a control in the host's own dialog.
    static CString labelOf(const CDialog& dialog, DWORD id);

    /// What the host has said of the controls in its template.
    ovoui::DeclaredControls& declared() { return m_declared; }

    // The classic dialog's folder to begin in
    void useDefaultFolder(const std::wstring& path) { m_defaultFolder = path; }
    void rememberFolder(const GUID& purpose);

    /// DoModal, which raises what a handler of a control has thrown meanwhile.
    INT_PTR ask();

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnFileNameOK() override;
    void OnLBSelChangedNotify(UINT box, UINT selection, UINT code) override;
    void OnInitDone() override;
    void OnFileNameChange() override;
    void OnFolderChange() override;
    void OnTypeChange() override;
    virtual LRESULT OnPostInit(WPARAM wParam, LPARAM lParam);

    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()
    DECLARE_INTERFACE_MAP()

private:
    BEGIN_INTERFACE_PART(ControlEvents, IFileDialogControlEvents)
    STDMETHOD(OnItemSelected)(IFileDialogCustomize*, DWORD control, DWORD item) override;
    STDMETHOD(OnButtonClicked)(IFileDialogCustomize*, DWORD control) override;
    STDMETHOD(OnCheckButtonToggled)(IFileDialogCustomize*, DWORD control, BOOL checked) override;
    STDMETHOD(OnControlActivating)(IFileDialogCustomize*, DWORD control) override;
    END_INTERFACE_PART(ControlEvents)

public:
    COVOFileDialog* m_owner = nullptr; ///< set by the owner's constructor

private:
    template <class Handler>
    HRESULT tell(Handler&& handler);
    void tellOfCommand(WORD id, WORD code, HWND control);
    void tellOfSelection(WORD id, HWND control);
    void openMenu(WORD id);
    void beginInFolder();
    void keepFolder() const;
    void cancelNewStyle() const;
    static void CALLBACK cancelMenuAndDialog(HWND dialog, UINT, UINT_PTR timer, DWORD);
    static void CALLBACK postAgain(HWND child, UINT, UINT_PTR timer, DWORD);

    ovoui::DeclaredControls m_declared;
    std::wstring m_defaultFolder;
    std::wstring m_rememberedAs; ///< the profile's entry; empty: nothing is remembered
    std::wstring m_beginning;    ///< stands for lpstrInitialDir while the dialog is shown
    std::exception_ptr m_kept;   ///< what a handler has thrown on the new-style path
};
