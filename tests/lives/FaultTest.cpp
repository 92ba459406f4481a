// Every call of the system that the library makes and that can fail is made to fail once in the lives of some
// controls: no crash, no exception but the documented ones, nothing left behind, and the next life is as good
// as ever.
//
//   OVO_FAULT_LIVES=100 ./test_faults.exe --gtest_filter='*Faults*'     in up to so many lives, 3 by default
#include "Imports.h"
#include "Leftovers.h"
#include "Uses.h"

#include <testkit/RecordingParent.h>
#include <testkit/TestApp.h>
#include <testkit/Watchdog.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <set>

using namespace ovo::testkit;

namespace
{

constexpr std::uintptr_t kMinusOne = ~std::uintptr_t{0};
constexpr std::uintptr_t kFailed = 0x80004005; // E_FAIL
constexpr std::uintptr_t kGdiPlusOutOfMemory = 3;

// The compiler's runtime; it is not called to ask the system for something.
const std::set<std::string> kOtherLibraries{"msvcrt.dll",         "libgcc_s_seh-1.dll", "libstdc++-6.dll",
                                            "ovocor11.dll",       "ovomsg11.dll",       "ovomfc.dll",
                                            "libwinpthread-1.dll"};

/// Functions that cannot fail, or whose answer says nothing of a failure.
const std::set<std::string> kCannotFail{
    // arithmetic
    "CopyRect", "EqualRect", "InflateRect", "IntersectRect", "IsRectEmpty", "OffsetRect", "PtInRect",
    "SetRect", "UnionRect", "MulDiv", "lstrcmpiW", "lstrcpynW", "CharLowerBuffW", "IsDBCSLeadByteEx",
    // the process and its clocks
    "GetCurrentProcess", "GetCurrentProcessId", "GetCurrentThreadId", "GetLastError", "SetLastError",
    "GetTickCount", "GetTickCount64", "GetMessagePos", "GetDoubleClickTime", "Sleep", "TlsGetValue",
    "GetNativeSystemInfo", "DeleteCriticalSection", "EnterCriticalSection", "InitializeCriticalSection",
    "LeaveCriticalSection",
    // the window's own procedure, of which the answer is that of the message
    "CallNextHookEx", "CallWindowProcA", "CallWindowProcW", "DefWindowProcW",
    "DispatchMessageW", "SendMessageW", "TranslateMessage",
    // colours, metrics and keys, of which every number is a good one
    "GetSysColor", "GetSystemMetrics", "GetKeyState", "GetGuiResources", "IsWinEventHookInstalled",
    // no answer
    "NotifyWinEvent", "PostQuitMessage", "GdipFree", "CoTaskMemFree", "OleUninitialize", "ScriptStringFree",
    // memory for the small objects of the platform's wrapper of GDI+, as that of the compiler's runtime
    "GdipAlloc",
    // ends a loop of the library's: no further message is as good as none
    "GetMessageW"};

/// What a function gives when it has failed, where that is not 0.
const std::map<std::string, std::uintptr_t> kFailures{{"CreateFileW", kMinusOne},
                                                      {"CreateToolhelp32Snapshot", kMinusOne},
                                                      {"GetPixel", 0xFFFFFFFF},
                                                      {"SetDCPenColor", 0xFFFFFFFF},
                                                      {"OleInitialize", kFailed},
                                                      {"AccessibleObjectFromWindow", kFailed},
                                                      {"CreateStdAccessibleObject", kFailed},
                                                      {"LresultFromObject", kFailed},
                                                      {"ScriptStringAnalyse", kFailed},
                                                      {"SHGetMalloc", kFailed},
                                                      {"VarDateFromStr", kFailed},
                                                      {"BCryptOpenAlgorithmProvider", 0xC0000001},
                                                      {"BCryptCreateHash", 0xC0000001},
                                                      {"BCryptHashData", 0xC0000001},
                                                      {"BCryptFinishHash", 0xC0000001},
                                                      {"BCryptImportKeyPair", 0xC0000001},
                                                      {"BCryptVerifySignature", 0xC0000001}};

/// Functions that let something go: when they fail, it stays.
const std::set<std::string> kLetGo{"DeleteObject",
                                   "DestroyWindow",
                                   "ReleaseDC",
                                   "SelectObject",
                                   "GdipFree",
                                   "FreeLibrary",
                                   "GdipDisposeImage",
                                   "GdipDeleteGraphics",
                                   "CloseHandle",
                                   "GlobalFree",
                                   "GdipDisposeImageAttributes"};

std::uintptr_t failureOf(const Import& import)
{
    const auto known = kFailures.find(import.function);
    if (known != kFailures.end())
        return known->second;
    if (import.function.starts_with("Gdip"))
        return kGdiPlusOutOfMemory;
    return 0;
}

/// What the library's modules import.
std::vector<Import> libraryImports()
{
    std::vector<Import> imports = importsOf(::GetModuleHandleW(L"ovoui.dll"));
    const std::vector<Import> ofDrawings = importsOf(::GetModuleHandleW(L"ovosvg11.dll"));
    imports.insert(imports.end(), ofDrawings.begin(), ofDrawings.end());
    return imports;
}

bool canFail(const Import& import)
{
    return !kOtherLibraries.contains(import.library) && !kCannotFail.contains(import.function);
}

const char* g_failing = "";

/// Names the function whose failure was not stood.
LONG WINAPI nameFailing(EXCEPTION_POINTERS*)
{
    std::fprintf(stderr, "a crash where %s failed\n", g_failing);
    std::fflush(stderr);
    return EXCEPTION_CONTINUE_SEARCH;
}

class Faults : public ::testing::TestWithParam<Life>
{
protected:
    static void SetUpTestSuite() { ::SetUnhandledExceptionFilter(&nameFailing); }
    /// What the lives of all controls together must have come to.
    static void TearDownTestSuite()
    {
        ::SetUnhandledExceptionFilter(nullptr);
        std::erase_if(s_failed, [](const auto& function) { return function.second == 0; });
        std::printf("%zu functions have failed:", s_failed.size());
        printImports(true);
        std::printf("\nnever called:");
        printImports(false);
        std::printf("\n");
        EXPECT_GT(s_failed.size(), 40u);
    }

