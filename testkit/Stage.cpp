#include "Stage.h"
#include "GuiThread.h"
#include "detail/Display.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <thread>
#include <utility>

namespace ovo::testkit
{

namespace
{

constexpr int kGlideStep = 6; // pixels; more than a drag needs to begin takes a few of them
constexpr int kGlideStepsMost = 12;
constexpr Stage::Limit kInputLimit{30000};
constexpr Stage::Limit kMoveAgain{250};
constexpr Stage::Limit kPressAgain{3000};
constexpr int kChordAttempts = 10;

CPoint pointer()
{
    CPoint point;
    ::GetCursorPos(&point);
    return point;
}

CPoint onScreen(CPoint point)
{
    return {std::clamp<LONG>(point.x, 0, ::GetSystemMetrics(SM_CXSCREEN) - 1),
            std::clamp<LONG>(point.y, 0, ::GetSystemMetrics(SM_CYSCREEN) - 1)};
}

} // namespace

bool Stage::holdsWithin(const std::function<bool()>& condition, Limit limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    bool holds = false;
    for (;;) {
        GuiThread::ask([&] { holds = condition(); });
        if (holds)
            return true;
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
    }
}

void Stage::waitFor(const std::string& what, const std::function<bool()>& condition, Limit limit)
{
    if (!holdsWithin(condition, limit))
        throw std::runtime_error("waited in vain for " + what);
}

void Stage::chordUntil(const std::string& what, WORD held, WORD virtualKey,
                       const std::function<bool()>& condition)
{
    for (int attempt = 0; attempt < kChordAttempts; ++attempt) {
        keyDown(held);
        keyDown(virtualKey);
        keyUp(virtualKey);
        keyUp(held);
        if (holdsWithin(condition, kPressAgain))
            return;
    }
    throw std::runtime_error("waited in vain for " + what);
}

// Input counts as taken when the thread with the windows looks for messages and none of it is left in its
// queue: whatever it set off, up to a nested loop, has then happened.
void Stage::awaitInputTaken()
{
    waitFor(
        "the input to be taken", [] { return HIWORD(::GetQueueStatus(QS_INPUT)) == 0; }, kInputLimit);
}

// On a busy machine the display may report the move before only after this one, and the system then takes the
// pointer back to it.
void Stage::jumpTo(CPoint point)
{
    const auto end = std::chrono::steady_clock::now() + kInputLimit;
    do {
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error("waited in vain for the pointer to move");
        m_input.moveTo(point);
    } while (!holdsWithin([point] { return pointer() == point; }, kMoveAgain));
    awaitInputTaken();
    keepHeldKeysDown();
}

// Under Wine the pointer's move comes back from the X server together with its own view of the keyboard, on
// which nothing is held; Wine then lets go of the modifiers. Wait for that, and hold them again.
void Stage::keepHeldKeysDown()
{
    const std::vector<WORD> held = m_input.heldKeys();
    if (held.empty())
        return;
    awaitDisplay();
    awaitInputTaken();
    std::vector<WORD> lost;
    GuiThread::ask([&] {
        std::ranges::copy_if(held, std::back_inserter(lost),
                             [](WORD key) { return ::GetAsyncKeyState(key) >= 0; });
    });
    for (const WORD key : lost)
        m_input.holdAgain(key);
    awaitInputTaken();
}

void Stage::glideTo(const Spot& spot)
{
    CPoint target;
    GuiThread::ask([&] { target = onScreen(spot.find()); });
    const CPoint start = pointer();
    const CSize way = target - start;
    const int longest = static_cast<int>(std::max(std::labs(way.cx), std::labs(way.cy)));
    const int steps = std::clamp(longest / kGlideStep, 1, kGlideStepsMost);
    for (int step = 1; step < steps; ++step)
        jumpTo({start.x + way.cx * step / steps, start.y + way.cy * step / steps});
    jumpTo(target);
}

void Stage::glideBy(CSize distance)
{
    glideTo(Spot{pointer() + distance});
}

template <class... Parameters>
void Stage::send(void (Input::*act)(Parameters...), std::type_identity_t<Parameters>... what)
{
    (m_input.*act)(what...);
    awaitInputTaken();
}

// Under Wine the display tells a window that has come to the front so in its own time, and Wine then cancels
// what the mouse is about.
void Stage::catchUpInNewFront()
{
    const HWND front = ::GetForegroundWindow();
    if (std::exchange(m_front, front) != front)
        GuiThread::catchUp();
}

void Stage::press(Button button)
{
    catchUpInNewFront();
    send(&Input::press, button);
}

void Stage::release(Button button)
{
    send(&Input::release, button);
}

void Stage::doubleClick(Button button)
{
    catchUpInNewFront();
    send(&Input::doubleClick, button);
}

void Stage::turnWheel(int notches)
{
    send(&Input::turnWheel, notches);
}

void Stage::keyDown(WORD virtualKey)
{
    send(&Input::keyDown, virtualKey);
}

void Stage::keyUp(WORD virtualKey)
{
    send(&Input::keyUp, virtualKey);
}

void Stage::type(const std::wstring& text)
{
    for (const wchar_t character : text)
        send(&Input::character, character);
}

void Stage::letGo()
{
    send(&Input::releaseAll);
}

void Stage::escape()
{
    m_input.keyDown(VK_ESCAPE);
    m_input.keyUp(VK_ESCAPE);
}

} // namespace ovo::testkit
