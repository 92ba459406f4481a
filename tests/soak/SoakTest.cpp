// The gallery under random inputs: no crash, hang or exception, and what is alive does not grow.
//
//   OVO_SOAK_STEPS=1000000 OVO_SEED=7 ./test_soak.exe     as many inputs as wanted, 20,000 by default
//   OVO_SOAK_PAGE=lists ./test_soak.exe                   on one page alone
//   OVO_SOAK_BIRTHS=1 ./test_soak.exe                     tells which inputs made the objects that are left
#include "Births.h"
#include "Driver.h"
#include "support/GdiTypes.h"
#include "support/HeapCounter.h"
#include "WindowKinds.h"
#include "gallery/GalleryScene.h"

#include <testkit/CallStack.h>
#include <testkit/GdiCounter.h>
#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>
#include <testkit/MemoryCounter.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>
#include <testkit/Watchdog.h>
#include <testkit/WindowCounter.h>

#include <commctrl.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <numeric>

using namespace ovo::testkit;
using namespace std::chrono_literals;

namespace
{

constexpr int kBatch = 500; // inputs, after which everything is closed and counted
/// The share of a run by which the system and the frame have made most of what they keep. The longer the run,
/// the rarer is what it meets for the first time.
constexpr int kWarmShare = 10;
constexpr int kLeastWarm = 1000; // inputs
/// What may come later, however long the run: cursors, fonts and system brushes that are shown for the first
/// time and shared from then on. A page or a control that keeps an object each time exceeds it soon.
constexpr int kLateObjects = 60;
/// The frames of the two bars that can float, with a dock bar each, the clipboard's window, and tips.
constexpr int kLateWindows = 8;
constexpr int kLeap = 8;                  // GDI objects of a batch, from which on they are told
constexpr ULONGLONG kSlow = 3000;         // milliseconds for an input, from which on it is told
constexpr long long kBytesPerInput = 400; ///< see docs/testing.md for what takes them

/// Counts the controls of the system of which many keep a font under Wine when they go: month calendars and
/// fields for addresses.
class FontKeepers
{
public:
    FontKeepers()
        : m_hook(::SetWindowsHookExW(WH_CBT, &onHook, nullptr, ::GetCurrentThreadId()))
    {
        s_made = 0;
    }
    ~FontKeepers() { ::UnhookWindowsHookEx(m_hook); }
    FontKeepers(const FontKeepers&) = delete;
    FontKeepers& operator=(const FontKeepers&) = delete;

    int made() const { return s_made; }

private:
    static LRESULT CALLBACK onHook(int code, WPARAM wParam, LPARAM lParam)
    {
        wchar_t kind[16] = L"";
        if (code == HCBT_CREATEWND &&
            ::GetClassNameW(reinterpret_cast<HWND>(wParam), kind, static_cast<int>(std::size(kind))))
            s_made += ::lstrcmpW(kind, MONTHCAL_CLASSW) == 0 || ::lstrcmpW(kind, WC_IPADDRESSW) == 0;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    inline static int s_made = 0;
    HHOOK m_hook;
};

/// The name of the one page to stay on; empty for all.
std::wstring pageFromEnvironment()
{
    const char* const text = std::getenv("OVO_SOAK_PAGE");
    const std::string name = text ? text : "";
    return {name.begin(), name.end()};
}

int numberFrom(const char* variable, int otherwise)
{
    const char* const text = std::getenv(variable);
    return text && std::atoi(text) > 0 ? std::atoi(text) : otherwise;
}

/// What is alive when nothing but the first page is open.
struct Count
{
    int gdi; ///< but for the fonts that the system has kept
    int windows;
    int blocks;      ///< on the heaps
    long long bytes; ///< on the heaps
    std::map<std::string, int> objects;
    std::map<std::string, int> kinds; ///< of windows
};

Count count(const FontKeepers& keepers)
{
    std::map<std::string, int> objects = gdiObjects();
    const int fonts = std::accumulate(objects.begin(), objects.end(), 0, [](int sum, const auto& object) {
        return object.first.starts_with("font ") ? sum + object.second : sum;
    });
    // No more than there are: a calendar that a date field drops keeps none.
    const int kept = std::min(keepers.made(), fonts);
    return {GdiCounter::live() - kept, WindowCounter::live(),
            HeapCounter::live(),       static_cast<long long>(MemoryCounter::live()),
            std::move(objects),        windowKinds()};
}

/// What the system makes when it is first asked for, and shares from then on: cursors, and the shell's
/// images.
void warmSystem()
{
    for (LPCWSTR name : {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_CROSS, IDC_SIZENWSE, IDC_SIZENESW, IDC_SIZEWE,
                         IDC_SIZENS, IDC_SIZEALL, IDC_NO, IDC_HAND, IDC_APPSTARTING, IDC_HELP})
        ::LoadCursorW(nullptr, name);
    SHFILEINFOW info{};
    ::SHGetFileInfoW(L"C:\\", 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_ICON);
    ::DestroyIcon(info.hIcon);
}

BOOL WINAPI openNothing(SHELLEXECUTEINFOW*)
{
    return TRUE;
}

/// While it lives, a crash, a hang, and what cannot be closed are told with the inputs that led there.
class Telling
{
public:
    explicit Telling(Driver& driver)
    {
        s_driver = &driver;
        driver.whenStuck = [] { tell("what is open cannot be closed"); };
        Watchdog::tellWhenHung([&driver] { return driver.story(); });
        ::SetUnhandledExceptionFilter(&onCrash);
        std::signal(SIGABRT, &onAbort);
    }
    ~Telling()
    {
        std::signal(SIGABRT, SIG_DFL);
        ::SetUnhandledExceptionFilter(nullptr);
        Watchdog::tellWhenHung(nullptr);
        s_driver = nullptr;
    }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

private:
    static void tell(const char* what)
    {
        std::fprintf(stderr, "%s; %s%s", what, s_driver ? s_driver->story().c_str() : "",
                     describeOwnCalls().c_str());
        std::fflush(stderr);
    }

