// CDockState: how the user has arranged the bars of a frame.
#pragma once

#include <afx/Collections.h>
#include <atltypes.h>

/// One bar of an arrangement.
struct CControlBarInfo
{
    UINT id = 0;
    BOOL visible = TRUE;
    BOOL floating = FALSE;
    BOOL horizontal = TRUE; ///< how it lies while it floats
    // Where it is docked, or was last; 0: it never was
    UINT dockBar = 0;
    int row = 0;
    int position = 0; ///< in the row
    int start = 0;    ///< pixels along the side
    // Where it floats, or did last
    BOOL floated = FALSE;
    CPoint floatPoint{0, 0}; ///< upper left corner on the screen
    int mruWidth = 32767;    ///< pixels
};

/// Filled by CFrameWnd::GetDockState, brought about by SetDockState, kept in the profile.
class OVOMFC_API CDockState : public CObject
{
    DECLARE_DYNAMIC(CDockState)

public:
    CDockState();
    ~CDockState() override;

    CPtrArray m_arrBarInfo; ///< of CControlBarInfo*, made with new and owned by this object

    void Clear();
    DWORD GetVersion() const; ///< Of the form in which the state is saved.
    /// The arrangement in the program's profile under sections that begin with this name. Without one the
    /// state is empty.
    void LoadState(LPCTSTR profileName);
    void SaveState(LPCTSTR profileName);
};
