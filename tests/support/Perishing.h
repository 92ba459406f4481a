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
        std::fill_n(static_cast<std::byte*>(memory), size, std::byte{0xDD});
    }

private:
    inline static std::vector<std::unique_ptr<std::byte[]>> s_memory;
};
