// Functions that a compiler has divided.
#include <mfc/src/wnd/core/functionparts.h>

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using namespace afxdetail;

namespace
{

constexpr unsigned kVersion = 1;
constexpr unsigned kHasHandler = 1 << 3;
constexpr unsigned kChained = 4 << 3;

/// The unwind information of a module.
class Module
{
public:
    /// Adds what describes a function with this many codes; gives where it is.
    std::uint32_t add(unsigned flags, std::size_t codes)
    {
        const auto place = static_cast<std::uint32_t>(m_bytes.size());
        const std::byte head[]{std::byte(kVersion | flags), std::byte{7}, std::byte(codes), std::byte{0}};
        m_bytes.insert(m_bytes.end(), std::begin(head), std::end(head));
        m_bytes.insert(m_bytes.end(), (codes + codes % 2) * 2, std::byte{0xEE});
        return place;
    }
    /// The same for a part that leads to another one.
    std::uint32_t addChained(std::size_t codes, FunctionPart to)
    {
        const std::uint32_t place = add(kChained, codes);
        const auto* const bytes = reinterpret_cast<const std::byte*>(&to);
        m_bytes.insert(m_bytes.end(), bytes, bytes + sizeof to);
        return place;
    }

    std::uint32_t beginning(FunctionPart part) const { return beginningOfFunction(m_bytes.data(), part); }

private:
    std::vector<std::byte> m_bytes{16};
};

} // namespace

TEST(FunctionParts, AWholeFunctionBeginsWhereItsEntrySays)
{
    Module module;
    EXPECT_EQ(module.beginning({0x1000, 0x1040, module.add(0, 3)}), 0x1000u);
    EXPECT_EQ(module.beginning({0x2000, 0x2040, module.add(kHasHandler, 0)}), 0x2000u);
}

TEST(FunctionParts, AFurtherPartLeadsToTheFirst)
{
    for (const std::size_t codes : {0u, 1u, 2u, 5u, 200u}) {
        Module module;
        const FunctionPart first{0x1000, 0x1040, module.add(kHasHandler, 4)};
        const FunctionPart second{0x1040, 0x1080, module.addChained(codes, first)};
        const FunctionPart third{0x9000, 0x9010, module.addChained(codes, second)};
        EXPECT_EQ(module.beginning(second), 0x1000u) << codes;
        EXPECT_EQ(module.beginning(third), 0x1000u) << codes;
    }
}
