// Every entry that names its handler. HANDLER(right, wrong) writes the one or the other, in the form that is
// tried: the wrong one differs in one argument or in its result. Right ones must compile, wrong ones give an
// error on every line of the maps.
#include <afxwin.h>
#include <afxcmn.h>

#if defined(FORM_Documented) && defined(CASE_Right)
#define HANDLER(right, wrong) &ThisClass::right
#elif defined(FORM_Documented)
#define HANDLER(right, wrong) &ThisClass::wrong
#elif defined(FORM_Bare) && defined(CASE_Right)
#define HANDLER(right, wrong) right
#else
#define HANDLER(right, wrong) wrong
#endif

class Handlers : public CWnd
{
protected:
    afx_msg void OnNothing();
    afx_msg BOOL OnNothingEx();
    afx_msg void OnNumber(UINT);
    afx_msg BOOL OnNumberEx(UINT);
    afx_msg void OnUpdate(CCmdUI*);
    afx_msg BOOL OnUpdateEx(CCmdUI*);
    afx_msg void OnTwo(WPARAM, LPARAM);
    afx_msg LRESULT OnTwoEx(WPARAM, LPARAM);
    afx_msg void OnNotify(NMHDR*, LRESULT*);
    afx_msg BOOL OnNotifyEx(NMHDR*, LRESULT*);
    afx_msg void OnNotifyNumber(UINT, NMHDR*, LRESULT*);
    afx_msg BOOL OnNotifyNumberEx(UINT, NMHDR*, LRESULT*);

    // None of them fits anywhere.
    afx_msg int OnOverloadedWrong(UINT, UINT);
    afx_msg char OnOverloadedWrong(CCmdUI*, int);
    afx_msg void OnConst() const;
};

class Window : public Handlers
{
    DECLARE_MESSAGE_MAP()
};

