/// The rules for the rows of an update list. Plain values, no windows.
#pragma once

#include <ovoui/update/core/VersionText.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ovoui::update
{

/// The columns of a list, in order.
enum class Column : std::size_t
{
    UpdateType,
    Product,
    Options,
    OS,
    Processor,
    Version,
    UpdateVersion,
    UpdateInfo,
    UpdateDescription,
    Count
};

// The kinds of rows that count, by their UpdateType
inline constexpr std::wstring_view kUpdateKind = L"#update";
inline constexpr std::wstring_view kIssueKind =
    L"#issue"; ///< has the number of the list as its UpdateVersion

/// The names of the columns, as the row of a list.
extern const wchar_t* const kUpdateColumns;

/// The fields of a row; none where the row does not supply one.
struct UpdateRow
{
    std::array<std::optional<std::wstring_view>, static_cast<std::size_t>(Column::Count)> fields;

    const std::optional<std::wstring_view>& operator[](Column column) const
    {
        return fields[static_cast<std::size_t>(column)];
    }
    /// The field, or an empty text.
    std::wstring_view text(Column column) const { return (*this)[column].value_or(std::wstring_view()); }
};

/// The program that asks.
struct RunningProduct
{
    std::wstring product;
    std::wstring options;
    Version version{};
    std::wstring system = L"Windows";
    std::wstring processor = L"Intel64";
};

/// Whether a row, of whatever kind, supplies the columns that every row must.
bool isComplete(const UpdateRow& row);

/// Whether a complete row is an update for the product, its options, its platform and its version.
bool isFor(const UpdateRow& row, const RunningProduct& running);

/// What a row offers.
struct Offer
{
    std::wstring version;     ///< as the list has it
    std::wstring description; ///< the version where the list has none
    std::wstring page;        ///< the address of the page that describes the update

    friend bool operator==(const Offer&, const Offer&) = default;
};

Offer offerOf(const UpdateRow& row);

/// Whether the offer's version is newer than the running one; not when it is no version.
bool isNewer(const Offer& offer, const RunningProduct& running);

} // namespace ovoui::update
