/// Not exported: what nodes raise while the tree's user or the tree view caused the call.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>

#include <exception>
#include <utility>

namespace ovoui::tree
{

/// Makes a call into the host's code. An OvoError or a standard exception goes to the tree's reportError;
/// others pass on. False when there was one to report.
template <class Call>
bool reportErrors(MultiTreeCtrl& tree, Call&& call)
{
    std::wstring message;
    try {
        std::forward<Call>(call)();
        return true;
    } catch (const OvoError& error) {
        message = error.wwhat();
    } catch (const std::exception& error) {
        message = getWCS(error.what());
    }
    // Outside the handler: the host may show a box and run a message loop.
    tree.reportError(message.c_str());
    return false;
}

/// As reportErrors, but keeps what would pass on, for the caller to raise when it has cleaned up.
template <class Call>
std::exception_ptr keepForeign(MultiTreeCtrl& tree, Call&& call)
{
    try {
        reportErrors(tree, std::forward<Call>(call));
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

/// Asks the host's code something only to show how things stand, maybe at every movement of the mouse. An
/// OvoError or a standard exception counts as no answer: false.
template <class Call>
bool quietly(Call&& call)
{
    try {
        std::forward<Call>(call)();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

inline void raise(const std::exception_ptr& exception)
{
    if (exception)
        std::rethrow_exception(exception);
}

} // namespace ovoui::tree
