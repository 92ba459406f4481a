// What the tests of docking share: a frame with a status bar, a pane and three toolbars, which notes what it
// is told.
#pragma once

#include "resource.h"

#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>

#include <afxwin.h>
#include <afxext.h>
#include <afxpriv.h>

#include <functional>
#include <map>
#include <vector>

namespace docktest
{

class DockFrame : public CFrameWnd
{
public:
    std::vector<UINT> commands; ///< that were carried out
    std::vector<UINT> asked;    ///< the bars that were asked for their room, in order
    std::map<UINT, int> closed; ///< WM_CLOSE
    bool captionActive = false;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// A toolbar with buttons of its own numbers, which notes when it is asked for its room.
class ButtonBar : public CToolBar
{
public:
    bool create(DockFrame& frame, UINT id, const wchar_t* title, int buttons, DWORD style = 0);

    int painted = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// Does something the next time that it is asked for its size; it may be gone afterwards.
class AskedBar : public ButtonBar
{
public:
    std::function<void()> whenAsked;

    CSize CalcDynamicLayout(int length, DWORD mode) override;
};

struct Options
{
    DWORD exStyle = 0;
    bool enableDocking = true;
};

/// The frame, 600 by 400 pixels at 100,100, and its bars. Bar one has four buttons, two has three, three has
/// two.
class DockScene
{
public:
    explicit DockScene(Options options = {});
    ~DockScene();
    DockScene(const DockScene&) = delete;
    DockScene& operator=(const DockScene&) = delete;

    /// Docks the three bars at the top, side by side, and shows the frame.
    void dockInOneRow();
    /// Docks one and shows the frame.
    void present();

    CRect client() const;
    /// In the frame's client area.
    CRect place(const CWnd& wnd) const;
    static CRect onScreen(const CWnd& wnd);
    CRect panePlace() const { return place(pane); }
    CDockBar* side(UINT id) const { return static_cast<CDockBar*>(frame->GetControlBar(id)); }
    static CMiniDockFrameWnd* floatOf(const CControlBar& bar);

    // Where a user takes hold
    ovo::testkit::Spot gripper(const CControlBar& bar) const;
    ovo::testkit::Spot button(const CToolBar& bar, int index) const;
    ovo::testkit::Spot caption(const CControlBar& bar) const;

    DockFrame* frame = nullptr;
    CStatusBar status;
    CWnd pane;
    ButtonBar one;
    ButtonBar two;
    ButtonBar three;
    ovo::testkit::Robot robot;
};

inline constexpr DWORD kAnySide = CBRS_ALIGN_ANY;

} // namespace docktest
