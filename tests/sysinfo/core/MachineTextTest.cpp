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

TEST(MachineText, TellsAllInLines)
{
    MachineInfo machine;
    machine.system = L"Windows 10.0, build 19045";
    machine.processors = 4;
    machine.memory = std::uint64_t{16} << 30;
    machine.freeMemory = std::uint64_t{512} << 20;
    machine.gdiObjects = 12;
    machine.userObjects = 3;
    EXPECT_EQ(machineText(machine), L"System: Windows 10.0, build 19045, 4 processors\r\n"
                                    L"Visual styles: off\r\n"
                                    L"Memory: 16.0 GB, 512 MB free\r\n"
                                    L"GDI objects: 12, USER objects: 3\r\n");

    machine.themed = true;
    machine.monitors = {{0, 0, 1920, 1080, 96, true}, {-1280, 20, 1280, 1024, 144, false}};
    EXPECT_EQ(machineText(machine), L"System: Windows 10.0, build 19045, 4 processors\r\n"
                                    L"Visual styles: on\r\n"
                                    L"Monitor: 1920 x 1080 at 0, 0, 96 dots per inch, primary\r\n"
                                    L"Monitor: 1280 x 1024 at -1280, 20, 144 dots per inch\r\n"
                                    L"Memory: 16.0 GB, 512 MB free\r\n"
                                    L"GDI objects: 12, USER objects: 3\r\n");
}
