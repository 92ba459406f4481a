#include "TestDialog.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

BEGIN_MESSAGE_MAP(TestDialog, CDialog)
    ON_COMMAND(kAct, &TestDialog::OnAct)
    ON_WM_SHOWWINDOW()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

TestDialog::TestDialog(CWnd* parent, DWORD style)
    : m_memory(L"Test dialog", style)
{
    m_memory.control(L"BUTTON", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, L"OK")
        .control(L"EDIT", kEdit, WS_TABSTOP | WS_BORDER)
        .control(L"BUTTON", kAct, BS_PUSHBUTTON | WS_TABSTOP, L"Act");
    InitModalIndirect(m_memory.get(), parent);
}

BOOL TestDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    return onInit(*this);
}

void TestDialog::DoDataExchange(CDataExchange* exchange)
{
    if (onExchange)
        onExchange(exchange);
}

void TestDialog::OnAct()
{
    if (onAct)
        onAct(*this);
}

void TestDialog::OnShowWindow(BOOL show, UINT status)
{
    shown += show != FALSE;
    CDialog::OnShowWindow(show, status);
}

void TestDialog::OnDestroy()
{
    ++destroyed;
    CDialog::OnDestroy();
}

OwnerWindow::OwnerWindow()
{
    CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr);
}

OwnerWindow::~OwnerWindow()
{
    DestroyWindow();
}

Story whenShown()
{
    return Robot().waitFor("a dialog", [] { return shownDialog() != nullptr; });
}

HWND shownControl(int id)
{
    return ::GetDlgItem(shownDialog(), id);
}

std::wstring textOf(HWND wnd)
{
    CString text;
    CWnd::FromHandle(wnd)->GetWindowText(text);
    return text.GetString();
}

void expectNothingPending()
{
    CWnd any;
    any.CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_POPUP, CRect(), nullptr, 0);
    EXPECT_NO_THROW(any.SendMessage(WM_NULL)) << "an exception was left over";
    any.DestroyWindow();
}