class Thread : public CWinThread
{
    afx_msg void OnTwo(WPARAM, LPARAM);
    afx_msg LRESULT OnTwoEx(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()
};

namespace
{
UINT s_registered = 0;
}

// clang-format off
BEGIN_MESSAGE_MAP(Window, Handlers) // refused from here
    ON_MESSAGE(WM_APP, HANDLER(OnTwoEx, OnTwo))
    ON_MESSAGE_VOID(WM_APP, HANDLER(OnNothing, OnNothingEx))
    ON_REGISTERED_MESSAGE(s_registered, HANDLER(OnTwoEx, OnTwo))
    ON_COMMAND(1, HANDLER(OnNothing, OnNothingEx))
    ON_COMMAND(1, HANDLER(OnNothing, OnNumber))
    ON_COMMAND(1, HANDLER(OnNothing, OnConst))
    ON_COMMAND(1, HANDLER(OnNothing, OnOverloadedWrong))
    ON_COMMAND(1, HANDLER(OnNothing, OnNotThere))
    ON_COMMAND_RANGE(1, 2, HANDLER(OnNumber, OnNumberEx))
    ON_COMMAND_RANGE(1, 2, HANDLER(OnNumber, OnNothing))
    ON_COMMAND_EX(1, HANDLER(OnNumberEx, OnNumber))
    ON_COMMAND_EX(1, HANDLER(OnNumberEx, OnNothingEx))
    ON_COMMAND_EX_RANGE(1, 2, HANDLER(OnNumberEx, OnNumber))
    ON_COMMAND_RANGE_EX(1, 2, HANDLER(OnNumberEx, OnNumber))
    ON_UPDATE_COMMAND_UI(1, HANDLER(OnUpdate, OnUpdateEx))
    ON_UPDATE_COMMAND_UI(1, HANDLER(OnUpdate, OnNothing))
    ON_UPDATE_COMMAND_UI_RANGE(1, 2, HANDLER(OnUpdate, OnUpdateEx))
    ON_UPDATE_COMMAND_UI_REFLECT(HANDLER(OnUpdate, OnUpdateEx))
    ON_CONTROL(BN_CLICKED, 1, HANDLER(OnNothing, OnNothingEx))
    ON_CONTROL_RANGE(BN_CLICKED, 1, 2, HANDLER(OnNumber, OnNumberEx))
    ON_CONTROL_REFLECT(BN_CLICKED, HANDLER(OnNothing, OnNothingEx))
    ON_CONTROL_REFLECT_EX(BN_CLICKED, HANDLER(OnNothingEx, OnNothing))
    ON_NOTIFY(NM_CLICK, 1, HANDLER(OnNotify, OnNotifyEx))
    ON_NOTIFY(NM_CLICK, 1, HANDLER(OnNotify, OnNotifyNumber))
    ON_NOTIFY_RANGE(NM_CLICK, 1, 2, HANDLER(OnNotifyNumber, OnNotifyNumberEx))
    ON_NOTIFY_EX(NM_CLICK, 1, HANDLER(OnNotifyNumberEx, OnNotifyNumber))
    ON_NOTIFY_EX(NM_CLICK, 1, HANDLER(OnNotifyNumberEx, OnNotifyEx))
    ON_NOTIFY_EX_RANGE(NM_CLICK, 1, 2, HANDLER(OnNotifyNumberEx, OnNotifyNumber))
    ON_NOTIFY_REFLECT(NM_CLICK, HANDLER(OnNotify, OnNotifyEx))
    ON_NOTIFY_REFLECT_EX(NM_CLICK, HANDLER(OnNotifyEx, OnNotify))
    ON_BN_CLICKED(1, HANDLER(OnNothing, OnNothingEx))
    ON_BN_DOUBLECLICKED(1, HANDLER(OnNothing, OnNothingEx))
    ON_BN_SETFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_BN_KILLFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_CHANGE(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_UPDATE(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_SETFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_KILLFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_ERRSPACE(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_MAXTEXT(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_HSCROLL(1, HANDLER(OnNothing, OnNothingEx))
    ON_EN_VSCROLL(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_SELCHANGE(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_DBLCLK(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_SETFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_KILLFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_EDITCHANGE(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_EDITUPDATE(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_DROPDOWN(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_CLOSEUP(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_SELENDOK(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_SELENDCANCEL(1, HANDLER(OnNothing, OnNothingEx))
    ON_CBN_ERRSPACE(1, HANDLER(OnNothing, OnNothingEx))
    ON_LBN_SELCHANGE(1, HANDLER(OnNothing, OnNothingEx))
    ON_LBN_DBLCLK(1, HANDLER(OnNothing, OnNothingEx))
    ON_LBN_SELCANCEL(1, HANDLER(OnNothing, OnNothingEx))
    ON_LBN_SETFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_LBN_KILLFOCUS(1, HANDLER(OnNothing, OnNothingEx))
    ON_LBN_ERRSPACE(1, HANDLER(OnNothing, OnNothingEx))
    ON_STN_CLICKED(1, HANDLER(OnNothing, OnNothingEx))
    ON_STN_DBLCLK(1, HANDLER(OnNothing, OnNothingEx))
    ON_STN_ENABLE(1, HANDLER(OnNothing, OnNothingEx))
    ON_STN_DISABLE(1, HANDLER(OnNothing, OnNothingEx))
END_MESSAGE_MAP() // refused to here

BEGIN_MESSAGE_MAP(Thread, CWinThread) // refused from here
    ON_THREAD_MESSAGE(WM_APP, HANDLER(OnTwo, OnTwoEx))
    ON_REGISTERED_THREAD_MESSAGE(s_registered, HANDLER(OnTwo, OnTwoEx))
END_MESSAGE_MAP() // refused to here

// A template's entries are judged when it is made into a class.
template <class T>
class Pane : public CWnd
{
    afx_msg void OnNothing();
    afx_msg BOOL OnNothingEx();
    afx_msg void OnNumber(UINT);
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(Pane, T, CWnd) // refused from here
    ON_COMMAND(1, HANDLER(OnNothing, OnNothingEx))
    ON_COMMAND_RANGE(1, 2, HANDLER(OnNumber, OnNothing))
END_MESSAGE_MAP() // refused to here

template class Pane<int>;
