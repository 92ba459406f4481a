#include "Input.h"

#include <atomic>
#include <stdexcept>

namespace ovo::testkit
{

namespace
{

struct ButtonFlags
{
    DWORD down;
    DWORD up;
};

ButtonFlags flagsOf(Button button)
{
    switch (button) {
    case Button::Right:
        return {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP};
    case Button::Middle:
        return {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};
    default:
        return {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
    }
}

INPUT mouse(DWORD flags, DWORD time)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.time = time;
    return input;
}

bool isExtended(WORD virtualKey)
{
    switch (virtualKey) {
    case VK_INSERT:
    case VK_DELETE:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_APPS:
    case VK_LWIN:
    case VK_RWIN:
    case VK_DIVIDE:
    case VK_RCONTROL:
    case VK_RMENU:
        return true;
    default:
        return false;
    }
}

INPUT keyboard(WORD virtualKey, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (isExtended(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0);
    return input;
}

INPUT unicode(wchar_t character, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    return input;
}

bool isTaken(std::vector<INPUT> inputs)
{
    const auto count = static_cast<UINT>(inputs.size());
    return ::SendInput(count, inputs.data(), sizeof inputs[0]) == count;
}

// Input is refused, for example, while the screen is locked. A test that went on would find that nothing has
// happened, which may be just what it expects.
void send(std::vector<INPUT> inputs)
{
    if (!isTaken(std::move(inputs)))
        throw std::runtime_error("the system does not take the input");
}

void send(INPUT input)
{
    send(std::vector{input});
}

// Screen pixels in the 16-bit units of absolute moves; rounded up, so that the system's rounding down gives
// back the same pixel.
LONG absolute(LONG pixel, int size)
{
    return static_cast<LONG>((static_cast<long long>(pixel) * 65536 + size - 1) / size);
}

} // namespace

Input::~Input()
{
    releaseAll();
}

// Presses carry times of their own, further apart than a double click: two clicks at one place are a double
// click only where the script says so, and no script has to wait.
DWORD Input::nextTime()
{
    static std::atomic<DWORD> last{0};
    const DWORD apart = ::GetDoubleClickTime() + 100;
    const DWORD now = std::max<DWORD>(::GetTickCount(), last.load() + apart);
    last = now;
    return now;
}

void Input::moveTo(POINT point)
{
    m_point = point;
    send(atThePoint(mouse(0, 0)));
}

// The same place once more changes nothing, unless a late report of the display has taken the pointer
// elsewhere.
INPUT Input::atThePoint(INPUT input) const
{
    if (!m_point)
        return input;
    input.mi.dwFlags |= MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = absolute(m_point->x, ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = absolute(m_point->y, ::GetSystemMetrics(SM_CYSCREEN));
    return input;
}

void Input::press(Button button)
{
    m_buttons.push_back(button);
    send(atThePoint(mouse(flagsOf(button).down, nextTime())));
}

void Input::release(Button button)
{
    std::erase(m_buttons, button);
    send(atThePoint(mouse(flagsOf(button).up, 0)));
}

void Input::click(Button button)
{
    const auto [down, up] = flagsOf(button);
    send({atThePoint(mouse(down, nextTime())), atThePoint(mouse(up, 0))});
}

void Input::doubleClick(Button button)
{
    const DWORD time = nextTime();
    const auto [down, up] = flagsOf(button);
    const INPUT press = atThePoint(mouse(down, time));
    const INPUT release = atThePoint(mouse(up, time));
    send({press, release, press, release});
}

void Input::turnWheel(int notches)
{
    INPUT input = mouse(MOUSEEVENTF_WHEEL, 0);
    input.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
    send(input);
}

void Input::keyDown(WORD virtualKey)
{
    m_keys.push_back(virtualKey);
    send(keyboard(virtualKey, 0));
}

void Input::keyUp(WORD virtualKey)
{
    std::erase(m_keys, virtualKey);
    send(keyboard(virtualKey, KEYEVENTF_KEYUP));
}

void Input::chord(const std::vector<WORD>& held, WORD virtualKey)
{
    std::vector<INPUT> inputs;
    for (const WORD each : held)
        inputs.push_back(keyboard(each, 0));
    inputs.push_back(keyboard(virtualKey, 0));
    inputs.push_back(keyboard(virtualKey, KEYEVENTF_KEYUP));
    for (auto each = held.rbegin(); each != held.rend(); ++each)
        inputs.push_back(keyboard(*each, KEYEVENTF_KEYUP));
    send(std::move(inputs));
}

void Input::holdAgain(WORD virtualKey)
{
    send(keyboard(virtualKey, 0));
}

void Input::character(wchar_t character)
{
    const SHORT key = ::VkKeyScanW(character);
    const int modifiers = HIBYTE(key);
    if (key == -1 || (modifiers & ~1)) {
        send({unicode(character, 0), unicode(character, KEYEVENTF_KEYUP)});
        return;
    }
    chord(modifiers & 1 ? std::vector<WORD>{VK_SHIFT} : std::vector<WORD>{}, LOBYTE(key));
}

void Input::releaseAll()
{
    for (; !m_buttons.empty(); m_buttons.pop_back())
        isTaken({atThePoint(mouse(flagsOf(m_buttons.back()).up, 0))});
    for (; !m_keys.empty(); m_keys.pop_back())
        isTaken({keyboard(m_keys.back(), KEYEVENTF_KEYUP)});
}

} // namespace ovo::testkit
