#include "Story.h"

#include <exception>
#include <utility>

namespace ovo::testkit
{

Story::Story(std::vector<Step> steps)
    : m_steps(std::move(steps))
{
}

Story::Story(Story&& other) noexcept
    : m_steps(std::exchange(other.m_steps, {}))
{
}

Story::~Story() noexcept(false)
{
    if (m_steps.empty() || std::uncaught_exceptions() > 0)
        return;
    start().finish();
}

Performance Story::start()
{
    return Performance{std::exchange(m_steps, {})};
}

Story Story::add(Step step)
{
    m_steps.push_back(std::move(step));
    return std::move(*this);
}

} // namespace ovo::testkit
