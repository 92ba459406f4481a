#include <ovocor/EventList.h>

EVSlot::~EVSlot() = default;

void EVSlot::cancel() noexcept
{
    if (!m_active)
        return;
    m_active = false;
    // A function must not be destroyed while it runs: its last call destroys it when it returns.
    if (m_runningCalls == 0)
        dropFunction();
}

EVSlot::Call::Call(EVSlot& slot) noexcept
    : m_slot(slot)
{
    ++m_slot.m_runningCalls;
}

EVSlot::Call::~Call()
{
    if (--m_slot.m_runningCalls == 0 && !m_slot.m_active)
        m_slot.dropFunction();
}

EVSubscription::EVSubscription() noexcept = default;

EVSubscription::EVSubscription(std::shared_ptr<EVSlot> slot) noexcept
    : m_slot(std::move(slot))
{
}

EVSubscription::EVSubscription(EVSubscription&& other) noexcept = default;

EVSubscription& EVSubscription::operator=(EVSubscription&& other) noexcept
{
    if (this != &other) {
        unsubscribe();
        m_slot = std::move(other.m_slot);
    }
    return *this;
}

EVSubscription::~EVSubscription()
{
    unsubscribe();
}

void EVSubscription::unsubscribe() noexcept
{
    // Emptied first: what the function holds may own this object.
    if (const std::shared_ptr<EVSlot> slot = std::exchange(m_slot, nullptr))
        slot->cancel();
}

EVSubscription::operator bool() const noexcept
{
    return m_slot && m_slot->active();
}
