// COVOProgressBox: how far work has come, and its being cancelled.
#include "MessageBoxScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/ImportPatch.h>
#include <testkit/MemoryCounter.h>
#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

#include <ovocor/WinError.h>
#include <ovoui/frame/ProgressBox.h>
#include <ovoui/frame/ProgressBoxDlg.h>
#include <ovoui/frame/MessageBoxIds.h>
#include <ovouires/resource.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

using namespace ovo::testkit;
using namespace ovoui::frame;

namespace
{

HWND bar()
{
    return ::GetDlgItem(openBox(), kProgressId);
}

LRESULT position()
{
    return ::SendMessageW(bar(), PBM_GETPOS, 0, 0);
}

bool runsWithoutEnd()
{
    return (::GetWindowLongPtrW(bar(), GWL_STYLE) & PBS_MARQUEE) != 0;
}

HWND cancelButton()
{
    return ::GetDlgItem(openBox(), IDCANCEL);
}

class Owner : public CWnd
{
public:
    Owner()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                 nullptr);
    }
    ~Owner() override { DestroyWindow(); }
};

/// Takes down what the bar is told of its position and of running without an end.
class BarLog
{
public:
    using Told = std::pair<UINT, WPARAM>;

    BarLog()
        : m_hook(::SetWindowsHookExW(WH_CALLWNDPROC, &onMessage, nullptr, ::GetCurrentThreadId()))
    {
        s_told.clear();
    }
    ~BarLog() { ::UnhookWindowsHookEx(m_hook); }
    BarLog(const BarLog&) = delete;
    BarLog& operator=(const BarLog&) = delete;

    const std::vector<Told>& told() const { return s_told; }

private:
    static LRESULT CALLBACK onMessage(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        const bool tells = message.message == PBM_SETPOS || message.message == PBM_SETMARQUEE;
        if (tells && message.hwnd == bar())
            s_told.emplace_back(message.message, message.wParam);
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    const HHOOK m_hook;
    inline static std::vector<Told> s_told;
};

/// Takes the place of CreateDialogIndirectParamW: the dialog does not outlive its initialisation.
HWND WINAPI endAtOnce(HINSTANCE instance, LPCDLGTEMPLATEW shape, HWND owner, DLGPROC procedure,
                      LPARAM parameter)
{
    ::DestroyWindow(::CreateDialogIndirectParamW(instance, shape, owner, procedure, parameter));
    return nullptr;
}

void workUntilCancelled(COVOProgressBox& progress)
{
    while (progress.Advance(1, 2))
        ::Sleep(1);
}

} // namespace

TEST(ProgressBox, DisablesItsOwnerAsLongAsItLives)
{
    Owner owner;
    {
        const COVOProgressBox progress(owner, L"Working", L"Box");
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_TRUE(openBox());
        EXPECT_EQ(::GetWindow(openBox(), GW_OWNER), owner.m_hWnd);
    }
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(openBox(), nullptr);
}

/// The system looks for another active window before the box hears of its end; the owner must be enabled by
/// then.
TEST(ProgressBox, ItsOwnerIsActiveAgainAfterwards)
{
    Owner other;
    present(other);
    Owner owner;
    present(owner);
    {
        const COVOProgressBox progress(owner, L"Working", L"Box");
        EXPECT_EQ(::GetActiveWindow(), openBox());
    }
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(ProgressBox, ABoxThatCannotBeCreatedLeavesOwnerAndWorkAlone)
{
    const auto work = [](Owner& owner) {
        COVOProgressBox progress(owner, L"Working", L"Box");
        EXPECT_EQ(openBox(), nullptr);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_FALSE(progress.IsCancelled());
        EXPECT_TRUE(progress.Advance(1, 2));
        EXPECT_TRUE(progress.Advance(1, 0));
        progress.SetText(L"Nowhere");
        EXPECT_FALSE(progress.IsCancelled());
    };
    Owner owner;
    {
        const ImportPatch patch{L"ovomfc.dll", "FindResourceW", reinterpret_cast<void*>(&noDialogs)};
        work(owner);
    }
    const ImportPatch patch{L"ovomfc.dll", "CreateDialogIndirectParamW", reinterpret_cast<void*>(&endAtOnce)};
    work(owner);
}

/// As the work asks the user something on its way.
TEST(ProgressBox, AMessageBoxOfItsOwnerLeavesThatDisabled)
{
    Owner owner;
    present(owner);
    const COVOProgressBox progress(owner, L"Working", L"Box");
    const HWND box = openBox();
    auto answering = Robot()
                         .waitFor("the message box", [box] { return openBox() && openBox() != box; })
                         .key(VK_RETURN)
                         .start();
    EXPECT_EQ(show({.owner = owner}), IDOK);
    answering.finish();
    EXPECT_FALSE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), box);
}

