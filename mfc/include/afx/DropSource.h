// COleDropSource: this program's side of a drag.
#pragma once

#include <afx/CmdTarget.h>
#include <afx/DropEffect.h>
#include <atltypes.h>
#include <ole2.h>

class CWnd;

/// Decides when a drag begins, when it ends, and what the pointer looks like meanwhile.
///
/// It remembers which button began the drag: releasing that one drops, pressing the other cancels.
class OVOMFC_API COleDropSource : public CCmdTarget
{
public:
    COleDropSource();

    /// Waits until a drag begins or comes to nothing, with the mouse captured by `window` (the window with
    /// the data). TRUE when the pointer leaves the start rectangle or the drag delay passes, FALSE when the
    /// button goes up, another one goes down or Escape is pressed first.
    virtual BOOL OnBeginDrag(CWnd* window);
    /// DRAGDROP_S_CANCEL, DRAGDROP_S_DROP or S_OK, from the MK_ bits of buttons and keys.
    virtual SCODE QueryContinueDrag(BOOL escapePressed, DWORD keyState);
    /// DRAGDROP_S_USEDEFAULTCURSORS, or S_OK before the drag has begun or when an override set a pointer.
    virtual SCODE GiveFeedback(DROPEFFECT effect);

    BEGIN_INTERFACE_PART(DropSource, IDropSource)
    STDMETHOD(QueryContinueDrag)(BOOL escapePressed, DWORD keyState) override;
    STDMETHOD(GiveFeedback)(DWORD effect) override;
    END_INTERFACE_PART(DropSource)

    DECLARE_INTERFACE_MAP()

private:
    friend class COleDataSource;

    /// Notes which button is down, and where the pointer may move before the drag begins.
    void prepare(LPCRECT startRect);
    bool waitForStart(HWND capture) const;

    CRect m_startRect; ///< screen coordinates
    bool m_dragStarted = false;
    DWORD m_buttonDrop = MK_LBUTTON;   ///< releasing this one drops
    DWORD m_buttonCancel = MK_RBUTTON; ///< pressing this one cancels
};
