#include <ovoui/sysinfo/core/ModuleView.h>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace ovoui::sysinfo;

namespace
{

LoadedModule module(const std::wstring& name, const std::wstring& version = L"", std::uint64_t size = 0)
{
    LoadedModule result;
    result.name = name;
    result.path = L"C:\\Program\\" + name;
    result.fileVersion = version;
    result.hasAddress = true;
    result.size = size;
    result.hasVersionRecord = !version.empty();
    result.place = ModulePlace::Program;
    return result;
}

const RemarkTexts kRemarks{L"", L"no version record", L"other folder", L"no version record, other folder"};

std::vector<std::wstring> names(const std::vector<LoadedModule>& modules, std::wstring_view filter,
                                const ModuleOrder& order = {})
{
    std::vector<std::wstring> result;
    for (const std::size_t index : visibleModules(modules, filter, order, kRemarks))
        result.push_back(modules[index].name);
    return result;
}

const std::vector<LoadedModule> kModules{module(L"Beta.dll", L"10.0.0.0", 0x20),
                                         module(L"alpha.dll", L"9.1.0.0", 0x100),
                                         module(L"gamma.exe", L"", 0x3)};
using Names = std::vector<std::wstring>;

} // namespace

TEST(ModuleView, IsSortedByNameAtFirst)
{
    EXPECT_EQ(names(kModules, L""), (Names{L"alpha.dll", L"Beta.dll", L"gamma.exe"}));
    EXPECT_EQ(names(kModules, L"", {ModuleColumn::Name, true}),
              (Names{L"gamma.exe", L"Beta.dll", L"alpha.dll"}));
}

TEST(ModuleView, NumbersAreSortedByTheirSize)
{
    EXPECT_EQ(names(kModules, L"", {ModuleColumn::FileVersion}),
              (Names{L"gamma.exe", L"alpha.dll", L"Beta.dll"}));
    EXPECT_EQ(names(kModules, L"", {ModuleColumn::Size}), (Names{L"gamma.exe", L"Beta.dll", L"alpha.dll"}));
}

TEST(ModuleView, EqualOnesStayAsTheyStand)
{
    EXPECT_EQ(names(kModules, L"", {ModuleColumn::Type}), (Names{L"Beta.dll", L"alpha.dll", L"gamma.exe"}));
    EXPECT_EQ(names(kModules, L"", {ModuleColumn::Type, true}),
              (Names{L"Beta.dll", L"alpha.dll", L"gamma.exe"}));
}

TEST(ModuleView, EveryWordOfTheFilterMustBeInSomeColumn)
{
    EXPECT_EQ(names(kModules, L"DLL"), (Names{L"alpha.dll", L"Beta.dll"}));
    EXPECT_EQ(names(kModules, L"  dll   10.0 "), (Names{L"Beta.dll"}));
    EXPECT_EQ(names(kModules, L"dll 7.7"), Names{});
    EXPECT_EQ(names(kModules, L"no version"), (Names{L"gamma.exe"})) << "remarks count";
    EXPECT_EQ(names({}, L"x"), Names{});
}

TEST(ModuleView, RemarksNameWhatIsUnusual)
{
    LoadedModule one = module(L"a", L"1.0.0.0");
    EXPECT_EQ(remarkOn(one), Remark::None);
    one.place = ModulePlace::System;
    EXPECT_EQ(remarkOn(one), Remark::None);
    one.place = ModulePlace::Elsewhere;
    EXPECT_EQ(remarkOn(one), Remark::Elsewhere);
    one.hasVersionRecord = false;
    EXPECT_EQ(remarkOn(one), Remark::NoVersionElsewhere);
    one.place = ModulePlace::Program;
    EXPECT_EQ(remarkOn(one), Remark::NoVersion);
    EXPECT_EQ(columnText(one, ModuleColumn::Remark, kRemarks), L"no version record");
}

TEST(ModuleView, FoldersCountWithAllBelowThem)
{
    const struct
    {
        const wchar_t* path;
        ModulePlace place;
    } rows[] = {{L"C:\\Prog\\a.dll", ModulePlace::Program},
                {L"c:\\PROG\\plug\\a.dll", ModulePlace::Program},
                {L"C:\\Program\\a.dll", ModulePlace::Elsewhere},
                {L"C:\\Prog", ModulePlace::Elsewhere},
                {L"C:\\Windows\\System32\\a.dll", ModulePlace::System},
                {L"C:\\Windows\\Temp\\a.dll", ModulePlace::Elsewhere},
                {L"D:\\a.dll", ModulePlace::Elsewhere},
                {L"", ModulePlace::Elsewhere}};
    for (const auto& [path, place] : rows)
        EXPECT_EQ(placeOf(path, L"C:\\Prog", {L"C:\\windows\\system32", L""}), place)
            << testing::PrintToString(path);
    EXPECT_EQ(placeOf(L"C:\\a.dll", L"C:\\", {}), ModulePlace::Program) << "a root";
    EXPECT_EQ(placeOf(L"C:\\a.dll", L"", {}), ModulePlace::Elsewhere) << "no folder holds nothing";
}

