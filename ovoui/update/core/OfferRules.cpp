#include <ovoui/update/core/OfferRules.h>

#include <ovouires/resource.h>

namespace ovoui::update
{
namespace
{

constexpr int kOk = 1; // the platform's IDOK

} // namespace

PoliteRule afterLook(Look look)
{
    switch (look) {
    case Look::Failed:
        return {.noted = false, .offered = false};
    case Look::NothingNew:
    case Look::Skipped:
        return {.noted = true, .offered = false};
    case Look::Newer:
        break;
    }
    return {.noted = true, .offered = true};
}

OfferAction afterAnswer(Asked asked, int result)
{
    if (result == kOk)
        return OfferAction::OpenPage;
    if (asked == Asked::Yes)
        return OfferAction::Nothing;
    return result == IDC_UPDATE_SKIP ? OfferAction::Skip : OfferAction::RemindLater;
}

} // namespace ovoui::update
