// COleDropTarget: a window that takes what is dragged onto it.
#pragma once

#include <afx/CmdTarget.h>
#include <afx/DropEffect.h>
#include <atltypes.h>
#include <ole2.h>

#include <memory>

class COleDataObject;
class CWnd;

/// Registered on a window, it is asked what a drag over the window would do, and gets the drop.
///
/// All points are client coordinates of the window in pixels. Effects are DROPEFFECT_ bits, of which the
/// source sees those it allows. Exceptions that leave an overridable come out of the call that runs the drag,
/// when this program runs it, else of the next message handled here. An overridable may revoke the target, and
/// delete it.
class OVOMFC_API COleDropTarget : public CCmdTarget
{
public:
    COleDropTarget();
    /// Revokes.
    ~COleDropTarget() override;

    /// FALSE when the target has a window already, the window a target, or OLE is not started. The window
    /// revokes the target when it is destroyed.
    BOOL Register(CWnd* window);
    /// Does nothing without a window.
    virtual void Revoke();

    /// The effect that a drop would have. `keyState` holds MK_ bits of buttons and keys, MK_ALT too. No
    /// effect by default.
    virtual DROPEFFECT OnDragEnter(CWnd* window, COleDataObject* dataObject, DWORD keyState, CPoint point);
    virtual DROPEFFECT OnDragOver(CWnd* window, COleDataObject* dataObject, DWORD keyState, CPoint point);
    /// Asked before the two above, which are asked only when the result lacks DROPEFFECT_SCROLL.
    virtual DROPEFFECT OnDragScroll(CWnd* window, DWORD keyState, CPoint point);
    virtual void OnDragLeave(CWnd* window);
    /// Takes the data and gives the effect that came of it, or (DROPEFFECT)-1 to have OnDrop asked, as the
    /// default does. `dropDefault` is what OnDragOver gives for the place, `dropList` what the source allows.
    virtual DROPEFFECT OnDropEx(CWnd* window, COleDataObject* dataObject, DROPEFFECT dropDefault,
                                DROPEFFECT dropList, CPoint point);
    /// Takes the data; TRUE when it did. FALSE by default.
    virtual BOOL OnDrop(CWnd* window, COleDataObject* dataObject, DROPEFFECT effect, CPoint point);

    HWND m_hWnd = nullptr; ///< The window registered on, NULL for none.

    BEGIN_INTERFACE_PART(DropTarget, IDropTarget)
    STDMETHOD(DragEnter)(LPDATAOBJECT dataObject, DWORD keyState, POINTL point, LPDWORD effect) override;
    STDMETHOD(DragOver)(DWORD keyState, POINTL point, LPDWORD effect) override;
    STDMETHOD(DragLeave)() override;
    STDMETHOD(Drop)(LPDATAOBJECT dataObject, DWORD keyState, POINTL point, LPDWORD effect) override;
    END_INTERFACE_PART(DropTarget)

    DECLARE_INTERFACE_MAP()

protected:
    /// What is being dragged over the window, NULL in between. For OnDragScroll, which is not given it.
    LPDATAOBJECT m_lpDataObject = nullptr;

private:
    /// OnDragEnter or OnDragOver.
    using Question = DROPEFFECT (COleDropTarget::*)(CWnd*, COleDataObject*, DWORD, CPoint);

    /// The effect at a point, of those that the source allows: the scroll overridable's, else `ask`'s.
    DROPEFFECT answer(Question ask, DWORD keyState, POINTL screen, DROPEFFECT allowed);
    DROPEFFECT drop(LPDATAOBJECT dataObject, DWORD keyState, POINTL screen, DROPEFFECT allowed);
    CPoint clientPoint(POINTL screen) const;
    void keepData(LPDATAOBJECT dataObject);

    std::shared_ptr<void> m_life = std::make_shared<char>(); ///< expires for those who watch the object
};
