// What the tests of frames share: a frame with a view, which note who is asked and what happens to them.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>

#include <afxwin.h>
#include <afxext.h>
#include <afxpriv.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

using Log = std::vector<std::string>;

class TestView : public CView
{
    DECLARE_DYNCREATE(TestView)

public:
    static inline int s_alive = 0;
    static inline Log s_log; ///< of all views
    static inline std::string s_taker;

    TestView() { ++s_alive; }
    ~TestView() override { --s_alive; }

    const char* name = "view";
    int drawn = 0;

protected:
    void OnDraw(CDC* dc) override;
    void OnInitialUpdate() override;
    void OnActivateView(BOOL activate, CView* activateView, CView* deactiveView) override;
    void OnActivateFrame(UINT state, CFrameWnd* frame) override;
    afx_msg BOOL OnAct(UINT);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    DECLARE_MESSAGE_MAP()
};

class TestFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(TestFrame)

public:
    static inline int s_alive = 0;

    TestFrame() { ++s_alive; }
    ~TestFrame() override { --s_alive; }

    /// A hidden frame of 500 by 400 pixels with an active view.
    static TestFrame* make();
    /// One without a view.
    static TestFrame* makeEmpty();

    TestView* addView(UINT id = AFX_IDW_PANE_FIRST);

    /// A child's rectangle in the frame's client area.
    CRect placeOf(const CWnd& child) const;

    /// Update handlers by command id, for as long as the frame lives.
    std::map<UINT, std::function<void(CCmdUI&)>> updates;
    std::function<void()> onOther;
    int acted = 0;
    TestView* view = nullptr;

    using CFrameWnd::m_nIDLastMessage;
    using CFrameWnd::m_nIDTracking;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    afx_msg BOOL OnAct(UINT);
    afx_msg void OnOther();
    afx_msg void OnFirst() {}
    DECLARE_MESSAGE_MAP()
};

/// A frame that is the program's main window, for the time of a test.
class MainFrame
{
public:
    explicit MainFrame(TestFrame* frame = TestFrame::make());
    ~MainFrame();
    MainFrame(const MainFrame&) = delete;
    MainFrame& operator=(const MainFrame&) = delete;

    TestFrame* operator->() const { return m_frame; }
    TestFrame& operator*() const { return *m_frame; }

private:
    TestFrame* m_frame;
    HWND m_wnd;
};

/// A frame that a view of a class fills, for the time of a test.
template <class View>
struct FilledFrame
{
    FilledFrame(CRuntimeClass* viewClass, LPCTSTR title, CSize size)
        : frame(new TestFrame)
    {
        CCreateContext context;
        context.m_pNewViewClass = viewClass;
        frame->Create(nullptr, title, WS_OVERLAPPEDWINDOW, CRect(CPoint(20, 20), size), nullptr, nullptr, 0,
                      &context);
        frame->InitialUpdateFrame(nullptr, FALSE);
        view = static_cast<View*>(frame->GetActiveView());
    }
    ~FilledFrame() { frame->DestroyWindow(); }
    FilledFrame(const FilledFrame&) = delete;
    FilledFrame& operator=(const FilledFrame&) = delete;

    TestFrame* const frame; ///< deletes itself with its window
    View* view;
};

std::wstring textIn(const CWnd& wnd);
