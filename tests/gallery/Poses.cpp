#include "Poses.h"

#include <testkit/GuiThread.h>
#include <testkit/Watchdog.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace ovo::testkit;

namespace
{

/// Looks at each modal dialog that opens while it lives, and cancels it.
class DialogWatch
{
public:
    explicit DialogWatch(const Look& look)
        : m_look(look)
    {
        s_watch = this;
        m_timer = ::SetTimer(nullptr, 0, kEvery, &onTimer);
    }
    ~DialogWatch()
    {
        ::KillTimer(nullptr, m_timer);
        s_watch = nullptr;
    }
    DialogWatch(const DialogWatch&) = delete;
    DialogWatch& operator=(const DialogWatch&) = delete;

    const Problems& problems() const { return m_problems; }
    std::size_t dialogs() const { return m_seen.size(); }

private:
    static constexpr UINT kEvery = 20; // milliseconds

    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND dialog = shownDialog();
        if (dialog && !s_watch->m_looking)
            s_watch->lookAt(dialog);
    }

    void lookAt(HWND dialog)
    {
        m_looking = true; // a look may run the message loop
        if (m_seen.insert(dialog).second)
            std::ranges::copy(m_look(dialog), std::back_inserter(m_problems));
        m_looking = false;
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }

    static DialogWatch* s_watch;
    const Look& m_look;
    UINT_PTR m_timer;
    bool m_looking = false;
    std::set<HWND> m_seen;
    Problems m_problems;
};

DialogWatch* DialogWatch::s_watch = nullptr;

} // namespace

PosesSeen lookAtPoses(GalleryScene& scene, const Look& look, const Wanted& wanted)
{
    PosesSeen seen;
    CRect place;
    scene.frame().GetWindowRect(&place);
    for (const PageEntry& entry : pageTable()) {
        if (std::wstring(entry.name) == L"files") // dialogs of the system
            continue;
        scene.frame().openPage(entry);
        const std::vector<std::wstring> poses = scene.page().poses();
        for (const std::wstring& pose : poses) {
            const std::wstring name = std::wstring(entry.name) + L"/" + pose;
            if (!wanted(name))
                continue;
            Watchdog::progress();
            scene.frame().MoveWindow(&place); // a pose before may have moved it to the edge of the screen
            scene.frame().openPage(entry);
            const DialogWatch watch(look);
            EXPECT_TRUE(scene.page().pose(pose)) << ::testing::PrintToString(name);
            GuiThread::settleOnScreen(); // the pose may have opened a window
            for (const Problems& problems : {look(scene.frame()), watch.problems()})
                for (const std::wstring& problem : problems)
                    seen.problems.push_back(name + L": " + problem);
            seen.dialogs += watch.dialogs();
        }
    }
    return seen;
}
