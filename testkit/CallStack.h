#pragma once

#include <windows.h>

#include <string>

namespace ovo::testkit
{

/// The calls that the calling thread is in, the innermost first, a line each: "test_tree.exe+0x1234". Offsets
/// are from where the module is loaded; `addr2line` takes them added to the module's preferred address.
std::string describeOwnCalls();

/// The calls that another thread is in. It is stopped while they are gathered. Says so where the thread
/// cannot be stopped or read.
std::string describeCalls(HANDLE thread);

} // namespace ovo::testkit
