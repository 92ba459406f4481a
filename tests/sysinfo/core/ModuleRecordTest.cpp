#include <ovoui/sysinfo/core/ModuleRecord.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovoui::sysinfo;

TEST(ModuleRecord, TheColumnsComeInTheOrderOfTheirNames)
{
    const ModuleRecord record{L"name", L"path",    true,    0x140000000, 0x1F000,  L"time",
                              L"file", L"product", L"desc", L"type",     L"flags", L"os"};
    EXPECT_EQ(moduleLine(record),
              L"name\t0000000140000000\t0x1f000\ttime\tfile\tproduct\ttype\tflags\tos\tpath\tdesc");
    const std::wstring header = kModuleColumns;
    const std::wstring line = moduleLine(record);
    EXPECT_EQ(std::count(line.begin(), line.end(), L'\t'), std::count(header.begin(), header.end(), L'\t'));
}

TEST(ModuleRecord, WithoutAnAddressItsColumnsAreEmpty)
{
    ModuleRecord record;
    record.name = L"name";
    record.baseAddress = 5;
    EXPECT_EQ(moduleLine(record), L"name\t\t\t\t\t\t\t\t\t\t");
}

TEST(ModuleRecord, AddressesHaveAllTheirDigits)
{
    ModuleRecord record;
    record.hasAddress = true;
    EXPECT_EQ(moduleLine(record).substr(0, 21), L"\t0000000000000000\t0x0");
    record.baseAddress = 0xFEDCBA9876543210;
    record.size = 0xFFFFFFFFFFFFFFFF;
    EXPECT_EQ(moduleLine(record).substr(0, 36), L"\tFEDCBA9876543210\t0xffffffffffffffff");
}
