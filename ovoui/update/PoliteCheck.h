/// A look for updates that the user did not ask for: seldom, and silent unless there is something to say.
///
///     checkPolitely(address, L"Drawing Board", L"Professional", version);      // at every start
#pragma once

#include <ovoui/export.h>
#include <ovoui/update/UpdateCheck.h>
#include <ovoui/update/UpdateMemory.h>

#include <string>

class CWnd;

/// How often the user is bothered, in days.
struct UpdatePoliteness
{
    int checkEvery = 7;  ///< from one look at the list to the next
    int remindAfter = 3; ///< from "remind me later" to the next offer
};

/// Shows the newer version `update` of `product` with the choices to open its page, to be reminded later, or
/// to skip it; `memory` keeps the choice, and `politeness` says when later is. Closing the dialog puts it off
/// too, and so does one that cannot be shown: the version is offered again later, and the server is not asked
/// at every start meanwhile. `parent` may be null. Errors of `browseUrl` come out of here.
OVOUI_API void offerUpdate(const std::wstring& product, const AvailableUpdate& update, UpdateMemory& memory,
                           const UpdatePoliteness& politeness = {}, CWnd* parent = nullptr);

/// Looks for a newer version when that is due, and offers it unless the user skips it. Silent when there is
/// nothing new, and when the list cannot be fetched or used: then the next call tries again. Waits for the
/// server; a host that does not want that asks `UpdateMemory::isDue`, starts an `UpdateJob`, and with its
/// answer calls `UpdateMemory::noteCheck`, and `offerUpdate` for a version that is not skipped.
/// `address`, `product`, `options` and `version` are those of findUpdate, `politeness` says when a look is
/// due.
OVOUI_API void checkPolitely(const std::wstring& address, const std::wstring& product,
                             const std::wstring& options, const int version[4],
                             const UpdatePoliteness& politeness = {});
