// CControlBar: a strip of controls at a frame's edge.
#pragma once

#include <afx/FrameWnd.h>

// Styles of control bars. They travel in one word with window styles, so they keep clear of those.
#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L
#define CBRS_FLOAT_MULTI 0x0040L
#define CBRS_BORDER_3D 0x0080L
#define CBRS_HIDE_INPLACE 0x0008L
#define CBRS_SIZE_DYNAMIC 0x0004L
#define CBRS_SIZE_FIXED 0x0002L
#define CBRS_FLOATING 0x0001L
#define CBRS_GRIPPER 0x00400000L
#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL
#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// What a bar's size is asked for
#define LM_STRETCH 0x01
#define LM_HORZ 0x02
#define LM_MRUWIDTH 0x04
#define LM_HORZDOCK 0x08
#define LM_VERTDOCK 0x10
#define LM_LENGTHY 0x20
#define LM_COMMIT 0x40

struct AFX_SIZEPARENTPARAMS;

class OVOMFC_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    DWORD m_dwStyle = 0;         ///< CBRS_ bits
    BOOL m_bAutoDelete = FALSE;  ///< delete the object with its window

    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style);
    CRect GetBorders() const { return m_borders; }
    void SetBorders(int left = 0, int top = 0, int right = 0, int bottom = 0);
    void SetBorders(LPCRECT borders);
    int GetCount() const { return m_nCount; }
    virtual BOOL IsFloating() const { return FALSE; }
    BOOL IsVisible() const;

    /// Size of the bar; 32767 along the edge when it is stretched.
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal);
    virtual CSize CalcDynamicLayout(int length, DWORD mode);
    /// Takes the borders off a rectangle.
    virtual void CalcInsideRect(CRect& rect, BOOL horizontal) const;

    /// Brings the bar's commands up to date.
    virtual void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) = 0;
    virtual void DoPaint(CDC* dc);
    void DrawBorders(CDC* dc, CRect& rect);

    BOOL PreTranslateMessage(MSG* message) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    CControlBar();

    /// Splits the styles that were given to Create.
    void takeStyle(DWORD style);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM layout);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM);
    afx_msg LRESULT OnInitialUpdate(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    int m_nCount = 0; ///< items
    CRect m_borders{6, 1, 0, 1};

private:
    CWnd* notified() const;
};
