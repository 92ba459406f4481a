#include <ovoui/frame/core/Countdown.h>

#include <ovoui/frame/core/MessageNumbers.h>

#include <algorithm>
#include <iterator>

namespace ovoui::frame
{
namespace
{

constexpr std::uint64_t kSecond = 1000;

constexpr unsigned kInput[] = {
    messages::kKeyDown,         messages::kSystemKeyDown,   messages::kPressLeft,
    messages::kPressRight,      messages::kPressMiddle,     messages::kPressOther,
    messages::kFramePressLeft,  messages::kFramePressRight, messages::kFramePressMiddle,
    messages::kFramePressOther, messages::kWheel,           messages::kSidewaysWheel};

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
