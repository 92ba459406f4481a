/// Not exported: what becomes of the exceptions that a host's code raises while a control calls it.
#pragma once

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace ovoui::frame
{

/// Makes a call and keeps what it raises, for the caller to raise when it has cleaned up.
template <class Call>
std::exception_ptr keeping(Call&& call)
{
    try {
        std::forward<Call>(call)();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

/// The same where calls go on after an exception: the first one is kept.
template <class Call>
void keepFirst(std::exception_ptr& kept, Call&& call)
{
    const std::exception_ptr raised = keeping(std::forward<Call>(call));
    if (!kept)
        kept = raised;
}

/// Makes a call where no exception may leave, such as in a destructor: what it raises is lost.
template <class Call>
void dropping(Call&& call) noexcept
{
    keeping(std::forward<Call>(call));
}

inline void raise(const std::exception_ptr& exception)
{
    if (exception)
        std::rethrow_exception(exception);
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

/// Makes a call. Gives the text for the user when it raises an OvoError or a standard exception; others pass
/// on. Showing the text is the caller's business, outside of any handler: a box runs a message loop.
template <class Call>
std::optional<std::wstring> errorOf(Call&& call)
{
    try {
        std::forward<Call>(call)();
        return std::nullopt;
    } catch (const OvoError& error) {
        return error.wwhat();
    } catch (const std::exception& error) {
        return getWCS(error.what());
    }
}

} // namespace ovoui::frame