    /// The crash goes its way afterwards.
    static LONG WINAPI onCrash(EXCEPTION_POINTERS*)
    {
        tell("a crash");
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static void onAbort(int) { tell("the program gives up"); }

    inline static const Driver* s_driver = nullptr;
};

/// Is there at each input: tells of slow ones, and finds out, where that is wanted, which objects they make.
class Onlooker
{
public:
    explicit Onlooker(Driver& driver)
        : m_driver(driver)
    {
        driver.beforeInput = [this] { look(); };
    }
    ~Onlooker() { m_driver.beforeInput = nullptr; }
    Onlooker(const Onlooker&) = delete;
    Onlooker& operator=(const Onlooker&) = delete;

    const Births& births() const { return m_births; }

private:
    void look()
    {
        const ULONGLONG now = ::GetTickCount64();
        if (now > m_lastInput + kSlow)
            std::printf("%llu s: %s\n", (now - m_lastInput) / 1000, m_driver.lastInputs().c_str());
        m_lastInput = now;
        if (m_wantsBirths)
            m_births.look(m_driver.lastInputs());
    }

    Driver& m_driver;
    Births m_births;
    const bool m_wantsBirths = std::getenv("OVO_SOAK_BIRTHS") != nullptr;
    ULONGLONG m_lastInput = ::GetTickCount64();
};

void printReach(const char* title, const std::map<std::wstring, int>& reached)
{
    std::printf("%s:", title);
    for (const auto& [name, times] : reached)
        std::printf(" %ls %d", name.c_str(), times);
    std::printf("\n");
}

int inputsOf(const Reach& reach)
{
    return std::accumulate(reach.actions.begin(), reach.actions.end(), 0,
                           [](int sum, const auto& action) { return sum + action.second; });
}

void printCounts(const std::vector<Count>& counts)
{
    for (size_t i : {size_t{0}, counts.size() / 3, counts.size() - 1})
        std::printf("after %zu inputs: %d GDI objects, %d windows, %d blocks with %lld bytes\n",
                    (i + 1) * kBatch, counts[i].gdi, counts[i].windows, counts[i].blocks, counts[i].bytes);
}

/// A batch after which much more is alive: what that is.
void tellLeap(const Count& before, const Count& now, const std::string& births)
{
    if (now.gdi > before.gdi + kLeap)
        std::printf("%d GDI objects more:\n%s%s", now.gdi - before.gdi,
                    gdiGrowth(before.objects, now.objects).c_str(), births.c_str());
}

int warmInputs(int all)
{
    return std::max(kLeastWarm, all / kWarmShare);
}

/// What is alive stays as it was when the run was warm.
void expectFlat(const std::vector<Count>& counts)
{
    const auto inputsDone = static_cast<int>(counts.size()) * kBatch;
    const auto warmCount = static_cast<size_t>(warmInputs(inputsDone) / kBatch);
    ASSERT_GT(counts.size(), warmCount) << "the run is too short to say";
    const Count& warm = counts[warmCount - 1];
    const Count& last = counts.back();
    EXPECT_LE(last.gdi, warm.gdi + kLateObjects) << gdiGrowth(warm.objects, last.objects);
    EXPECT_LE(last.windows, warm.windows + kLateWindows) << gdiGrowth(warm.kinds, last.kinds);
    const auto inputs = static_cast<long long>((counts.size() - warmCount) * kBatch);
    std::printf("%lld bytes more for each input since it was warm\n%s%s", (last.bytes - warm.bytes) / inputs,
                gdiGrowth(warm.objects, last.objects).c_str(), gdiGrowth(warm.kinds, last.kinds).c_str());
    EXPECT_LE(last.bytes, warm.bytes + inputs * kBytesPerInput);
}

/// The gallery and who drives it.
class SoakRun
{
public:
    SoakRun(unsigned seed, const std::wstring& onlyPage)
        : m_driver(m_scene.frame(), seed, onlyPage)
    {
    }

