// CAnimateCtrl: a clip that plays silently.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// An animation control: an AVI clip without sound, from a file or a resource.
class OVOMFC_API CAnimateCtrl : public CWnd
{
    DECLARE_DYNAMIC(CAnimateCtrl)

public:
    CAnimateCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // FALSE on failure
    BOOL Open(LPCTSTR fileOrResource);               ///< NULL closes the clip.
    BOOL Open(UINT resourceId);                      ///< A resource of type "AVI" of the module that has it.
    BOOL Play(UINT from, UINT to, UINT repetitions); ///< `to` and `repetitions` -1: the last frame, for ever.
    BOOL Seek(UINT frame);
    BOOL Stop();
    BOOL Close();
};
