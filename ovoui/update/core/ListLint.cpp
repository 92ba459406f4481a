#include <ovoui/update/core/ListLint.h>

#include <ovoui/update/core/ListSearch.h>

#include <ovocor/OvoError.h>

#include <algorithm>
#include <cwctype>
#include <utility>

namespace ovoui::update
{
namespace
{

constexpr std::wstring_view kSchemes[] = {L"http://", L"https://", L"ftp://"};

/// One column more than a list has, so that a row with too many fields is seen.
std::wstring columnsAndOneMore()
{
    return std::wstring(kUpdateColumns) + L",more";
}

std::wstring lower(std::wstring_view text)
{
    std::wstring result(text);
    std::ranges::transform(result, result.begin(),
                           [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    return result;
}

std::wstring_view trimmed(std::wstring_view text)
{
    const std::size_t begin = std::min(text.find_first_not_of(L" \t"), text.size());
    const std::size_t end = text.find_last_not_of(L" \t");
    return text.substr(begin, end == std::wstring_view::npos ? 0 : end + 1 - begin);
}

std::wstring quoted(std::wstring_view text)
{
    return L"\"" + std::wstring(text) + L"\"";
}

bool isAny(std::wstring_view field)
{
    return field.empty() || field == L"*";
}

bool isHeader(const UpdateRow& row)
{
    std::wstring names;
    for (const auto& field : row.fields)
        names += (names.empty() ? L"" : L",") + std::wstring(field.value_or(L""));
    return names == kUpdateColumns;
}

/// The same for rows that apply to the same programs.
std::wstring conditionsOf(const UpdateRow& row)
{
    std::wstring key(row.text(Column::Product));
    for (const Column column : {Column::Options, Column::OS, Column::Processor, Column::Version}) {
        const std::wstring_view field = row.text(column);
        key += L'\n' + std::wstring(isAny(field) ? L"" : field);
    }
    return key;
}

} // namespace

ListLint::ListLint()
    : m_parser(columnsAndOneMore())
{
}

void ListLint::feedLine(std::wstring_view line)
{
    if (m_broken)
        return;
    ++m_fed;
    m_parser.feed(line);
    m_parser.feed(L"\n");
    examineRows();
}

std::vector<Finding> ListLint::finish()
{
    if (!m_broken) {
        m_parser.finish();
        examineRows();
    }
    if (!m_broken && !m_hasUpdates) {
        m_line = std::max<std::size_t>(m_fed, 1);
        report(Weight::Warning, L"The list has no row of the kind #update.");
    }
    std::ranges::stable_sort(m_findings, {}, &Finding::line);
    return std::move(m_findings);
}

void ListLint::examineRows()
{
    try {
        while (const OVO::CSVRecord* const record = m_parser.next())
            examine(*record);
    } catch (const OvoError& error) {
        m_broken = true;
        m_line = m_fed;
        report(Weight::Error, error.wwhat());
    }
}

void ListLint::examine(const OVO::CSVRecord& record)
{
    m_line = record.line;
    const UpdateRow row = rowOf(record);
    const bool first = std::exchange(m_first, false);
    if (!isComplete(row))
        return report(Weight::Error,
                      L"A required field is missing (UpdateType, Product, UpdateVersion, UpdateInfo): "
                      L"the whole list is refused.");
    if (record.fields.back().supplied)
        report(Weight::Warning,
               L"There are more than nine fields: those behind the description do not count. Put a "
               L"description with commas in quotation marks.");
    if (first && isHeader(row))
        return;
    if (first)
        report(Weight::Warning, L"The first row is not the names of the columns.");
    const std::wstring_view type = row.text(Column::UpdateType);
    examineType(type);
    if (type == kIssueKind)
        examineIssue(row.text(Column::UpdateVersion));
    if (type != kUpdateKind)
        return;
    m_hasUpdates = true;
    examineConditions(row);
    examineOffer(row);
    examineOrder(row);
}

void ListLint::examineType(std::wstring_view type)
{
    if (type == kUpdateKind || type == kIssueKind)
        return;
    const std::wstring plain = lower(trimmed(type));
    for (const std::wstring_view kind : {kUpdateKind, kIssueKind})
        if (plain == kind || plain == kind.substr(1))
            return report(Weight::Error,
                          quoted(type) + L" is not " + std::wstring(kind) + L": the row is skipped.");
    report(Weight::Warning, L"Rows of the kind " + quoted(type) + L" are skipped.");
}

void ListLint::examineIssue(std::wstring_view number)
{
    constexpr std::wstring_view kNone;
    if (!wasIssuedBefore(kNone, number))
        report(Weight::Error,
               quoted(number) + L" is no number of a list: this one is older than all that have one.");
}

void ListLint::examineConditions(const UpdateRow& row)
{
    if (row.text(Column::Product).empty())
        report(Weight::Error, L"The product is empty: no program has this name.");
    for (const Column column : {Column::Product, Column::Options, Column::OS, Column::Processor})
        if (trimmed(row.text(column)) != row.text(column))
            report(Weight::Warning, quoted(row.text(column)) + L" has blanks at its ends, which count.");
    const RunningProduct running;
    const std::wstring_view system = row.text(Column::OS);
    if (!isAny(system) && system != running.system)
        report(Weight::Warning,
               L"The system " + quoted(system) + L" is not \"Windows\": the row never applies.");
    const std::wstring_view processor = row.text(Column::Processor);
    if (!isAny(processor) && processor != running.processor)
        report(Weight::Warning,
               L"The processor " + quoted(processor) + L" is not \"Intel64\": the row never applies.");
    const std::wstring_view version = row.text(Column::Version);
    if (!version.empty() && !parseVersion(version))
        report(Weight::Error, quoted(version) + L" is not a pattern of versions: the row never applies.");
}

void ListLint::examineOffer(const UpdateRow& row)
{
    const std::wstring_view offered = row.text(Column::UpdateVersion);
    const std::optional<Version> version = parseVersion(offered);
    if (!version)
        report(Weight::Error, quoted(offered) + L" is not a version: nothing is offered.");
    else if (offered.empty())
        report(Weight::Warning, L"The offered version is empty, which counts as 0: nothing is offered.");
    else if (std::ranges::count(*version, -1) == 4 || offered.find(L'*') != std::wstring_view::npos)
        report(Weight::Warning,
               quoted(offered) + L" leaves numbers out: an offered version should give them all.");
    const std::wstring page = lower(row.text(Column::UpdateInfo));
    const bool web = std::ranges::any_of(kSchemes, [&](std::wstring_view scheme) {
        return page.starts_with(scheme) && page.size() > scheme.size();
    });
    if (!web)
        report(Weight::Error, quoted(row.text(Column::UpdateInfo)) +
                                  L" is not an http, https or ftp address: the page cannot be opened.");
}

void ListLint::examineOrder(const UpdateRow& row)
{
    std::size_t& line = m_seen[conditionsOf(row)];
    if (line != 0)
        m_findings.push_back(
            {line, Weight::Warning,
             L"Line " + std::to_wstring(m_line) + L" is for the same programs and hides this one."});
    line = m_line;
}

void ListLint::report(Weight weight, const std::wstring& text)
{
    m_findings.push_back({m_line, weight, text});
}

} // namespace ovoui::update
