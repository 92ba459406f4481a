// Compiled once for each case: only the right signature may pass.
#include <afxwin.h>

class Window : public CWnd
{
protected:
#if defined(CASE_WrongArgument)
    afx_msg void OnSize(UINT type, long cx, int cy);
#else
    afx_msg void OnSize(UINT type, int cx, int cy);
#endif
#if defined(CASE_WrongResult)
    afx_msg void OnEraseBkgnd(CDC* dc);
#else
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
#endif
#if defined(CASE_WrongCommand)
    afx_msg void OnOpen(UINT id);
#elif !defined(CASE_NotAMember)
    afx_msg void OnOpen();
#endif
    DECLARE_MESSAGE_MAP()
};

class Deeper : public Window
{
public:
    afx_msg void OnDeeper();
};

class Other : public CWnd
{
public:
    afx_msg void OnOther();
};

BEGIN_MESSAGE_MAP(Window, CWnd)
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_COMMAND(100, &Window::OnOpen)
#if defined(CASE_OfAnotherClass)
ON_COMMAND(101, &Other::OnOther)
#endif
#if defined(CASE_OfADerivedClass)
ON_COMMAND(101, &Deeper::OnDeeper)
#endif
END_MESSAGE_MAP()
