/// Not exported: memory of the system, as the clipboard and drags take it.
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>

namespace ovoui::frame
{

struct FreeGlobal
{
    void operator()(void* memory) const { ::GlobalFree(memory); }
};

/// Owned by us until it is released to the system.
using GlobalMemory = std::unique_ptr<void, FreeGlobal>;

/// Movable memory with a copy of `size` bytes; null when there is none.
GlobalMemory globalCopy(const void* bytes, std::size_t size);

} // namespace ovoui::frame
