// CToolBar: a row of buttons that send commands.
#pragma once

#include <afx/ControlBar.h>
#include <afx/ToolBarCtrl.h>

namespace afxdetail
{
struct ToolBarItem;
}

// Styles of buttons; states in the upper half
#define TBBS_BUTTON MAKELONG(TBSTYLE_BUTTON, 0)
#define TBBS_SEPARATOR MAKELONG(TBSTYLE_SEP, 0)
#define TBBS_CHECKBOX MAKELONG(TBSTYLE_CHECK, 0)
#define TBBS_GROUP MAKELONG(TBSTYLE_GROUP, 0)
#define TBBS_CHECKGROUP (TBBS_GROUP | TBBS_CHECKBOX)
#define TBBS_DROPDOWN MAKELONG(TBSTYLE_DROPDOWN, 0)
#define TBBS_AUTOSIZE MAKELONG(TBSTYLE_AUTOSIZE, 0)
#define TBBS_NOPREFIX MAKELONG(TBSTYLE_NOPREFIX, 0)
#define TBBS_CHECKED MAKELONG(0, TBSTATE_CHECKED)
#define TBBS_PRESSED MAKELONG(0, TBSTATE_PRESSED)
#define TBBS_DISABLED MAKELONG(0, TBSTATE_ENABLED) // a set bit means disabled
#define TBBS_INDETERMINATE MAKELONG(0, TBSTATE_INDETERMINATE)
#define TBBS_HIDDEN MAKELONG(0, TBSTATE_HIDDEN)
#define TBBS_WRAPPED MAKELONG(0, TBSTATE_WRAP)

/// Buttons with pictures side by side from one bitmap, and separators. A button that is clicked sends its
/// command to the frame; update handlers for the command decide in idle time how it looks. The bar's window
/// is a toolbar control.
class OVOMFC_API CToolBar : public CControlBar
{
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar();
    ~CToolBar() override;

    using CWnd::Create;
    virtual BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT id = AFX_IDW_TOOLBAR);
    using CWnd::CreateEx;
    /// With styles of the control, TBSTYLE_ values, and borders in pixels.
    virtual BOOL CreateEx(CWnd* parent, DWORD controlStyle = TBSTYLE_FLAT,
                          DWORD style = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect borders = CRect(0, 0, 0, 0), UINT id = AFX_IDW_TOOLBAR);

    // Buttons and pictures. FALSE on failure.
    /// A toolbar resource, and the bitmap of the same name, found along the resource chain.
    BOOL LoadToolBar(LPCTSTR name);
    BOOL LoadToolBar(UINT id);
    BOOL LoadBitmap(LPCTSTR name); ///< With the system's colours for the four standard greys.
    BOOL LoadBitmap(UINT id);
    BOOL SetBitmap(HBITMAP bitmap); ///< The bar owns it from now on.
    /// One button for each command, ID_SEPARATOR for a separator; null makes them all empty buttons.
    BOOL SetButtons(const UINT* ids, int count);

    // Sizes in pixels. A button has at least 7 by 6 pixels more than its picture.
    void SetSizes(SIZE button, SIZE image);
    void SetHeight(int height);

    // Single buttons count from 0.
    int CommandToIndex(UINT id) const;                      ///< -1 when there is none.
    UINT GetItemID(int index) const;                        ///< ID_SEPARATOR for a separator.
    virtual void GetItemRect(int index, LPRECT rect) const; ///< In client pixels.
    UINT GetButtonStyle(int index) const;
    void SetButtonStyle(int index, UINT style);
    /// For a separator `image` is its width.
    void GetButtonInfo(int index, UINT& id, UINT& style, int& image) const;
    void SetButtonInfo(int index, UINT id, UINT style, int image);
    BOOL SetButtonText(int index, LPCTSTR text);
    CString GetButtonText(int index) const;
    void GetButtonText(int index, CString& text) const;
    /// The bar as a control.
    CToolBarCtrl& GetToolBarCtrl() const;

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    CSize CalcDynamicLayout(int length, DWORD mode) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* sizes);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnSysColorChange();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    CSize m_sizeImage{16, 15};  ///< of a picture, in pixels
    CSize m_sizeButton{24, 22}; ///< of a button, in pixels

private:
    TBBUTTON button(int index) const;
    void setButton(int index, const TBBUTTON& button);
    bool isOnButton(CPoint point) const;
    bool showPictures(HBITMAP bitmap, int count);
    bool showResource(HINSTANCE module, HRSRC resource);
    CSize layOut(int length, DWORD mode);
    std::vector<afxdetail::ToolBarItem> itemsOfBar() const;
    void breakRows(const std::vector<afxdetail::ToolBarItem>& items);

    int m_height = 0;                   ///< SetHeight; 0 follows the buttons
    HBITMAP m_bitmap = nullptr;         ///< owned
    HINSTANCE m_bitmapModule = nullptr; ///< where m_bitmap was loaded from, to follow the system's colours
    HRSRC m_bitmapResource = nullptr;
    mutable CToolBarCtrl m_control; ///< the same window, seen as a control; never its owner
};
