#include <ovoui/sysinfo/core/MachineText.h>

#include <gtest/gtest.h>

using namespace ovoui::sysinfo;

TEST(MachineText, NamesTheSystem)
{
    EXPECT_EQ(systemText(10, 0, 19045, ""), L"Windows 10.0, build 19045");
    EXPECT_EQ(systemText(6, 1, 7601, "8.0"), L"Wine 8.0 as Windows 6.1, build 7601");
}

TEST(MachineText, MemoryIsInTheUnitThatSuits)
{
    constexpr std::uint64_t kMega = 1024 * 1024;
    const struct
    {
        std::uint64_t bytes;
        const wchar_t* text;
    } rows[] = {{0, L"0 MB"},
                {kMega - 1, L"0 MB"},
                {512 * kMega, L"512 MB"},
                {1024 * kMega - 1, L"1023 MB"},
                {1024 * kMega, L"1.0 GB"},
                {1536 * kMega, L"1.5 GB"},
                {16 * 1024 * kMega, L"16.0 GB"}};
    for (const auto& [bytes, text] : rows)
        EXPECT_EQ(memoryText(bytes), text);
}
