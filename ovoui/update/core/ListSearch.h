/// What an update list offers to a program, row by row. Plain values, no windows.
#pragma once

#include <ovoui/update/core/UpdateRow.h>

#include <ovocor/CsvParser.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ovoui::update
{

/// Thrown for a row without one of the columns that every row must have.
struct IncompleteRow
{
    std::size_t line; ///< where it begins, counted from 1
};

/// The fields of a record; those beyond the last column do not count.
UpdateRow rowOf(const OVO::CSVRecord& record);

/// Takes a list line by line and keeps what the last row that applies offers. Memory: one row and the offer.
/// Throws IncompleteRow, and OvoError for text that is not in the form of a list.
class ListSearch
{
public:
    /// The program is borrowed.
    explicit ListSearch(const RunningProduct& running);

    /// A line without its end.
    void feedLine(std::wstring_view line);
    /// The list is complete.
    void finish();

    /// None without a row that applies.
    const std::optional<Offer>& offer() const { return m_offer; }
    /// The number of this issue of the list, which the last row of the kind "#issue" gives as its
    /// UpdateVersion; empty without one.
    const std::wstring& issue() const { return m_issue; }

private:
    void examineRows();

    const RunningProduct& m_running;
    OVO::CSVParser m_parser{kUpdateColumns};
    std::optional<Offer> m_offer;
    std::wstring m_issue;
};

} // namespace ovoui::update
