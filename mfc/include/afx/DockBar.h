// CDockBar: a side of a frame, or a window of its own, with rows of bars.
#pragma once

#include <afx/ControlBar.h>

namespace afxdetail
{
struct DockPlace;
struct DockRows;
struct Extent;
} // namespace afxdetail

/// Made by CFrameWnd::EnableDocking, and by floating bars for their windows. It has no depth while no bar of
/// it is shown. What is public here is for the framework.
class OVOMFC_API CDockBar : public CControlBar
{
    DECLARE_DYNAMIC(CDockBar)

public:
    explicit CDockBar(BOOL floating = FALSE);
    ~CDockBar() override;

    using CWnd::Create;
    virtual BOOL Create(CWnd* parent, DWORD style, UINT id);

    const BOOL m_bFloating; ///< It fills the window of a floating bar.

    /// Takes a bar from wherever it is. `start` is where along the side it wants to begin, in pixels.
    void take(CControlBar& bar, const afxdetail::DockPlace& place, int start);
    /// The same for a bar that was dropped: the bars of its row stay where it pushes them.
    void takeDropped(CControlBar& bar, const CRect& screen);
    /// Forgets a bar, which stays a child of this window.
    void release(CControlBar& bar);
    std::vector<CControlBar*> bars() const; ///< Row after row, hidden ones too.
    bool hasShownBar() const;

    afxdetail::DockPlace placeOf(const CControlBar& bar, int& start) const;
    afxdetail::DockPlace lastPlace() const;

    /// Asks the bars for their sizes; gives what they need along and across the side.
    afxdetail::Extent measure();
    /// Moves the bars to their places in a dock bar that is so long.
    void placeBars(int room);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM layout);
    DECLARE_MESSAGE_MAP()

private:
    bool isHorizontal() const { return (m_dwStyle & CBRS_ORIENT_HORZ) != 0; }
    CSize askSize(CControlBar& bar) const;
    CRect rectOf(int start, int length, int across, int depth) const;
    void remember(CControlBar& bar) const;
    int room() const;

    std::unique_ptr<afxdetail::DockRows> m_rows;
    const CControlBar* m_dropped = nullptr; ///< since the last layout
};
