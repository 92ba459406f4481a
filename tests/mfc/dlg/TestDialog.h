// What the tests of dialogs share: a dialog that is told what to do, windows to own it, and looks at it.
#pragma once

#include "MemoryTemplate.h"

#include <testkit/Desktop.h>
#include <testkit/Robot.h>

#include <afxwin.h>

#include <functional>
#include <string>

/// OK, an edit control (kEdit) and a button (kAct) that calls onAct.
class TestDialog : public CDialog
{
public:
    static constexpr int kEdit = 100;
    static constexpr int kAct = 101;
    static constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

    /// Ready for DoModal, or for createModeless.
    explicit TestDialog(CWnd* parent = nullptr, DWORD style = kStyle);

    BOOL createModeless(CWnd* parent = nullptr) { return CreateIndirect(m_memory.get(), parent); }

    std::function<BOOL(TestDialog&)> onInit = [](TestDialog&) { return TRUE; };
    std::function<void(TestDialog&)> onAct;
    std::function<void(CDataExchange*)> onExchange;
    int shown = 0;     ///< how often WM_SHOWWINDOW said so
    int destroyed = 0; ///< how often WM_DESTROY came

    using CDialog::m_nIDHelp;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    afx_msg void OnAct();
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    MemoryTemplate m_memory;
};

/// A shown window of no special class, to own dialogs.
class OwnerWindow : public CWnd
{
public:
    OwnerWindow();
    ~OwnerWindow() override;
};

/// A story that begins when a dialog waits for the user.
ovo::testkit::Story whenShown();

/// The control of the dialog that waits for the user.
HWND shownControl(int id);

std::wstring textOf(HWND wnd);

/// Fails when an exception was kept, to be raised by whatever is called next.
void expectNothingPending();
