/// Not exported: what the user does in one gesture.
#pragma once

#include <ovoui/frame/Exceptions.h>

#include <ovocor/EventList.h>

#include <utility>

namespace ovoui::tree
{

/// Makes a call as a gesture with this `code`. The subscribers of `gestures` hear of its beginning before
/// and, whatever they and the call raise, of its end afterwards; when one has raised at the beginning the
/// call is left out. Gives what was raised first, for the caller to raise when it has cleaned up. The code by
/// reference: so the library goes on exporting the constants of codes, as its first release did.
template <class Call>
std::exception_ptr asGesture(OVO::Handle<EVSubscriptionList<int>> gestures, const int& code, Call&& call)
{
    std::exception_ptr raised = frame::keeping([&] { gestures->notify(code); });
    if (!raised)
        raised = frame::keeping(std::forward<Call>(call));
    frame::keepFirst(raised, [&] { gestures->notify(0); });
    return raised;
}

} // namespace ovoui::tree
