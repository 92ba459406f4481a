#include "CallStack.h"

#include <shlwapi.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <iterator>

namespace ovo::testkit
{

namespace
{

struct Calls
{
    std::array<DWORD64, 60> addresses{};
    size_t count = 0;
};

/// From a function to the one that has called it. A function without a description of its frame has none, so
/// its return address is what the stack begins with.
void leaveFunction(CONTEXT& context)
{
    DWORD64 module = 0;
    if (RUNTIME_FUNCTION* const function = ::RtlLookupFunctionEntry(context.Rip, &module, nullptr)) {
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, module, context.Rip, function, &context, &handlerData, &frame,
                           nullptr);
        return;
    }
    DWORD64 caller = 0;
    SIZE_T read = 0;
    const bool known = ::ReadProcessMemory(::GetCurrentProcess(), reinterpret_cast<void*>(context.Rsp),
                                           &caller, sizeof caller, &read) != FALSE;
    context.Rip = known ? caller : 0;
    context.Rsp += sizeof caller;
}

/// Takes nothing from the heap, which the thread that is looked at may have locked.
Calls callsFrom(CONTEXT context)
{
    Calls calls;
    while (context.Rip && calls.count < calls.addresses.size()) {
        calls.addresses[calls.count++] = context.Rip;
        leaveFunction(context);
    }
    return calls;
}

std::string placeOf(DWORD64 address)
{
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"no module";
    if (::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                 GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                             reinterpret_cast<const wchar_t*>(address), &module))
        ::GetModuleFileNameW(module, path, MAX_PATH);
    char text[MAX_PATH + 32];
    std::snprintf(text, std::size(text), "%ls+0x%llx", ::PathFindFileNameW(path),
                  static_cast<unsigned long long>(address - reinterpret_cast<std::uintptr_t>(module)));
    return text;
}

std::string described(const Calls& calls)
{
    std::string text;
    for (size_t i = 0; i < calls.count; ++i)
        text += "  " + placeOf(calls.addresses[i]) + '\n';
    return text;
}

} // namespace

std::string describeOwnCalls()
{
    CONTEXT context{};
    ::RtlCaptureContext(&context);
    return described(callsFrom(context));
}

std::string describeCalls(HANDLE thread)
{
    if (::SuspendThread(thread) == static_cast<DWORD>(-1))
        return "  the thread cannot be stopped\n";
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    const bool known = ::GetThreadContext(thread, &context) != FALSE;
    const Calls calls = known ? callsFrom(context) : Calls{};
    ::ResumeThread(thread);
    return known ? described(calls) : "  the thread's registers cannot be read\n";
}

} // namespace ovo::testkit
