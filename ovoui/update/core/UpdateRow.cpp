#include <ovoui/update/core/UpdateRow.h>

namespace ovoui::update
{
namespace
{

constexpr std::wstring_view kAny = L"*";

bool allows(std::wstring_view field, std::wstring_view value)
{
    return field.empty() || field == kAny || field == value;
}

/// A pattern that is not valid allows no version.
bool allowsVersion(std::wstring_view field, const Version& version)
{
    if (field.empty())
        return true;
    const std::optional<Version> pattern = parseVersion(field);
    return pattern && matches(*pattern, version);
}

} // namespace

const wchar_t* const kUpdateColumns =
    L"UpdateType,Product,Options,OS,Processor,Version,UpdateVersion,UpdateInfo,UpdateDescription";

bool isComplete(const UpdateRow& row)
{
    return row[Column::UpdateType] && row[Column::Product] && row[Column::UpdateVersion] &&
           row[Column::UpdateInfo];
}

bool isFor(const UpdateRow& row, const RunningProduct& running)
{
    return row.text(Column::UpdateType) == kUpdateKind && row.text(Column::Product) == running.product &&
           allows(row.text(Column::Options), running.options) &&
           allows(row.text(Column::OS), running.system) &&
           allows(row.text(Column::Processor), running.processor) &&
           allowsVersion(row.text(Column::Version), running.version);
}

Offer offerOf(const UpdateRow& row)
{
    const std::wstring_view version = row.text(Column::UpdateVersion);
    const std::wstring_view description = row.text(Column::UpdateDescription);
    return {std::wstring(version), std::wstring(description.empty() ? version : description),
            std::wstring(row.text(Column::UpdateInfo))};
}

bool isNewer(const Offer& offer, const RunningProduct& running)
{
    const std::optional<Version> version = parseVersion(offer.version);
    return version && isNewer(*version, running.version);
}

} // namespace ovoui::update
