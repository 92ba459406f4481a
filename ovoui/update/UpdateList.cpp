#include <ovoui/update/UpdateList.h>

#include <ovocor/CsvParser.h>
#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovocor/TextReader.h>
#include <ovocor/Url.h>
#include <ovomsg/ovomsg.h>

#include <windows.h>
#include <wininet.h>

namespace ovoui::update
{
namespace
{

/// A copy in the system's cache, deleted at the end of the scope.
class CachedCopy
{
public:
    explicit CachedCopy(const std::wstring& address)
        : m_address(address)
        , m_path(downloadUrlToCache(address))
    {
    }
    ~CachedCopy() { ::DeleteUrlCacheEntryW(m_address.c_str()); }
    CachedCopy(const CachedCopy&) = delete;
    CachedCopy& operator=(const CachedCopy&) = delete;

    const std::wstring& path() const { return m_path; }

private:
    const std::wstring m_address;
    const std::wstring m_path;
};

UpdateRow rowOf(const OVO::CSVRecord& record)
{
    UpdateRow row;
    for (std::size_t column = 0; column < row.fields.size(); ++column)
        if (record[column].supplied)
            row.fields[column] = record[column].text;
    return row;
}

/// The rows of a list, as far as they have been fed.
class ListSearch
{
public:
    ListSearch(const std::wstring& address, const RunningProduct& running)
        : m_address(address)
        , m_running(running)
    {
    }

    void feedLine(const std::wstring& line)
    {
        m_parser.feed(line);
        m_parser.feed(L"\n");
        examineRows();
    }

    std::optional<Offer> finish()
    {
        m_parser.finish();
        examineRows();
        return std::move(m_offer);
    }

private:
    void examineRows()
    {
        while (const OVO::CSVRecord* const record = m_parser.next()) {
            const UpdateRow row = rowOf(*record);
            if (!isComplete(row))
                throw OvoError(
                    stringPrintf(ovoMsg(OVOMSG_UPDATE_LIST_INCOMPLETE).c_str(), m_address.c_str()));
            if (isFor(row, m_running))
                m_offer = offerOf(row);
        }
    }

    const std::wstring& m_address;
    const RunningProduct& m_running;
    OVO::CSVParser m_parser{kUpdateColumns};
    std::optional<Offer> m_offer;
};

} // namespace

std::optional<Offer> lastOffer(const std::wstring& address, const RunningProduct& running)
{
    const CachedCopy copy(address);
    OVO::TextReader reader(copy.path()); // closed before the copy is deleted
    ListSearch search(address, running);
    std::wstring line;
    while (reader.readLine(line))
        search.feedLine(line);
    return search.finish();
}

} // namespace ovoui::update
