#include <ovocor/Handle.h>

#include <limits>

namespace OVO
{

IHandlable::~IHandlable() = default;

Handlable::~Handlable() = default;

void Handlable::addRef() const noexcept
{
    ++m_references;
}

void Handlable::release() const noexcept
{
    if (--m_references > 0)
        return;
    // Far from 0, so that handles made by the destructor do not bring the count there again.
    m_references = std::numeric_limits<int>::max() / 2;
    delete this;
}

} // namespace OVO
