#include <ovoui/update/core/UpdateRow.h>

#include <gtest/gtest.h>

using namespace ovoui::update;

namespace
{

RunningProduct running()
{
    RunningProduct product;
    product.product = L"Board";
    product.options = L"Pro";
    product.version = {11, 5, 0, 7};
    return product;
}

/// An update for the running product, with one field changed.
UpdateRow row(Column column = Column::Count, std::optional<std::wstring_view> field = std::nullopt)
{
    UpdateRow row;
    row.fields = {L"#update", L"Board", L"Pro",       L"Windows", L"Intel64",
                  L"11.*",    L"12.0",  L"http://x/", L"News"};
    if (column != Column::Count)
        row.fields[static_cast<std::size_t>(column)] = field;
    return row;
}

} // namespace

TEST(UpdateRow, FourColumnsMustBeThere)
{
    EXPECT_TRUE(isComplete(row()));
    for (const Column column :
         {Column::UpdateType, Column::Product, Column::UpdateVersion, Column::UpdateInfo}) {
        EXPECT_FALSE(isComplete(row(column)));
        EXPECT_TRUE(isComplete(row(column, L""))) << "empty is not missing";
    }
    for (const Column column :
         {Column::Options, Column::OS, Column::Processor, Column::Version, Column::UpdateDescription})
        EXPECT_TRUE(isComplete(row(column)));
}

TEST(UpdateRow, EachColumnHasItsRule)
{
    EXPECT_TRUE(isFor(row(), running()));
    const struct
    {
        Column column;
        std::optional<std::wstring_view> field;
        bool isFor;
    } rows[] = {{Column::UpdateType, L"#Update", false},
                {Column::UpdateType, L"update", false},
                {Column::UpdateType, L"", false},
                {Column::Product, L"board", false},
                {Column::Product, L"*", false},
                {Column::Product, L"", false},
                {Column::Options, L"", true},
                {Column::Options, std::nullopt, true},
                {Column::Options, L"*", true},
                {Column::Options, L"pro", false},
                {Column::Options, L"Home", false},
                {Column::OS, L"", true},
                {Column::OS, std::nullopt, true},
                {Column::OS, L"*", true},
                {Column::OS, L"windows", false},
                {Column::OS, L"Linux", false},
                {Column::Processor, L"", true},
                {Column::Processor, std::nullopt, true},
                {Column::Processor, L"*", true},
                {Column::Processor, L"ARM64", false},
                {Column::Version, L"", true},
                {Column::Version, std::nullopt, true},
                {Column::Version, L"*", true},
                {Column::Version, L"11.5.0.7", true},
                {Column::Version, L"11.5.0.8", false},
                {Column::Version, L"10", false},
                {Column::Version, L"eleven", false},
                {Column::UpdateVersion, L"nonsense", true},
                {Column::UpdateDescription, std::nullopt, true}};
    for (const auto& [column, field, expected] : rows)
        EXPECT_EQ(isFor(row(column, field), running()), expected)
            << static_cast<std::size_t>(column) << " " << testing::PrintToString(field.value_or(L"none"));
}

TEST(UpdateRow, TheVersionStandsInForTheDescription)
{
    EXPECT_EQ(offerOf(row()), (Offer{L"12.0", L"News", L"http://x/"}));
    EXPECT_EQ(offerOf(row(Column::UpdateDescription, L"")), (Offer{L"12.0", L"12.0", L"http://x/"}));
    EXPECT_EQ(offerOf(row(Column::UpdateDescription)), (Offer{L"12.0", L"12.0", L"http://x/"}));
}

TEST(UpdateRow, OnlyAVersionCanBeNewer)
{
    EXPECT_TRUE(isNewer(Offer{L"11.5.1", L"", L""}, running()));
    EXPECT_FALSE(isNewer(Offer{L"11.5", L"", L""}, running()));
    EXPECT_FALSE(isNewer(Offer{L"twelve", L"", L""}, running()));
    EXPECT_FALSE(isNewer(Offer{L"12.1.1.1.1", L"", L""}, running()));
}
