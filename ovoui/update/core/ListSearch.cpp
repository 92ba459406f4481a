#include <ovoui/update/core/ListSearch.h>

#include <algorithm>

namespace ovoui::update
{

UpdateRow rowOf(const OVO::CSVRecord& record)
{
    UpdateRow row;
    const std::size_t columns = std::min(row.fields.size(), record.fields.size());
    for (std::size_t column = 0; column < columns; ++column)
        if (record[column].supplied)
            row.fields[column] = record[column].text;
    return row;
}

ListSearch::ListSearch(const RunningProduct& running)
    : m_running(running)
{
}

void ListSearch::feedLine(std::wstring_view line)
{
    m_parser.feed(line);
    m_parser.feed(L"\n");
    examineRows();
}

void ListSearch::finish()
{
    m_parser.finish();
    examineRows();
}

void ListSearch::examineRows()
{
    while (const OVO::CSVRecord* const record = m_parser.next()) {
        const UpdateRow row = rowOf(*record);
        if (!isComplete(row))
            throw IncompleteRow{record->line};
        if (isFor(row, m_running))
            m_offer = offerOf(row);
        else if (row.text(Column::UpdateType) == kIssueKind)
            m_issue = row.text(Column::UpdateVersion);
    }
}

} // namespace ovoui::update
