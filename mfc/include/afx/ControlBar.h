// CControlBar: a strip of controls along the edge of a frame.
#pragma once

#include <afx/FrameWnd.h>

class CDockBar;

namespace afxdetail
{
class BarDrag;
struct DockMemory;
} // namespace afxdetail

// Styles of control bars. They travel in one word with window styles, whose upper half they leave free but
// for one bit that no bar needs.
#define CBRS_ALIGN_LEFT 0x1000L // where the bar lies, or may be docked
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_BORDER_LEFT 0x0100L // where it has a line
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
#define CBRS_BORDER_3D 0x0080L    // lines of two colours
#define CBRS_FLOAT_MULTI 0x0040L  // may float together with others
#define CBRS_FLYBY 0x0020L        // the message line tells what the tool under the pointer does
#define CBRS_TOOLTIPS 0x0010L     // buttons and controls of the bar have tips
#define CBRS_HIDE_INPLACE 0x0008L // hidden while an object is edited in place
#define CBRS_SIZE_DYNAMIC 0x0004L // its size can be changed while it floats
#define CBRS_SIZE_FIXED 0x0002L
#define CBRS_FLOATING 0x0001L // it floats
#define CBRS_GRIPPER 0x00400000L
#define CBRS_NOALIGN 0x00000000L // it stays where it is
#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// What a bar's size is asked for
#define LM_STRETCH 0x01  // as long as the frame's edge
#define LM_HORZ 0x02     // lying horizontally
#define LM_MRUWIDTH 0x04 // as wide as it last floated
#define LM_HORZDOCK 0x08 // docked at the top or bottom: as wide as it gets
#define LM_VERTDOCK 0x10 // docked at the side: as high as it gets
#define LM_LENGTHY 0x20  // the length is a height
#define LM_COMMIT 0x40   // remember this width for LM_MRUWIDTH

/// A child of a frame that takes a strip of it: above (CBRS_TOP), below, left or right.
///
/// A bar is usually a member of the frame's class. What its controls notify goes to its owner, the frame. A
/// derived class's Create sets m_dwStyle to the styles that it is given.
class OVOMFC_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    CControlBar();
    ~CControlBar() override;

    DWORD m_dwStyle = 0;        ///< CBRS_ bits
    BOOL m_bAutoDelete = FALSE; ///< Delete the object with its window.

    // Style and borders
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style);
    CRect GetBorders() const
    {
        return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
    }
    /// Room around the bar's contents, in pixels, as seen in a horizontal bar.
    void SetBorders(int left = 0, int top = 0, int right = 0, int bottom = 0);
    void SetBorders(LPCRECT borders);

    // State
    int GetCount() const { return m_nCount; } ///< Items that are no windows: buttons, panes.
    BOOL IsFloating() const { return (m_dwStyle & CBRS_FLOATING) != 0; }
    BOOL
    IsVisible() const; ///< What is about to be shown counts as visible, what is about to be hidden does not.
    CFrameWnd* GetDockingFrame() const { return m_pDockSite; } ///< Also while it floats.
    /// The sides that it may be docked to, CBRS_ALIGN_ bits, and CBRS_FLOAT_MULTI; 0: it only floats. The
    /// user can drag it from now on, in a frame that takes bars.
    void EnableDocking(DWORD dockStyle);
    /// A bar of an object that is edited in place. While a frame has one, its own bars of style
    /// CBRS_HIDE_INPLACE are hidden. Null: it is an ordinary bar.
    void SetInPlaceOwner(CWnd* owner);
    CWnd* m_pInPlaceOwner = nullptr;

    // Layout
    /// The bar's size in pixels; 32767 along the edge when it is stretched.
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal);
    /// The bar's size in pixels for LM_ bits; `length` is what it has, -1 when that is of no account.
    virtual CSize CalcDynamicLayout(int length, DWORD mode);
    /// Takes lines, gripper and borders off the rectangle of the bar.
    virtual void CalcInsideRect(CRect& rect, BOOL horizontal) const;

    // Painting
    virtual void DoPaint(CDC* dc);
    virtual void DrawBorders(CDC* dc, CRect& rect);
    virtual void DrawGripper(CDC* dc, const CRect& rect);

    /// Brings the bar's commands up to date; called in idle time. `target` may be any window: it is only
    /// asked as a command target.
    virtual void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) = 0;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* message) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnClose(); ///< Hides the bar.
    afx_msg void OnWindowPosChanged(WINDOWPOS* place);
    // On its gripper and background: drags the bar; makes it float or docks it again.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM layout);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM);
    afx_msg LRESULT OnInitialUpdate(WPARAM, LPARAM);
    afx_msg LRESULT OnHelpHitTest(WPARAM, LPARAM point);
    // Offered to the control that they are about, then to the owner
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item);
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT item);
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT item);
    afx_msg int OnVKeyToItem(UINT key, CListBox* box, UINT index);
    afx_msg int OnCharToItem(UINT character, CListBox* box, UINT index);
    DECLARE_MESSAGE_MAP()

    // Room around the bar's contents in pixels, as seen in a horizontal bar
    int m_cxLeftBorder = 6;
    int m_cxRightBorder = 0;
    int m_cyTopBorder = 1;
    int m_cyBottomBorder = 1;
    int m_nMRUWidth = 32767;          ///< how wide it last floated, in pixels, for LM_MRUWIDTH
    int m_nCount = 0;                 ///< items
    DWORD m_dwDockStyle = 0;          ///< where it may be docked
    CFrameWnd* m_pDockSite = nullptr; ///< the frame that it belongs to
    CDockBar* m_pDockBar = nullptr; ///< what it is docked to, or floats in; null for a bar with a fixed place

private:
    friend class CFrameWnd;
    friend class CDockBar;
    friend class CMiniDockFrameWnd;
    friend class afxdetail::BarDrag;

    enum class Pending
    {
        Nothing,
        Show,
        Hide
    };

    void delayShow(bool show);
    void applyPending();
    LRESULT sendToOwner();
    LRESULT notifyOwner(const NMHDR& header);
    LRESULT offer(HWND control);
    void followTipStyle();
    void followPointer();
    INT_PTR toolUnderPointer() const;
    void showPrompt();
    void forgetPrompt();
    bool isDockable() const;
    void calcFrame(NCCALCSIZE_PARAMS& sizes);
    void paintFrame();

    friend class CToolBar;
    friend class CDialogBar;

    Pending m_pending = Pending::Nothing;
    INT_PTR m_promptTool = -1; ///< the tool whose prompt is shown or about to be shown
    bool m_promptShown = false;
    bool m_dockingEnabled = false;
    bool m_hiddenInPlace = false;
    std::unique_ptr<afxdetail::DockMemory> m_dockMemory; ///< where it was docked and floating last
    bool m_tipsFollowed = false; ///< whether tips are on, as m_dwStyle said when it was last looked at
};
