/// The bytes of a fuzz target's input, taken as the values that it needs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

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

    template <class Value>
    Value value()
    {
        Value result{};
        std::uint8_t bytes[sizeof result];
        for (std::uint8_t& byte : bytes)
            byte = next();
        std::memcpy(&result, bytes, sizeof result);
        return result;
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
};
