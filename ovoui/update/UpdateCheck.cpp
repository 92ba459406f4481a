#include <ovoui/update/UpdateCheck.h>

#include <ovoui/update/BrowseUrl.h>
#include <ovoui/update/UpdateAvailable.h>
#include <ovoui/update/UpdateList.h>

#include <algorithm>

using namespace ovoui::update;

std::optional<AvailableUpdate> findUpdate(const std::wstring& address, const std::wstring& product,
                                          const std::wstring& options, const int version[4])
{
    RunningProduct running;
    running.product = product;
    running.options = options;
    std::copy_n(version, running.version.size(), running.version.begin());
    const std::optional<Offer> offer = lastOffer(address, running);
    if (!offer || !isNewer(*offer, running))
        return std::nullopt;
    return AvailableUpdate{offer->version, offer->description, offer->page};
}

void checkForUpdates(const std::wstring& address, const std::wstring& product, const std::wstring& options,
                     const int version[4])
{
    const std::optional<AvailableUpdate> update = findUpdate(address, product, options, version);
    if (!update)
        CUpdateAvailable(product).DoModal();
    else if (CUpdateAvailable(product, update->description, update->page).DoModal() == IDOK)
        browseUrl(update->page);
}