TEST(ProgressBox, LeavesAnOwnerDisabledThatWasDisabled)
{
    Owner owner;
    owner.EnableWindow(FALSE);
    {
        const COVOProgressBox progress(owner, L"Working");
    }
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(ProgressBox, OfAChildDisablesTheWindowThatItIsIn)
{
    Owner owner;
    CStatic child;
    child.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 50), &owner);
    {
        const COVOProgressBox progress(child, L"Working", L"Box");
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_EQ(::GetWindow(openBox(), GW_OWNER), owner.m_hWnd);
    }
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_TRUE(child.IsWindowEnabled());
}

TEST(ProgressBox, ShowsTheShareThatIsDone)
{
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    const struct
    {
        ULONGLONG done;
        ULONGLONG total;
        LRESULT shown;
    } cases[] = {{0, 4, 0}, {1, 4, 250}, {4, 4, 1000}, {9, 4, 1000}, {1, ~0ULL, 0}, {1ULL << 63, ~0ULL, 500}};
    for (const auto& each : cases) {
        EXPECT_TRUE(progress.Advance(each.done, each.total));
        EXPECT_EQ(position(), each.shown) << each.done << " of " << each.total;
    }
}

TEST(ProgressBox, IsPaintedBeforeTheWorkBegins)
{
    const COVOProgressBox progress(nullptr, L"Working", L"Box");
    for (const HWND window : {openBox(), bar(), cancelButton()})
        EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE)) << ::GetDlgCtrlID(window);
}

TEST(ProgressBox, OfUnknownLengthRunsWithoutAnEnd)
{
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    EXPECT_TRUE(progress.Advance(1, 0));
    EXPECT_TRUE(runsWithoutEnd());
    EXPECT_TRUE(progress.Advance(1, 2));
    EXPECT_FALSE(runsWithoutEnd());
    EXPECT_EQ(position(), 500);
}

TEST(ProgressBox, TellsItsBarOnlyWhatChanges)
{
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    const BarLog log;
    const std::pair<ULONGLONG, ULONGLONG> steps[] = {{1, 4}, {1, 4}, {1, 0}, {2, 0}, {2, 4}, {2, 4}};
    for (const auto& [done, total] : steps)
        progress.Advance(done, total);
    EXPECT_EQ(log.told(),
              (std::vector<BarLog::Told>{
                  {PBM_SETPOS, 250}, {PBM_SETMARQUEE, TRUE}, {PBM_SETMARQUEE, FALSE}, {PBM_SETPOS, 500}}));
}

TEST(ProgressBox, LiesBetweenTextAndButton)
{
    const COVOProgressBox progress(nullptr, L"Working", L"Box");
    EXPECT_EQ(windowText(iconControl(openBox())), L"INFO");
    const CRect text = placeInParent(textControl(openBox()));
    const CRect place = placeInParent(bar());
    const CRect button = placeInParent(cancelButton());
    CRect client;
    ::GetClientRect(openBox(), &client);
    EXPECT_LE(text.bottom, place.top);
    EXPECT_LE(place.bottom, button.top);
    EXPECT_LE(button.bottom, client.bottom);
    EXPECT_LE(place.right, client.right);
    EXPECT_FALSE(place.IsRectEmpty());
}

