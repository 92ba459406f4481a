/// What the toolbar's tests share: a frame with a status bar, a bar in it, and a hand that reaches its
/// flyouts.
#pragma once

#include "resource.h"

#include <testkit/Desktop.h>
#include <testkit/Robot.h>

#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/VantorToolBar.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

/// A bar that lets tests see what hosts see that derive from it.
class TestBar : public CVantorToolBar
{
public:
    ~TestBar() override;

    using CVantorToolBar::_getButton;
    using CVantorToolBar::_setButton;
    using CVantorToolBar::ButtonHitTest;
    using CVantorToolBar::CreatePopup;
    using CVantorToolBar::ms_dragButton;
    using CVantorToolBar::ms_dragging;
    using CVantorToolBar::ms_idleTimerPending;
    using CVantorToolBar::ms_popupBar;
    using CVantorToolBar::noteBitmap;

    /// Asked for every message first.
    std::function<void(UINT message, WPARAM wParam)> seeing;
    int updates = 0; ///< idle updates that were not skipped

    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// A command as it reached the frame.
struct Issued
{
    UINT id;
    HWND from;

    friend bool operator==(const Issued&, const Issued&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Issued& issued);
};

/// Takes down commands and serves all of the tests' own.
class BarFrame : public CFrameWnd
{
public:
    BarFrame();

    std::vector<Issued> issued; ///< WM_COMMAND with code 0
    std::set<UINT> disabled;
    std::vector<std::wstring> prompts; ///< what the message line showed
    int askedFor = 0;                  ///< update requests
    int pretranslated = 0;             ///< messages that it was asked about
    int menusAsked = 0;                ///< for the keyboard; none opens
    bool passesActivation = false;     ///< WM_ACTIVATEAPP on to the bars
    std::function<void(UINT id)> onCommand;
    std::function<void(UINT id)> onUpdate;
    std::function<LRESULT(NMHDR*)> onNotify;

    CStatusBar& status() { return m_status; }
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL PreTranslateMessage(MSG* message) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT cs, CCreateContext* context) override;

private:
    CStatusBar m_status;
};

/// A shown frame with this bar:
///
///     0 plain   1 flyout of commands   2 flyout of a resource   3 separator   4 other
class BarScene
{
public:
    explicit BarScene(DWORD side = CBRS_TOP);
    ~BarScene();

    enum Index
    {
        Plain,
        Lines,
        Shapes,
        Gap,
        Other
    };

    /// The commands of the flyout at Lines: line, curve, separator, arc, nameless.
    static const std::vector<int>& lineCommands();

    /// A second bar below the first one, with a flyout of commands at its first button.
    TestBar& addBar();

    BarFrame& frame() const { return *m_frame; }
    bool frameLives() const { return ::IsWindow(m_frameWnd); }
    TestBar& bar() const { return *m_bar; }
    void deleteBar() { m_bar.reset(); }

    // Places, looked up when they are needed
    ovo::testkit::Spot button(int index) const;
    ovo::testkit::Spot buttonOf(const TestBar& bar, int index) const;
    ovo::testkit::Spot entry(int index) const; ///< of the open flyout, separators counted
    ovo::testkit::Spot outside() const;        ///< in the frame, far from bar and flyout

    // The flyout
    static CFlyoutToolbar* flyout() { return TestBar::ms_popupBar.get(); }
    static bool flyoutShown() { return flyout() && flyout()->IsWindowVisible(); }
    static bool idle();
    /// Index of the entry that is shown pressed; -1 for none.
    static int hotEntry();
    static CRect flyoutRect();

    /// Command and image of the bar's button.
    int command(int index) const;
    int image(int index) const;
    std::vector<UINT> commands() const; ///< that were issued
    std::wstring prompt() const;        ///< in the message line

    ovo::testkit::Robot user;

private:
    BarFrame* m_frame; // deletes itself with its window
    HWND m_frameWnd;
    std::unique_ptr<TestBar> m_bar;
    std::vector<std::unique_ptr<TestBar>> m_more;
};

/// A button's rectangle on the screen.
CRect onScreen(const TestBar& bar, int index);

/// Makes the flyout at Lines one of so many commands without names or strings.
void attachMany(BarScene& scene, int count, bool styleFlag = false);

// Single messages, between which no timer can come

/// Presses a button.
void pressAtOnce(TestBar& bar, int index);
/// Moves to a point of the screen and lets go there.
void releaseAtOnce(TestBar& bar, CPoint screen);

/// Counts the messages of this number and wParam that the message loop takes for windows of a class.
class MessageCounter
{
public:
    MessageCounter(const wchar_t* windowClass, UINT message, WPARAM wParam);
    ~MessageCounter();
    MessageCounter(const MessageCounter&) = delete;
    MessageCounter& operator=(const MessageCounter&) = delete;

    int count() const { return m_count; }

private:
    static LRESULT CALLBACK onMessage(int code, WPARAM removed, LPARAM message);

    const wchar_t* m_class;
    UINT m_message;
    WPARAM m_wParam;
    int m_count = 0;
    HHOOK m_hook;
};

inline constexpr wchar_t kFlyoutClass[] = L"OvoFlyoutToolbar";