TEST(ModuleView, ColumnsShowOneLine)
{
    LoadedModule one = module(L"a");
    one.fileDescription = L"A\tB\tC";
    EXPECT_EQ(columnText(one, ModuleColumn::Description, kRemarks), L"A / B / C");
    one.hasAddress = false;
    EXPECT_EQ(columnText(one, ModuleColumn::Address, kRemarks), L"");
    EXPECT_EQ(columnText(one, ModuleColumn::Size, kRemarks), L"");
}

TEST(ModuleView, AClickSortsAndAnotherTurnsRound)
{
    const int columns = static_cast<int>(ModuleColumn::Count);
    for (int sorted = 0; sorted < columns; ++sorted)
        for (const bool descending : {false, true})
            for (int clicked = 0; clicked < columns; ++clicked) {
                const ModuleOrder before{static_cast<ModuleColumn>(sorted), descending};
                const ModuleOrder after = afterClick(before, static_cast<ModuleColumn>(clicked));
                EXPECT_EQ(static_cast<int>(after.column), clicked);
                EXPECT_EQ(after.descending, clicked == sorted && !descending);
            }
}

TEST(ModuleView, OneHeadingHasTheMarkOfTheOrder)
{
    const int columns = static_cast<int>(ModuleColumn::Count);
    for (int sorted = 0; sorted < columns; ++sorted)
        for (const bool descending : {false, true})
            for (int column = 0; column < columns; ++column)
                EXPECT_EQ(markOf({static_cast<ModuleColumn>(sorted), descending},
                                 static_cast<ModuleColumn>(column)),
                          column != sorted ? SortMark::None
                          : descending     ? SortMark::Down
                                           : SortMark::Up);
}

TEST(ModuleView, RemarksStandOutFromLightAndDarkWindows)
{
    const auto brightness = [](const Ink& ink) { return ink.red + ink.green + ink.blue; };
    for (int grey = 0; grey <= 255; ++grey) {
        const Ink window{grey, grey, grey};
        const Ink ink = remarkInk(window);
        EXPECT_EQ(brightness(ink) < 3 * 128, grey > 128) << grey;
        EXPECT_GT(std::abs(brightness(ink) - brightness(window)), 100) << grey;
    }
}

TEST(ModuleView, ANameIsFoundByItsBeginningFromARowOnAndRound)
{
    const std::vector<LoadedModule> modules{module(L"beta.dll"), module(L"Alpha.dll"), module(L"alpine.dll"),
                                            module(L"gamma.dll")};
    const std::vector<std::size_t> rows{1, 2, 0}; // gamma is not shown
    const struct
    {
        const wchar_t* beginning;
        std::size_t start;
        std::optional<std::size_t> row;
    } cases[] = {{L"a", 0, 0},      {L"A", 1, 1},          {L"a", 2, 0}, {L"alpi", 0, 1},
                 {L"b", 0, 2},      {L"beta.dll", 2, 2},   {L"a", 3, 0}, {L"lpha", 0, {}},
                 {L"gamma", 0, {}}, {L"alpha.dll.", 0, {}}};
    for (const auto& [beginning, start, row] : cases)
        EXPECT_EQ(rowNamed(modules, rows, beginning, start), row)
            << testing::PrintToString(beginning) << " from " << start;
    EXPECT_EQ(rowNamed(modules, {}, L"a", 0), std::nullopt);
}

TEST(ModuleView, TheSelectedRowsAreCopiedOrAll)
{
    const std::vector<std::size_t> rows{7, 3, 9, 0};
    for (unsigned selected = 0; selected < 16; ++selected) {
        std::vector<std::size_t> expected;
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (selected == 0 || (selected & 1u << row))
                expected.push_back(rows[row]);
        EXPECT_EQ(modulesToCopy(rows, [&](std::size_t row) { return (selected & 1u << row) != 0; }), expected)
            << selected;
    }
    EXPECT_TRUE(modulesToCopy({}, [](std::size_t) { return true; }).empty());
}
