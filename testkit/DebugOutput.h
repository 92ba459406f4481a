// What the program under test writes to the debugger's channel while an object of this class lives.
#pragma once

#include <windows.h>

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace ovo::testkit
{

/// Of any thread. One object at a time.
class DebugOutput
{
public:
    DebugOutput()
    {
        {
            const std::lock_guard guard{s_lock};
            s_lines.clear();
        }
        m_handler = ::AddVectoredExceptionHandler(1, &listen);
    }
    ~DebugOutput() { ::RemoveVectoredExceptionHandler(m_handler); }
    DebugOutput(const DebugOutput&) = delete;
    DebugOutput& operator=(const DebugOutput&) = delete;

    /// One text a call, those of the last object when there is none now.
    static std::vector<std::wstring> lines()
    {
        const std::lock_guard guard{s_lock};
        return s_lines;
    }

    /// How many texts contain `part`.
    int count(const std::wstring& part) const
    {
        int found = 0;
        for (const std::wstring& line : lines())
            found += line.find(part) != std::wstring::npos;
        return found;
    }

private:
    static constexpr DWORD kNarrow = 0x40010006; // DBG_PRINTEXCEPTION_C: length and text
    static constexpr DWORD kWide = 0x4001000A;   // DBG_PRINTEXCEPTION_WIDE_C: the same, then both narrow

    static LONG CALLBACK listen(EXCEPTION_POINTERS* exception)
    {
        const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
        if (record.ExceptionCode == kWide) {
            take(reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]));
            s_wide = true;
        } else if (record.ExceptionCode == kNarrow && !std::exchange(s_wide, false)) {
            // The system repeats a wide text that has no listener as a narrow one.
            const std::string text(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
            take({text.begin(), text.end()});
        }
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static void take(std::wstring line)
    {
        const std::lock_guard guard{s_lock};
        s_lines.push_back(std::move(line));
    }

    static inline std::mutex s_lock; // of the texts, which every thread of the program may add to
    static inline std::vector<std::wstring> s_lines;
    static inline thread_local bool s_wide = false;
    void* m_handler = nullptr;
};

} // namespace ovo::testkit
