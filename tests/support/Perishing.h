/// For tests in which a host deletes a control while the control calls it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

/// An object whose memory is filled with nonsense when it is deleted, and given back only at the end of the
/// program: who uses the object afterwards does not get away with it.
template <class Base>
class Perishing : public Base
{
public:
    using Base::Base;

    static void* operator new(std::size_t size)
    {
        s_memory.push_back(std::make_unique<std::byte[]>(size));
        return s_memory.back().get();
    }
    static void operator delete(void* memory, std::size_t size)
    {
        std::fill_n(static_cast<std::byte*>(memory), size, kNonsense);
    }

    /// Whether nothing has been written to an object since it was deleted.
    static bool isUntouched(const void* deleted)
    {
        const auto* const memory = static_cast<const std::byte*>(deleted);
        return std::all_of(memory, memory + sizeof(Perishing),
                           [](std::byte byte) { return byte == kNonsense; });
    }

private:
    static constexpr std::byte kNonsense{0xDD};

    inline static std::vector<std::unique_ptr<std::byte[]>> s_memory;
};
