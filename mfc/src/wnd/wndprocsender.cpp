#include "wndprocsender.h"

#include "core/functionparts.h"

#include <detail/modulestate.h>

#include <afxwin.h>

#include <array>

namespace
{

/// What a stack frame belongs to.
enum class Owner
{
    Framework,
    User, ///< user32
    ThreadStart,
    System, ///< anything else of Windows
    Program ///< and its libraries
};

bool isOfWindows(HMODULE module)
{
    wchar_t windows[MAX_PATH]{};
    wchar_t file[MAX_PATH]{};
    // Not GetWindowsDirectory: on a server with several users it may give a folder of the user's own.
    const UINT length = ::GetSystemWindowsDirectoryW(windows, MAX_PATH);
    ::GetModuleFileNameW(module, file, MAX_PATH); // cut off when it is longer, which does no harm
    return length > 0 && ::_wcsnicmp(file, windows, length) == 0;
}

Owner ownerOf(HMODULE module)
{
    static const HMODULE framework = afxdetail::frameworkModule();
    static const HMODULE user = ::GetModuleHandleW(L"user32.dll");
    static const HMODULE kernel = ::GetModuleHandleW(L"kernel32.dll");
    if (module == framework)
        return Owner::Framework;
    if (module == user)
        return Owner::User;
    if (module == kernel)
        return Owner::ThreadStart;
    return isOfWindows(module) ? Owner::System : Owner::Program;
}

/// Whether a function of user32 does nothing but call window procedures. Others, such as a message box, would
/// be left in the middle of their work.
bool passesMessagesOn(const void* function)
{
    static const auto passing = [] {
        const HMODULE user = ::GetModuleHandleW(L"user32.dll");
        std::array<const void*, 6> found{};
        std::size_t at = 0;
        for (const char* name : {"SendMessageW", "SendMessageA", "DispatchMessageW", "DispatchMessageA",
                                 "CallWindowProcW", "CallWindowProcA"})
            found[at++] = reinterpret_cast<const void*>(::GetProcAddress(user, name));
        return found;
    }();
    return std::find(passing.begin(), passing.end(), function) != passing.end();
}

/// The stack's frames, from the caller of the constructor outwards.
class Frames
{
public:
    Frames() { ::RtlCaptureContext(&m_context); }

    /// Goes on to the next frame; false when it cannot be told.
    bool next()
    {
        DWORD64 base = 0;
        PRUNTIME_FUNCTION function = ::RtlLookupFunctionEntry(m_context.Rip, &base, nullptr);
        if (!function)
            return false;
        void* data = nullptr;
        DWORD64 frame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, m_context.Rip, function, &m_context, &data, &frame,
                           nullptr);
        if (!m_context.Rip)
            return false;
        function = ::RtlLookupFunctionEntry(m_context.Rip, &base, nullptr);
        m_module = reinterpret_cast<HMODULE>(base);
        m_function = function ? beginningOf(base, *function) : nullptr;
        return function != nullptr;
    }

    HMODULE module() const { return m_module; }
    const void* function() const { return m_function; }
    bool isBeyond(const void* address) const
    {
        return address && m_context.Rsp > reinterpret_cast<DWORD64>(address);
    }

private:
    static const void* beginningOf(DWORD64 module, const RUNTIME_FUNCTION& entry)
    {
        const auto* const base = reinterpret_cast<const std::byte*>(module);
        return base +
               afxdetail::beginningOfFunction(base, {entry.BeginAddress, entry.EndAddress, entry.UnwindData});
    }

    CONTEXT m_context{};
    HMODULE m_module = nullptr;
    const void* m_function = nullptr;
};

} // namespace

namespace afxdetail
{

bool senderTakesExceptions(const void* outer)
{
    Frames frames;
    bool sent = false; // whether the program's code that sent the message has been found
    const void* system =
        nullptr; // the outermost function of user32 since then, or since the window procedure
    while (frames.next()) {
        if (frames.isBeyond(outer))
            return sent;
        switch (ownerOf(frames.module())) {
        case Owner::User:
            system = frames.function();
            break;
        case Owner::Framework:
            if (system && !sent)
                return false;
            [[fallthrough]];
        case Owner::Program:
            if (system && !passesMessagesOn(system))
                return false;
            sent = sent || system;
            system = nullptr;
            break;
        case Owner::ThreadStart:
            return sent && !system;
        case Owner::System:
            return false;
        }
    }
    return false;
}

} // namespace afxdetail
