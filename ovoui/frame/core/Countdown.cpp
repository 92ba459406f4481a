#include <ovoui/frame/core/Countdown.h>

#include <algorithm>
#include <iterator>

namespace ovoui::frame
{
namespace
{

constexpr std::uint64_t kSecond = 1000;

// The platform's messages: keys, mouse buttons in the box and on its frame, the wheel
constexpr unsigned kInput[] = {0x0100, 0x0104, 0x0201, 0x0204, 0x0207, 0x00A1, 0x020A};

} // namespace

Countdown::Countdown(unsigned seconds, std::uint64_t now)
    : m_running(true)
    , m_end(now + seconds * kSecond)
{
}

unsigned Countdown::left(std::uint64_t now) const
{
    return m_running && now < m_end ? static_cast<unsigned>((m_end - now + kSecond - 1) / kSecond) : 0;
}

bool Countdown::isOver(std::uint64_t now)
{
    if (!m_running || now < m_end)
        return false;
    m_running = false;
    return true;
}

CountTick Countdown::tick(std::uint64_t now)
{
    if (isOver(now))
        return CountTick::Press;
    return m_running ? CountTick::Show : CountTick::Nothing;
}

bool endsCountdown(unsigned message)
{
    return std::ranges::find(kInput, message) != std::end(kInput);
}

std::wstring countedLabel(const std::wstring& label, unsigned left)
{
    return label + L" (" + std::to_wstring(left) + L")";
}

} // namespace ovoui::frame
