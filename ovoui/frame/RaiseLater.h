/// Not exported: what becomes of exceptions in procedures that the system calls and that belong to no window,
/// such as hooks.
#pragma once

#include <exception>

namespace ovoui::frame
{

/// Raises an exception in a message handler, one of the next that the message loop comes to: a CException is
/// shown there, others come out of the loop. Nothing happens without one. It is lost where the system refuses
/// the window that this takes.
void raiseLater(const std::exception_ptr& raised) noexcept;

} // namespace ovoui::frame
