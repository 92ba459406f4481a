// Internal: the parts of functions, as the unwind tables of x86-64 describe them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace afxdetail
{

/// One entry of a module's table of functions. Addresses are relative to the module.
struct FunctionPart
{
    std::uint32_t begin;
    std::uint32_t end;
    std::uint32_t unwind;
};

/// The beginning of the function that a part belongs to. Compilers divide functions and put what is seldom
/// used elsewhere: each part has an entry, and that of a further part leads to an earlier one.
std::uint32_t beginningOfFunction(const std::byte* module, FunctionPart part);

} // namespace afxdetail
