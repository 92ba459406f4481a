#include <ovoui/update/UpdateMemory.h>

#include <ovoui/frame/ProfileSection.h>
#include <ovoui/update/UpdateCheck.h>
#include <ovoui/update/core/PoliteSchedule.h>

#include <ctime>

using namespace ovoui::update;

namespace
{

constexpr wchar_t kChecked[] = L"checked";
constexpr wchar_t kRemindAt[] = L"remind";
constexpr wchar_t kSkipped[] = L"skipped";
constexpr wchar_t kIssue[] = L"issue";

/// The section of the profile.
ovoui::frame::ProfileSection memory()
{
    return ovoui::frame::ProfileSection(L"updates");
}

std::int64_t now()
{
    return ::_time64(nullptr);
}

} // namespace

UpdateMemory::UpdateMemory(const std::wstring& product)
    : m_product(product)
{
}

bool UpdateMemory::isDue(int days) const
{
    const PoliteSchedule schedule{timeOf(read(kChecked)), timeOf(read(kRemindAt)), {}};
    return schedule.isDue(now(), days);
}

void UpdateMemory::noteCheck()
{
    write(kChecked, std::to_wstring(now()));
}

bool UpdateMemory::isSkipped(const AvailableUpdate& update) const
{
    return PoliteSchedule{.skipped = read(kSkipped)}.isSkipped(update.version);
}

void UpdateMemory::skip(const AvailableUpdate& update)
{
    write(kSkipped, update.version);
}

void UpdateMemory::remindLater(int days)
{
    write(kRemindAt, std::to_wstring(daysLater(now(), days)));
}

std::wstring UpdateMemory::issue() const
{
    return read(kIssue);
}

void UpdateMemory::keepIssue(const std::wstring& issue)
{
    write(kIssue, issue);
}

std::wstring UpdateMemory::read(const wchar_t* what) const
{
    return memory().text(m_product + L' ' + what);
}

void UpdateMemory::write(const wchar_t* what, const std::wstring& value)
{
    memory().write(m_product + L' ' + what, value);
}
