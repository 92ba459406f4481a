// CMiniFrameWnd: a small frame beside a program's frame.
#pragma once

#include <afx/FrameWnd.h>

// Styles of mini frames, given along with window styles
#define MFS_SYNCACTIVE 0x00000100L   // looks active whenever the frame that it belongs to does
#define MFS_4THICKFRAME 0x00000200L  // cannot be sized
#define MFS_THICKFRAME 0x00000400L   // can be made as small as what it contains allows
#define MFS_MOVEFRAME 0x00000800L    // is moved by its borders too
#define MFS_BLOCKSYSMENU 0x00001000L // has no system menu

/// A frame with a low caption, which is not in the task bar. It deletes itself with its window.
class OVOMFC_API CMiniFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd();
    ~CMiniFrameWnd() override;

    using CFrameWnd::Create;
    virtual BOOL Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect,
                        CWnd* parent = nullptr, UINT id = 0);
    using CFrameWnd::CreateEx;
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect,
                          CWnd* parent = nullptr, UINT id = 0);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg LRESULT OnFloatStatus(WPARAM status, LPARAM);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnSysCommand(UINT id, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_mfs = 0; ///< MFS_ styles
};
