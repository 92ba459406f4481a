// Internal to the window engine: the way of an exception from a window procedure to the code that sent the
// message.
#pragma once

namespace afxdetail
{

/// Whether an exception that leaves the window procedure now reaches the code that sent the message with
/// SendMessage, and from there the window procedure around it or the end of the stack, with nothing of the
/// system in between but functions that only pass a message on. False when the framework itself made the
/// call: it raises what is kept.
///
/// `outer` is an address in the stack frame of the window procedure around this one, or null.
bool senderTakesExceptions(const void* outer);

} // namespace afxdetail
