/// The bytes of a fuzz target's input, taken as the values that it needs.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>

class Bytes
{
public:
    Bytes(const std::uint8_t* data, std::size_t size)
        : m_at(data)
        , m_end(data + size)
    {
    }

    bool left() const { return m_at != m_end; }

    /// 0 when none are left.
    std::uint8_t next() { return left() ? *m_at++ : 0; }

    /// From `low` to `high`.
    int between(int low, int high) { return low + next() % (high - low + 1); }

    template <std::integral Value>
    Value value()
    {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < sizeof(Value); ++i)
            bits = bits << 8 | next();
        return static_cast<Value>(bits);
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
};