TEST(ProgressBox, HasTheCaptionOfTheHostOrTheDefaultOne)
{
    {
        const COVOProgressBox progress(nullptr, L"Working", L"Own");
        EXPECT_EQ(windowText(openBox()), L"Own");
    }
    const COVOProgressBox progress(nullptr, L"Working");
    EXPECT_EQ(windowText(openBox()), libraryString(IDS_MESSAGE_CAPTION));
}

TEST(ProgressBox, IsCancelledByButtonKeysAndCloseBox)
{
    const auto cancelled = [](Story story) {
        COVOProgressBox progress(nullptr, L"Working", L"Box");
        auto cancelling = std::move(story).start();
        workUntilCancelled(progress);
        EXPECT_TRUE(progress.IsCancelled());
        EXPECT_TRUE(openBox()); // until the work has stopped
        EXPECT_FALSE(::IsWindowEnabled(cancelButton()));
        EXPECT_FALSE(progress.Advance(2, 2));
    };
    cancelled(whenOpen().click(&cancelButton));
    cancelled(whenOpen().key(VK_ESCAPE));
    cancelled(whenOpen().key(VK_RETURN)); // the only button
    cancelled(whenOpen().then([] { ::PostMessageW(openBox(), WM_CLOSE, 0, 0); }));
}

TEST(ProgressBox, TellsAnotherText)
{
    COVOProgressBox progress(nullptr, L"Working on the first", L"Box");
    progress.SetText(L"Second");
    EXPECT_EQ(windowText(textControl(openBox())), L"Second");
    progress.SetText(L"Third\nof all");
    EXPECT_EQ(windowText(textControl(openBox())), L"Third\r\nof all") << "with the line ends of the control";
}

/// What the dialog manager sends for Enter where no button is the default one.
TEST(ProgressBox, EnterWithoutAButtonAnswersNothing)
{
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    const HWND box = openBox();
    ASSERT_NE(box, nullptr);
    ::SendMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(openBox(), box);
    EXPECT_TRUE(progress.Advance(1, 2));
}

TEST(ProgressBox, HasNoHelpPage)
{
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    HELPINFO asked{};
    asked.cbSize = sizeof asked;
    asked.iContextType = HELPINFO_WINDOW;
    asked.hItemHandle = cancelButton();
    ::SendMessageW(openBox(), WM_HELP, 0, reinterpret_cast<LPARAM>(&asked));
    EXPECT_TRUE(TestApp::instance().helps().empty());
}

TEST(ProgressBox, AnOwnerDestroyedMeanwhileCancels)
{
    auto owner = std::make_unique<Owner>();
    COVOProgressBox progress(*owner, L"Working", L"Box");
    EXPECT_TRUE(progress.Advance(1, 2));
    owner.reset();
    EXPECT_TRUE(progress.IsCancelled()) << "at once";
    EXPECT_FALSE(progress.Advance(1, 2));
    progress.SetText(L"Nowhere");
}

/// Hangs where the work waits for a queue without messages.
TEST(ProgressBox, TheWorkGoesOnBesideAWindowThatKeepsSendingItselfMessages)
{
    class Restless : public CStatic
    {
    public:
        int heard = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_APP)
                return CStatic::WindowProc(message, wParam, lParam);
            ++heard;
            PostMessage(WM_APP);
            return 0;
        }
    };
    Owner owner;
    Restless restless;
    restless.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &owner);
    restless.PostMessage(WM_APP);
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    EXPECT_TRUE(progress.Advance(1, 2));
    EXPECT_GT(restless.heard, 0);
    restless.DestroyWindow();
}

TEST(ProgressBox, MayBeDeletedByAMessageThatItLetsThrough)
{
    static COVOProgressBox* s_progress;
    s_progress = new COVOProgressBox(nullptr, L"Working", L"Box");
    ::SetTimer(openBox(), 1, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR, DWORD) {
        delete s_progress;
        s_progress = nullptr;
    });
    while (s_progress && s_progress->Advance(1, 2))
        ::Sleep(1);
    EXPECT_EQ(s_progress, nullptr);
    EXPECT_EQ(openBox(), nullptr);
}

