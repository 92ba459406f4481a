#include <ovoui/update/PoliteCheck.h>

#include <ovoui/update/BrowseUrl.h>
#include <ovoui/update/UpdateOffer.h>

#include <ovocor/OvoError.h>

namespace
{

/// None when there is nothing new, and when the list cannot be had.
std::optional<AvailableUpdate> foundSilently(const std::wstring& address, const std::wstring& product,
                                             const std::wstring& options, const int version[4],
                                             UpdateMemory& memory)
{
    try {
        const std::optional<AvailableUpdate> update = findUpdate(address, product, options, version);
        memory.noteCheck();
        return update;
    } catch (const OvoError&) {
        return std::nullopt;
    }
}

} // namespace

void offerUpdate(const std::wstring& product, const AvailableUpdate& update, UpdateMemory& memory,
                 const UpdatePoliteness& politeness, CWnd* parent)
{
    CUpdateOffer dialog(product, update, parent);
    switch (dialog.DoModal()) {
    case IDOK:
        browseUrl(update.page);
        break;
    case IDC_UPDATE_SKIP:
        memory.skip(update);
        break;
    default:
        memory.remindLater(politeness.remindAfter);
        break;
    }
}

void checkPolitely(const std::wstring& address, const std::wstring& product, const std::wstring& options,
                   const int version[4], const UpdatePoliteness& politeness)
{
    UpdateMemory memory(product);
    if (!memory.isDue(politeness.checkEvery))
        return;
    const std::optional<AvailableUpdate> update = foundSilently(address, product, options, version, memory);
    if (update && !memory.isSkipped(*update))
        offerUpdate(product, *update, memory, politeness);
}
