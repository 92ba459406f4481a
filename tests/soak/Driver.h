/// A random user of the gallery.
///
///     Driver driver(scene.frame(), seed);
///     driver.begin(1000);                                     // inputs
///     GuiThread::runUntil([&] { return driver.isOver(); });   // and everything that is open is closed again
///
/// Inputs are posted as the system posts those of a user, one step after the other. The steps go on inside
/// the modal loops that they open: of dialogs, message boxes, menus and drags. When the batch is over, the
/// driver only closes what is open, so that the loop outside gets its turn.
#pragma once

#include "Reach.h"

#include <afxwin.h>

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>
#include <random>
#include <string>
#include <string_view>
#include <vector>

class GalleryFrame;
struct PageEntry;

class Driver : private CWnd
{
public:
    /// Opens one page alone when it is named, else all.
    Driver(GalleryFrame& frame, unsigned seed, const std::wstring& onlyPage);
    ~Driver() override;

    /// Begins a batch of so many inputs.
    void begin(int steps);
    /// To be asked by the outermost message loop alone: true there means that nothing is open any more.
    bool isOver() const { return m_left == 0; }
    /// Ends the batch for good: nothing is closed any more.
    void stop();

    /// Called inside the loop that does not end, when what is open cannot be closed.
    std::function<void()> whenStuck;

    const Reach& reach() const { return m_reach; }
    /// Called before each input, where the messages of all but the last one have been dealt with.
    std::function<void()> beforeInput;
    /// The last two inputs.
    std::string lastInputs() const;
    /// The last inputs, the latest one at the end. Any thread: the watchdog asks while dialogs go on.
    std::string story() const;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void next();
    void step();
    void act(HWND target);
    void close();
    bool cancelsFiles(HWND top) const;
    bool isDear(HWND target) const;
    bool isOpen(std::wstring_view page) const;
    HWND servers() const;
    bool isServerThat(const wchar_t* answer) const;
    void leaveSilentServer();

    // What the user does
    void click(HWND target);
    void drag(HWND target);
    void turnWheel(HWND target);
    void press(HWND target);
    void type(HWND target);
    void pushButton(HWND target);
    void openPage();
    void showPose();
    void resize();
    // What the system and other programs do
    void sendMessage(HWND target);
    void repaint();

    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool oneIn(int count) { return pick(count) == 0; }
    HWND pickWindow();
    CPoint pickPoint(HWND target);
    std::vector<HWND> openWindows() const;
    void note(const wchar_t* action, HWND target);

    GalleryFrame& m_frame;
    std::mt19937 m_random;
    bool m_active = false;
    int m_left = 0;
    std::atomic<int> m_done{0};
    int m_closing = 0;                     ///< attempts since the batch was over
    std::vector<const PageEntry*> m_table; ///< the pages to open
    size_t m_pages = 0;                    ///< that were opened, in the order of the table
    Reach m_reach;
    mutable std::mutex m_storyLock;
    std::deque<std::wstring> m_story;
};
