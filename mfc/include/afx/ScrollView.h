// CScrollView: a view of something that may be larger than its window.
#pragma once

#include <afx/View.h>
#include <atltypes.h>

class CBrush;

/// Scrolls by its scroll bars, which come and go as needed, and by the wheel. OnPrepareDC moves the origin,
/// so OnDraw draws as if everything were seen.
///
/// Call SetScrollSizes or SetScaleToFitSize in OnInitialUpdate or OnUpdate. Sizes and places are in the
/// logical units of the mapping mode, unless the name says Device: then in pixels.
class OVOMFC_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

public:
    static const SIZE sizeDefault; ///< For SetScrollSizes: a tenth of the whole, and a tenth of that.

    /// What is to be seen, how far a click beside the scroll box goes, and how far one on an arrow. The
    /// mapping mode is any but MM_ISOTROPIC and MM_ANISOTROPIC.
    void SetScrollSizes(int mapMode, SIZE total, const SIZE& page = sizeDefault,
                        const SIZE& line = sizeDefault);
    /// The whole is drawn as large as the window, without scroll bars.
    void SetScaleToFitSize(SIZE total);

    CPoint GetScrollPosition() const; ///< What is at the upper left corner.
    CPoint GetDeviceScrollPosition() const;
    CSize GetTotalSize() const;
    void GetDeviceScrollSizes(int& mapMode, SIZE& total, SIZE& page, SIZE& line) const;
    /// Brings a point to the upper left corner, as far as that goes.
    void ScrollToPosition(POINT point);
    void CheckScrollBars(BOOL& horizontal, BOOL& vertical) const; ///< Which are shown.
    /// Gives the frame the size in which the view shows everything; by default only if that makes it smaller.
    void ResizeParentToFit(BOOL shrinkOnly = TRUE);
    /// For OnEraseBkgnd: fills what lies beyond the whole.
    void FillOutsideRect(CDC* dc, CBrush* brush);

    void OnPrepareDC(CDC* dc, CPrintInfo* info = nullptr) override;
    /// Scrolls by a number of pixels; FALSE when that changes nothing, or would not if `doScroll` were set.
    virtual BOOL OnScrollBy(CSize distance, BOOL doScroll = TRUE);
    /// Carries out the SB_ codes in the low byte (horizontal) and the high byte (vertical); 0xFF for none.
    virtual BOOL OnScroll(UINT codes, UINT position, BOOL doScroll = TRUE);

protected:
    CScrollView();

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    bool scalesToFit() const;
    CSize windowSize() const;
    void updateBars();
    void setBar(int bar, bool shown, int whole, int seen, int position);
    void moveTo(CPoint position);
    int positionAfter(int bar, int code) const;

    int m_mapMode = MM_TEXT;
    CSize m_total{0, 0}; ///< logical units
    CSize m_totalDevice{0, 0};
    CSize m_page{0, 0}; ///< pixels, as what follows
    CSize m_line{0, 0};
    CPoint m_position{0, 0};
    int m_wheel = 0; ///< turned since the last step
    bool m_sized = false;
    bool m_updating = false;
};
