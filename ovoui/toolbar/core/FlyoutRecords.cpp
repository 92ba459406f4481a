#include <ovoui/toolbar/core/FlyoutRecords.h>

#include <ovocor/IntCast.h>

#include <limits>
#include <utility>

namespace ovoui::toolbar
{

int toCount(std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throwIntCast();
    return static_cast<int>(size);
}

int imageOfEntry(const FlyoutRecord& record, int entry, int present)
{
    if (entry < 0)
        return present;
    const auto index = static_cast<std::size_t>(entry);
    if (record.fromResource())
        return index < record.buttonIndices.size() ? record.buttonIndices[index] : present;
    const bool hasImage = index < record.bitmapIds.size() && index < record.images.size();
    return hasImage ? record.images[index] : present;
}

int FlyoutRecords::count() const
{
    return toCount(m_records.size());
}

bool FlyoutRecords::isIndex(int button) const
{
    return button >= 0 && static_cast<std::size_t>(button) < m_records.size();
}

const FlyoutRecord* FlyoutRecords::find(int button) const
{
    if (!isIndex(button))
        return nullptr;
    const FlyoutRecord& record = m_records[static_cast<std::size_t>(button)];
    return record.hasFlyout ? &record : nullptr;
}

void FlyoutRecords::set(int button, FlyoutRecord record)
{
    const auto index = static_cast<std::size_t>(button);
    if (index >= m_records.size())
        m_records.resize(index + 1);
    m_records[index] = std::move(record);
}

void FlyoutRecords::clear(int button)
{
    if (isIndex(button))
        m_records[static_cast<std::size_t>(button)] = {};
}

void FlyoutRecords::clearAll()
{
    for (FlyoutRecord& record : m_records)
        record = {};
}

bool FlyoutRecords::insert(int button)
{
    if (button < 0 || button >= count())
        return false;
    m_records.insert(m_records.begin() + button, FlyoutRecord{});
    return true;
}

void FlyoutRecords::erase(int button)
{
    if (button >= 0 && button < count())
        m_records.erase(m_records.begin() + button);
}

void FlyoutRecords::setBitmapSize(int size)
{
    for (FlyoutRecord& record : m_records)
        if (record.hasFlyout && !record.fromResource())
            record.bitmapSize = size;
}

void FlyoutRecords::replaceImageList(const void* before, void* after)
{
    for (FlyoutRecord& record : m_records)
        if (record.hasFlyout && !record.fromResource() && record.imageList == before)
            record.imageList = after;
}

} // namespace ovoui::toolbar