    /// A fatal failure where the gallery does not stand it.
    void drive(int steps)
    {
        try {
            for (int done = 0; done < steps; done += kBatch) {
                ASSERT_TRUE(batch()) << "what is open cannot be closed; " << m_driver.story();
                takeStock(done);
            }
        } catch (const std::exception& error) {
            FAIL() << "an exception: " << error.what() << "; " << m_driver.story();
        } catch (CException* error) {
            error->Delete();
            FAIL() << "an exception of the framework; " << m_driver.story();
        }
    }

    const Reach& reach() const { return m_driver.reach(); }
    const Births& births() const { return m_onlooker.births(); }
    /// After each batch.
    const std::vector<Count>& counts() const { return m_counts; }

private:
    /// Then the first page is open alone; false where something else cannot be closed.
    bool batch()
    {
        m_driver.begin(kBatch);
        for (int second = 0; second < 120; ++second) {
            Watchdog::progress();
            if (GuiThread::runUntil([&] { return m_driver.isOver(); }, 1s))
                break;
        }
        const bool over = m_driver.isOver();
        GuiThread::settle(); // what was posted last may open a menu, which the driver still closes
        m_driver.stop();
        if (!over || !m_scene.isOpen())
            return false;
        m_scene.frame().openPage(pageTable().front());
        GuiThread::settle();
        return true;
    }

    void takeStock(int done)
    {
        m_counts.push_back(count(m_keepers));
        if (m_counts.size() > 1)
            tellLeap(m_counts[m_counts.size() - 2], m_counts.back(), births().since(done));
        std::printf("%d inputs, %llu s, %d GDI objects\n", done + kBatch,
                    (::GetTickCount64() - m_begin) / 1000, m_counts.back().gdi);
        std::fflush(stdout);
    }

    const FontKeepers m_keepers; // first: the gallery makes calendars, too
    GalleryScene m_scene;
    Driver m_driver;
    const Telling m_telling{m_driver};
    const Onlooker m_onlooker{m_driver};
    std::vector<Count> m_counts;
    const ULONGLONG m_begin = ::GetTickCount64();
};

void expectReached(const Reach& reach, int steps, bool everyPage)
{
    printReach("pages", reach.pages);
    printReach("controls", reach.controls);
    printReach("inputs", reach.actions);
    std::printf("inputs while a dialog, box or menu was open: %d\n", reach.modal);
    if (steps >= 3000 && everyPage) {
        EXPECT_EQ(reach.pages.size(), pageTable().size()) << "a page was not reached";
    }
    if (everyPage) {
        EXPECT_GT(reach.modal, steps / 50);
    }
    EXPECT_GE(inputsOf(reach), steps * 99 / 100) << "some pages have no pose to show, all else is an input";
}

class Soak : public ::testing::Test
{
protected:
    Soak() { TestApp::instance().showBoxes(); }

    TemporaryProfile m_profile;
    const ImportPatch m_noBrowser{L"ovoui.dll", "ShellExecuteExW", reinterpret_cast<void*>(&openNothing)};
};

} // namespace

TEST_F(Soak, TheGalleryStandsRandomInputs)
{
    const int steps = numberFrom("OVO_SOAK_STEPS", 20000);
    const unsigned seed = static_cast<unsigned>(numberFrom("OVO_SEED", 1));
    std::printf("seed %u, %d inputs\n", seed, steps);
    std::fflush(stdout);

    warmSystem();
    const std::wstring onlyPage = pageFromEnvironment();
    SoakRun run(seed, onlyPage);
    ASSERT_NO_FATAL_FAILURE(run.drive(steps));

    expectReached(run.reach(), steps, onlyPage.empty());
    std::printf("%s", run.births().since(warmInputs(steps)).c_str());
    printCounts(run.counts());
    expectFlat(run.counts());
}
