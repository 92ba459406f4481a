#include "functionparts.h"

#include <cstring>

namespace afxdetail
{
namespace
{

// What the unwind information begins with: version and flags, the size of the prologue, the number of codes,
// the frame register. The codes have two bytes each, and are padded to an even number.
constexpr std::size_t kHead = 4;
constexpr std::size_t kCode = 2;
constexpr unsigned kFlagsShift = 3;
constexpr unsigned kChained = 4;

} // namespace

std::uint32_t beginningOfFunction(const std::byte* module, FunctionPart part)
{
    for (;;) {
        const std::byte* const info = module + part.unwind;
        if (!((std::to_integer<unsigned>(info[0]) >> kFlagsShift) & kChained))
            return part.begin;
        const std::size_t codes = (std::to_integer<std::size_t>(info[2]) + 1) / 2 * 2;
        std::memcpy(&part, info + kHead + codes * kCode, sizeof part);
    }
}

} // namespace afxdetail
