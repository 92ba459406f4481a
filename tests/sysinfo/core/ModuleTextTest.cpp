#include <ovoui/sysinfo/core/ModuleText.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovoui::sysinfo;

TEST(LoadedModule, TheColumnsComeInTheOrderOfTheirNames)
{
    const LoadedModule record{L"name", L"path",    true,    0x140000000, 0x1F000,  L"time",
                              L"file", L"product", L"desc", L"type",     L"flags", L"os"};
    EXPECT_EQ(moduleLine(record),
              L"name\t0000000140000000\t0x1f000\ttime\tfile\tproduct\ttype\tflags\tos\tpath\tdesc");
    const std::wstring header = kModuleColumns;
    const std::wstring line = moduleLine(record);
    EXPECT_EQ(std::count(line.begin(), line.end(), L'\t'), std::count(header.begin(), header.end(), L'\t'));
}

TEST(LoadedModule, WithoutAnAddressItsColumnsAreEmpty)
{
    LoadedModule record;
    record.name = L"name";
    record.baseAddress = 5;
    EXPECT_EQ(moduleLine(record), L"name\t\t\t\t\t\t\t\t\t\t");
}

TEST(LoadedModule, AddressesHaveAllTheirDigits)
{
    LoadedModule record;
    record.hasAddress = true;
    EXPECT_EQ(moduleLine(record).substr(0, 21), L"\t0000000000000000\t0x0");
    record.baseAddress = 0xFEDCBA9876543210;
    record.size = 0xFFFFFFFFFFFFFFFF;
    EXPECT_EQ(moduleLine(record).substr(0, 36), L"\tFEDCBA9876543210\t0xffffffffffffffff");
}

// Other forms

namespace
{

LoadedModule sample()
{
    return {L"a|b.dll", L"C:\\x\\a|b.dll",   true,     0x140000000, 0x1000, L"1 May 2020 10:00:00",
            L"1.2.3.4", L"5.6.7.8",          L"A\tB*", L"DLL",      L"",    L"NT/2000",
            true,       ModulePlace::Program};
}

} // namespace

TEST(LoadedModules, TextHasALineForEachModule)
{
    const std::wstring text = textOf({sample(), sample()});
    EXPECT_TRUE(text.starts_with(std::wstring(kModuleColumns) + L"\r\na|b.dll\t"));
    EXPECT_EQ(std::count(text.begin(), text.end(), L'\n'), 3);
    EXPECT_EQ(textOf({}), std::wstring(kModuleColumns) + L"\r\n");
}

TEST(LoadedModules, MarkdownKeepsItsColumnsWhateverTheTexts)
{
    EXPECT_EQ(
        markdownOf({sample()}),
        L"| Name | base address | size | linker stamp | file ver | product ver | type | flags | os | path | "
        L"fileDesc |\n"
        L"|---|---|---|---|---|---|---|---|---|---|---|\n"
        L"| a\\|b.dll | 0000000140000000 | 0x1000 | 1 May 2020 10:00:00 | 1.2.3.4 | 5.6.7.8 | DLL |  | "
        L"NT/2000 | "
        L"C:\\\\x\\\\a\\|b.dll | A B\\* |\n");
}

TEST(LoadedModules, JsonHoldsEveryKnownText)
{
    EXPECT_EQ(jsonOf({}), L"[\n]\n");
    EXPECT_EQ(
        jsonOf({sample()}),
        L"[\n  {\"name\": \"a|b.dll\", \"path\": \"C:\\\\x\\\\a|b.dll\", \"baseAddress\": \"0x140000000\", "
        L"\"size\": 4096, \"linkTime\": \"1 May 2020 10:00:00\", \"fileVersion\": \"1.2.3.4\", "
        L"\"productVersion\": \"5.6.7.8\", \"type\": \"DLL\", \"system\": \"NT/2000\", "
        L"\"descriptions\": [\"A\", \"B*\"], \"hasVersionRecord\": true, \"place\": \"program\"}\n]\n");
}

TEST(LoadedModules, JsonEscapesWhatItMust)
{
    LoadedModule module;
    module.name = L"\"\\\n\x01\x2028";
    EXPECT_NE(jsonOf({module, module})
                  .find(L"{\"name\": \"\\\"\\\\\\u000a\\u0001\x2028\", \"path\": \"\", "
                        L"\"descriptions\": [], \"hasVersionRecord\": false, "
                        L"\"place\": \"elsewhere\"},\n"),
              std::wstring::npos);
}
