#pragma once

namespace ovo::testkit
{

/// How a count has grown since this object was made. `Counter` derives from it and says with `live` how many
/// there are now.
template <class Counter, class Number = int>
class Growth
{
public:
    /// How many more there are than when this object was made; negative for fewer.
    Number grown() const { return static_cast<Number>(Counter::live()) - m_start; }

protected:
    /// Counts what there is now.
    Growth()
        : m_start(static_cast<Number>(Counter::live()))
    {
    }

private:
    Number m_start;
};

} // namespace ovo::testkit