    static void printImports(bool failed)
    {
        for (const Import& import : libraryImports())
            if (canFail(import) && s_failed.contains(import.slot) == failed)
                std::printf(" %s", import.function.c_str());
    }

    /// A life in which the first call fails, and one after it. False when there was no such call.
    bool liveWithout(const Import& import)
    {
        bool happened = false;
        {
            const FirstCallFails fault(import, failureOf(import));
            EXPECT_EQ(liveOnce(GetParam(), m_parent), "");
            happened = fault.happened();
        }
        if (happened) {
            EXPECT_EQ(liveOnce(GetParam(), m_parent), "") << "after the failure";
        }
        m_parent.log().clear();
        return happened;
    }

    /// In how many lives each function is to have failed.
    static int livesEach()
    {
        const char* const text = std::getenv("OVO_FAULT_LIVES");
        return text && std::atoi(text) > 0 ? std::atoi(text) : 3;
    }

    RecordingParent m_parent;
    inline static std::map<void**, int> s_failed; ///< in how many lives, by the function's slot
};

} // namespace

TEST_P(Faults, NoCallThatFailsDoesHarm)
{
    m_parent.ShowWindow(SW_SHOWNOACTIVATE);
    g_failing = "none";
    Watchdog::tellWhenHung([] { return std::string("the failing call is ") + g_failing; });
    for (int i = 0; i < 3; ++i)
        ASSERT_EQ(liveOnce(GetParam(), m_parent), "");
    for (const Import& import : libraryImports()) {
        if (!canFail(import) || s_failed[import.slot] >= livesEach())
            continue;
        Watchdog::progress();
        g_failing = import.function.c_str();
        SCOPED_TRACE(import.function);
        if (!liveWithout(import))
            continue;
        ++s_failed[import.slot];
        if (kLetGo.contains(import.function))
            continue;
        // The first time the framework or the system may have made something that it keeps.
        const Leftovers leftovers;
        liveWithout(import);
        leftovers.expectNone();
    }
}

INSTANTIATE_TEST_SUITE_P(Controls, Faults, ::testing::ValuesIn(lives()),
                         [](const auto& info) { return std::string(info.param.name); });
INSTANTIATE_TEST_SUITE_P(Uses, Faults, ::testing::ValuesIn(uses()),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(FaultTable, FindsWhatTheLibraryImports)
{
    std::set<std::string> imported;
    for (const Import& import : libraryImports())
        imported.insert(import.function);
    EXPECT_GT(imported.size(), 150u);
    for (const char* name : {"CreateSolidBrush", "SetWindowPos", "GetDC", "LoadCursorW", "LockResource"})
        EXPECT_TRUE(imported.contains(name)) << name;
}

TEST(FaultTable, AFailureComesOnceAndWithAnError)
{
    for (const Import& import : libraryImports()) {
        if (import.function != "GetDC")
            continue;
        const auto call = [&] { return reinterpret_cast<HDC(WINAPI*)(HWND)>(*import.slot)(nullptr); };
        const FirstCallFails fault(import, 0);
        EXPECT_FALSE(fault.happened());
        ::SetLastError(0);
        EXPECT_EQ(call(), nullptr);
        EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY));
        EXPECT_TRUE(fault.happened());
        const HDC dc = call();
        EXPECT_NE(dc, nullptr);
        ::ReleaseDC(nullptr, dc);
    }
}
