#include <ovoui/update/PoliteCheck.h>

#include <ovoui/update/BrowseUrl.h>
#include <ovoui/update/UpdateOffer.h>
#include <ovoui/update/core/OfferRules.h>

#include <ovocor/OvoError.h>

using namespace ovoui::update;

namespace
{

struct Found
{
    Look look = Look::Failed;
    std::optional<AvailableUpdate> update;
};

Found foundSilently(const std::wstring& address, const std::wstring& product, const std::wstring& options,
                    const int version[4], const UpdateMemory& memory)
{
    try {
        const auto update = findUpdate(address, product, options, version);
        if (!update)
            return {Look::NothingNew, {}};
        return {memory.isSkipped(*update) ? Look::Skipped : Look::Newer, update};
    } catch (const OvoError&) {
        return {};
    }
}

} // namespace

void offerUpdate(const std::wstring& product, const AvailableUpdate& update, UpdateMemory& memory,
                 const UpdatePoliteness& politeness, CWnd* parent)
{
    CUpdateOffer dialog(product, update, parent);
    switch (afterAnswer(Asked::No, static_cast<int>(dialog.DoModal()))) {
    case OfferAction::OpenPage:
        browseUrl(update.page);
        break;
    case OfferAction::Skip:
        memory.skip(update);
        break;
    case OfferAction::RemindLater:
        memory.remindLater(politeness.remindAfter);
        break;
    case OfferAction::Nothing:
        break;
    }
}

void checkPolitely(const std::wstring& address, const std::wstring& product, const std::wstring& options,
                   const int version[4], const UpdatePoliteness& politeness)
{
    UpdateMemory memory(product);
    if (!memory.isDue(politeness.checkEvery))
        return;
    const Found found = foundSilently(address, product, options, version, memory);
    const PoliteRule rule = afterLook(found.look);
    if (rule.noted)
        memory.noteCheck();
    if (rule.offered)
        offerUpdate(product, *found.update, memory, politeness);
}
