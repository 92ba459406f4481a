/// What is wrong with an update list, for those who publish one. Plain values, no windows.
#pragma once

#include <ovoui/update/core/UpdateRow.h>

#include <ovocor/CsvParser.h>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ovoui::update
{

struct Finding
{
    enum class Weight
    {
        Error,  ///< the check fails, or the row cannot do what it is there for
        Warning ///< probably not what was meant
    };
    std::size_t line; ///< counted from 1
    Weight weight;
    std::wstring text;

    friend bool operator==(const Finding&, const Finding&) = default;
};

/// Takes a list line by line. A text that is not in the form of a list ends the examination with an error.
class ListLint
{
public:
    ListLint();

    /// A line without its end.
    void feedLine(std::wstring_view line);

    /// The list is complete. Gives all findings, sorted by line.
    std::vector<Finding> finish();

private:
    using Weight = Finding::Weight;

    void examineRows();
    void examine(const OVO::CSVRecord& record);
    void examineType(std::wstring_view type);
    void examineIssue(std::wstring_view number);
    void examineConditions(const UpdateRow& row);
    void examineOffer(const UpdateRow& row);
    void examineOrder(const UpdateRow& row);
    void report(Weight weight, const std::wstring& text);

    OVO::CSVParser m_parser;
    std::size_t m_fed = 0;  ///< lines so far
    std::size_t m_line = 0; ///< of the row that is examined
    bool m_first = true;
    bool m_broken = false;
    bool m_hasUpdates = false;
    std::map<std::wstring, std::size_t> m_seen; ///< lines of rows, by their conditions
    std::vector<Finding> m_findings;
};

} // namespace ovoui::update
