#include "Performance.h"
#include "GuiThread.h"
#include "Snapshot.h"
#include "Watchdog.h"
#include "detail/Thrown.h"

#include <gtest/gtest.h>

#include <exception>

namespace ovo::testkit
{

namespace
{

constexpr std::chrono::hours kForever{1};
constexpr GuiThread::Limit kGiveUpLimit{5000};

// From which round on a loop that does not end gets more than a request to close.
constexpr int kEscapeRound = 1;
constexpr int kButtonRound = 3;
constexpr int kQuitRound = 8;

bool isShownDialog(HWND window)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return std::wstring_view{name} == L"#32770" && ::IsWindowVisible(window) && ::IsWindowEnabled(window);
}

BOOL CALLBACK close(HWND window, LPARAM)
{
    if (isShownDialog(window))
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    return TRUE;
}

// Some boxes cannot be cancelled, only answered.
BOOL CALLBACK pressAButton(HWND window, LPARAM)
{
    if (const HWND button =
            isShownDialog(window) ? ::FindWindowExW(window, nullptr, L"Button", nullptr) : nullptr)
        ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(button), BN_CLICKED),
                       reinterpret_cast<LPARAM>(button));
    return TRUE;
}

// While a window is moved, the loop waits for the button to go up. Without the capture it would not hear of
// it.
void cancelCapture()
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && info.hwndCapture &&
        !(info.flags & GUI_INMOVESIZE))
        ::PostMessageW(info.hwndCapture, WM_CANCELMODE, 0, 0);
}

void giveUp(int round)
{
    ::EndMenu();
    cancelCapture();
    ::EnumThreadWindows(::GetCurrentThreadId(), close, 0);
    if (round >= kButtonRound)
        ::EnumThreadWindows(::GetCurrentThreadId(), pressAButton, 0);
    if (round == kQuitRound)
        ::PostQuitMessage(0);
}

void attempt(const std::function<void()>& act)
{
    try {
        act();
    } catch (const std::exception&) {
        // The thread with the windows does not answer, or the system takes no input: the rest is tried all
        // the same, and the watchdog ends what is stuck for good.
    }
}

} // namespace

struct Performance::State
{
    std::vector<Step> steps;
    std::atomic<bool> over{false};     // the robot has done all it will do
    std::atomic<bool> cut{false};      // the rest is not wanted any more
    std::atomic<bool> loopFree{false}; // the thread with the windows is back from every nested loop
    std::atomic<bool> gone{false};     // the robot needs no answers any more
    std::string problem;               // read once `over` is set
};

Performance::Performance(std::vector<Step> steps)
    : m_state(std::make_shared<State>())
{
    m_state->steps = std::move(steps);
    m_thread = std::thread{[state = m_state] {
        act(*state);
        state->gone = true;
    }};
}

Performance::~Performance() noexcept(false)
{
    if (!m_thread.joinable())
        return;
    if (std::uncaught_exceptions() == 0) {
        finish();
        return;
    }
    // One exception is on its way already; what else handlers throw meanwhile has no way out.
    m_state->cut = true;
    leave();
}

void Performance::finish()
{
    if (!m_thread.joinable())
        return;
    std::exception_ptr thrown;
    try {
        // Every wait inside a story has a limit of its own, so that this one needs none but the watchdog's.
        GuiThread::runUntil([this] { return m_state->over.load(); }, kForever);
    } catch (...) {
        thrown = std::current_exception();
        m_state->cut = true;
    }
    const std::exception_ptr later = leave();
    if (thrown || later)
        std::rethrow_exception(thrown ? thrown : later);
    GuiThread::settle();
    if (!m_state->problem.empty())
        ADD_FAILURE() << m_state->problem;
}

// Waits for the robot's thread, which may still be asking something. Gives the first exception that handlers
// throw meanwhile.
std::exception_ptr Performance::leave()
{
    std::exception_ptr first;
    m_state->loopFree = true;
    while (!m_state->gone) {
        try {
            GuiThread::runUntil([this] { return m_state->gone.load(); }, kForever);
        } catch (...) {
            if (!first)
                first = std::current_exception();
        }
    }
    m_thread.join();
    return first;
}

void Performance::act(State& state)
{
    Stage stage;
    const char* name = "";
    try {
        for (const Step& step : state.steps) {
            if (state.cut)
                break;
            name = step.name.c_str();
            step.act(stage);
            Watchdog::progress();
        }
    } catch (...) {
        state.problem =
            std::string{"the story stopped at \""} + name + "\": " + thrownText(std::current_exception());
        takeSnapshot(state.problem);
    }
    attempt([&stage] { stage.letGo(); });
    state.over = true;
    if (!state.problem.empty())
        freeTheLoop(state, stage);
}

// A story that stopped leaves its dialog, menu or drag open, and the test in its loop: end them as a user
// would who gives up, so that the other tests still run. Each round insists more than the one before.
void Performance::freeTheLoop(State& state, Stage& stage)
{
    for (int round = 0; !state.loopFree; ++round) {
        attempt([round] { GuiThread::ask([round] { giveUp(round); }, kGiveUpLimit); });
        if (round >= kEscapeRound && !state.loopFree)
            attempt([&stage] { stage.escape(); });
        for (int i = 0; i < 20 && !state.loopFree; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
    }
}

} // namespace ovo::testkit
