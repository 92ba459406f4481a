// CWinApp: the program.
#pragma once

#include <afx/WinThread.h>

class CCmdUI;
class CCommandLineInfo;
class CDocument;
class CRecentFileList;

#ifndef HH_HELP_CONTEXT
#define HH_HELP_CONTEXT 0x000F
#define HH_DISPLAY_TOPIC 0x0000
#define HH_DISPLAY_INDEX 0x0002
#endif

#define _AFX_MRU_COUNT 4      // recent files, unless the program says otherwise
#define _AFX_MRU_MAX_COUNT 16 // as many as there are numbers for them
#define AFX_ABBREV_FILENAME_LEN 30

enum AFX_HELP_TYPE
{
    afxWinHelp = 0,
    afxHTMLHelp = 1
};

/// A program makes one object of a class derived from this, at global scope.
class OVOMFC_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /// `name`: shown in message boxes and used for the profile; NULL takes the string AFX_IDS_APP_TITLE or
    /// the program's file name.
    explicit CWinApp(LPCTSTR name = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    // Allocated with malloc (_tcsdup); freed by the destructor.
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;
    LPCTSTR m_pszHelpFilePath = nullptr;
    LPCTSTR m_pszProfileName = nullptr;
    LPCTSTR m_pszRegistryKey = nullptr;
    AFX_HELP_TYPE m_eHelpType = afxWinHelp;
    BOOL m_bHelpMode = FALSE; ///< The user is choosing, after Shift+F1, what to get help on.

    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int ExitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG count) override;
    LRESULT ProcessWndProcException(CException* exception, const MSG* message) override;
    virtual BOOL SaveAllModified();
    /// Called for a recent file that the user has chosen; opens it, and gives NULL when that fails: the file is
    /// then taken off the list. By default there are no documents, so it does nothing and gives NULL.
    virtual CDocument* OpenDocumentFile(LPCTSTR path);

    // Resources, along the resource chain
    HCURSOR LoadCursor(LPCTSTR name) const;
    HCURSOR LoadCursor(UINT id) const;
    HCURSOR LoadStandardCursor(LPCTSTR name) const;
    HCURSOR LoadOEMCursor(UINT id) const;
    HICON LoadIcon(LPCTSTR name) const;
    HICON LoadIcon(UINT id) const;
    HICON LoadStandardIcon(LPCTSTR name) const;
    HICON LoadOEMIcon(UINT id) const;

    // The profile: the registry once a key is set, a private INI file before. An empty entry name is one like
    // any other.
    void SetRegistryKey(LPCTSTR company);
    void SetRegistryKey(UINT companyId);
    UINT GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue);
    BOOL WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value);
    CString GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue = nullptr);
    /// A NULL entry deletes the section, a NULL value the entry.
    BOOL WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value);
    /// `*data` is freed by the caller with delete[].
    BOOL GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* bytes);
    BOOL WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT bytes);
    /// HKEY_CURRENT_USER\Software\company\program, created if needed; the caller closes it.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR section);

    /// Puts a file at the head of the list of recent files, if there is one.
    virtual void AddToRecentFileList(LPCTSTR path);

    // Messages and help
    virtual int DoMessageBox(LPCTSTR text, UINT type, UINT helpId);
    /// 1 begins, -1 ends, 0 restores the hourglass.
    virtual void DoWaitCursor(int code);
    virtual void HtmlHelp(DWORD_PTR data, UINT command = HH_HELP_CONTEXT);
    virtual void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT);
    void EnableHtmlHelp();
    AFX_HELP_TYPE GetHelpMode() const;
    void SetHelpMode(AFX_HELP_TYPE type);

    void ParseCommandLine(CCommandLineInfo& info);
    void HideApplication();

    // Commands. A program that has help puts these into its message map, or those of CWnd into its frame's:
    //
    //     ON_COMMAND(ID_HELP_FINDER, &CWinApp::OnHelpFinder)
    //     ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
    //     ON_COMMAND(ID_CONTEXT_HELP, &CWinApp::OnContextHelp)
    //     ON_COMMAND(ID_DEFAULT_HELP, &CWinApp::OnHelpFinder)
    afx_msg void OnAppExit();
    /// F1: help on the open message box, else on what answers WM_COMMANDHELP first of the active window and the
    /// windows around it, else ID_DEFAULT_HELP.
    afx_msg void OnHelp();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpUsing();
    /// Shift+F1: lets the user click something, or choose a command, and shows help on it. Escape ends it.
    afx_msg void OnContextHelp();

protected:
    /// In InitInstance, after SetRegistryKey: reads the list of recent files and the preview's number of pages.
    /// `maxFiles` is at most 16; with 0 there is no list. ExitInstance writes them.
    void LoadStdProfileSettings(UINT maxFiles = _AFX_MRU_COUNT);
    void SaveStdProfileSettings();

    afx_msg BOOL OnOpenRecentFile(UINT id);
    afx_msg void OnUpdateRecentFileMenu(CCmdUI* ui);
    DECLARE_MESSAGE_MAP()

    CRecentFileList* m_pRecentFileList = nullptr; ///< owned; null before LoadStdProfileSettings
    UINT m_nNumPreviewPages = 0;

private:
    bool usesRegistry() const { return m_pszRegistryKey != nullptr; }
};

/// What the command line asks for.
///
///     program                                   a new file
///     program file                              open it
///     program /p file                           print it
///     program /pt file printer driver port      print it there
///     program /dde, /Embedding, /Automation     started by another program
///     program /Register, /Unregister            (or /Regserver, /Unregserver) enter or leave the registry
class OVOMFC_API CCommandLineInfo : public CObject
{
public:
    CCommandLineInfo();
    ~CCommandLineInfo() override;

    /// Called for each argument; `flag` when it began with - or /, which is taken off.
    virtual void ParseParam(const TCHAR* parameter, BOOL flag, BOOL last);
    /// The same for narrow text; not called by the framework.
    virtual void ParseParam(const char* parameter, BOOL flag, BOOL last);

    enum
    {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    } m_nShellCommand = FileNew;
    CString m_strFileName;
    CString m_strPrinterName; ///< these three with /pt only
    CString m_strDriverName;
    CString m_strPortName;
    BOOL m_bShowSplash = TRUE; ///< for a new file only
    BOOL m_bRunEmbedded = FALSE;
    BOOL m_bRunAutomated = FALSE;

private:
    void parseFlag(const CString& flag);
    void parseName(const CString& name);
};

/// Shows a message through the program's DoMessageBox and gives the answer, 0 on failure.
OVOMFC_API int AFXAPI AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
OVOMFC_API int AFXAPI AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = static_cast<UINT>(-1));

/// Starts the framework by hand, for programs with a main function of their own.
OVOMFC_API BOOL AFXAPI AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show);
/// What wWinMain does.
OVOMFC_API int AFXAPI AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show);
/// Ends what the framework has begun, OLE first of all. AfxWinMain calls it; programs with a main function of
/// their own do.
OVOMFC_API void AFXAPI AfxWinTerm();

OVOMFC_API BOOL AFXAPI AfxEnableControlContainer();
