#include <ovoui/update/UpdateCheck.h>

#include <ovoui/update/BrowseUrl.h>
#include <ovoui/update/UpdateAvailable.h>
#include <ovoui/update/UpdateList.h>
#include <ovoui/update/UpdateTrust.h>
#include <ovoui/update/core/OfferRules.h>

using namespace ovoui::update;

std::optional<AvailableUpdate> findUpdate(const std::wstring& address, const std::wstring& product,
                                          const std::wstring& options, const int version[4])
{
    DownloadControl alone;
    return newerVersion(address, runningProduct(product, options, version), nullptr, alone);
}

std::optional<AvailableUpdate> findTrustedUpdate(const std::wstring& address, const std::wstring& product,
                                                 const std::wstring& options, const int version[4],
                                                 UpdateTrust& trust)
{
    DownloadControl alone;
    return newerVersion(address, runningProduct(product, options, version), &trust, alone);
}

void checkForUpdates(const std::wstring& address, const std::wstring& product, const std::wstring& options,
                     const int version[4])
{
    const std::optional<AvailableUpdate> update = [&] {
        const CWaitCursor wait;
        return findUpdate(address, product, options, version);
    }();
    if (!update) {
        CUpdateAvailable(product).DoModal();
        return;
    }
    const INT_PTR result = CUpdateAvailable(product, update->description, update->page).DoModal();
    if (afterAnswer(Asked::Yes, static_cast<int>(result)) == OfferAction::OpenPage)
        browseUrl(update->page);
}