/// Such a message arrives while the box looks for messages, and not by one of them. Memory of the box's size
/// is taken in its place, so that what the box still reads and writes there is seen.
TEST(ProgressBox, MayBeDeletedByAMessageThatAnotherThreadSends)
{
    static COVOProgressBox* s_progress;
    static std::vector<std::vector<char>> s_inItsPlace;
    class Host : public Owner
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_APP)
                return Owner::WindowProc(message, wParam, lParam);
            delete std::exchange(s_progress, nullptr);
            for (int i = 0; i < 1000; ++i)
                s_inItsPlace.emplace_back(sizeof(COVOProgressBoxDlg));
            return 0;
        }
    };
    Host host;
    s_inItsPlace.reserve(1000);
    s_progress = new COVOProgressBox(nullptr, L"Working", L"Box");
    GuiThread::settle();
    std::thread sender([wnd = host.m_hWnd] { ::SendMessageW(wnd, WM_APP, 0, 0); });
    while (HIWORD(::GetQueueStatus(QS_SENDMESSAGE)) == 0)
        ::Sleep(1);
    bool goesOn = true;
    while (s_progress && goesOn)
        goesOn = s_progress->Advance(1, 2);
    sender.join();
    EXPECT_EQ(s_progress, nullptr);
    EXPECT_FALSE(goesOn) << "a box that is gone must not be asked any more";
    const auto isUntouched = [](const std::vector<char>& memory) {
        return std::ranges::count(memory, char{0}) == static_cast<std::ptrdiff_t>(memory.size());
    };
    EXPECT_TRUE(std::ranges::all_of(s_inItsPlace, isUntouched));
    s_inItsPlace.clear();
}

TEST(ProgressBox, WhatItsOwnerRaisesAsTheBoxGoesWaitsForTheMessageLoop)
{
    class Raising : public Owner
    {
    public:
        bool raises = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE && std::exchange(raises, false))
                throw std::runtime_error("active again");
            return Owner::WindowProc(message, wParam, lParam);
        }
    };
    Raising owner;
    present(owner);
    {
        const COVOProgressBox progress(owner, L"Working", L"Box");
        owner.raises = true;
    }
    EXPECT_EQ(openBox(), nullptr);
    EXPECT_TRUE(owner.IsWindowEnabled());
    owner.PostMessage(WM_NULL); // the loop has something to do
    EXPECT_THROW(AfxPumpMessage(), std::runtime_error);
}

TEST(ProgressBox, TheEndOfTheProgramIsNotLost)
{
    COVOProgressBox progress(nullptr, L"Working", L"Box");
    ::PostQuitMessage(7);
    workUntilCancelled(progress);
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

TEST(ProgressBox, LeavesNothingBehind)
{
    const auto once = [] {
        COVOProgressBox progress(nullptr, L"Working", L"Box");
        progress.Advance(1, 2);
        progress.Advance(1, 0);
    };
    once();
    const WindowCounter windows;
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i)
        once();
    EXPECT_EQ(windows.grown(), 0);
    EXPECT_LE(gdi.grown(), 2);
}

TEST(ProgressBox, AFontThatCannotBeMeasuredThrowsAndLeavesNothingBehind)
{
    constexpr int kRounds = 30;
    constexpr int kMostLeft = 8 * 1024; // bytes a round, much less than the text
    const std::wstring text(20'000, L'x');
    Owner owner;
    const auto fail = [&] { const COVOProgressBox progress(owner, text, L"Box"); };
    {
        const ImportPatch patch{L"ovomfc.dll", "GetTextMetricsW", reinterpret_cast<void*>(&noTextMetrics)};
        EXPECT_THROW(fail(), WinError);
        const MemoryCounter memory;
        const WindowCounter windows;
        for (int i = 0; i < kRounds; ++i)
            EXPECT_THROW(fail(), WinError);
        EXPECT_EQ(windows.grown(), 0);
        EXPECT_LT(memory.grown(), kRounds * kMostLeft);
    }
    EXPECT_TRUE(owner.IsWindowEnabled());
    COVOProgressBox progress(owner, L"Working", L"Box");
    EXPECT_TRUE(openBox()) << "the next box works";
}
