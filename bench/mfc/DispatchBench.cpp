// What a message costs on its way to a handler: message maps of several shapes against a window procedure
// with a switch that has as many cases, and a message without a handler against the system's own procedure.
#include <afxwin.h>

#include <catch2/catch.hpp>

#include <type_traits>

namespace
{

constexpr UINT kFirst = WM_APP;
constexpr UINT kUnhandled = WM_APP + 0x2000;
constexpr UINT kFirstCommand = 100;

LRESULT answer(int handler, WPARAM wParam)
{
    return handler + static_cast<LRESULT>(wParam);
}

// clang-format off
#define TEN(macro, n) macro(n + 0) macro(n + 1) macro(n + 2) macro(n + 3) macro(n + 4) \
    macro(n + 5) macro(n + 6) macro(n + 7) macro(n + 8) macro(n + 9)
#define HUNDRED(macro, n) TEN(macro, n + 0) TEN(macro, n + 10) TEN(macro, n + 20) TEN(macro, n + 30) \
    TEN(macro, n + 40) TEN(macro, n + 50) TEN(macro, n + 60) TEN(macro, n + 70) TEN(macro, n + 80) TEN(macro, n + 90)
#define THREE_HUNDRED(macro) HUNDRED(macro, 0) HUNDRED(macro, 100) HUNDRED(macro, 200)

#define CASE(n) case kFirst + (n): return answer(n, wParam);
#define COMMAND_CASE(n) case kFirstCommand + (n): return 1;
#define ENTRY(n) ON_MESSAGE(kFirst + (n), &ThisClass::template on<(n)>)
#define COMMAND_ENTRY(n) ON_COMMAND(kFirstCommand + (n), &ThisClass::template onCommand<(n)>)
// clang-format on

/// The handlers that all maps lead to.
class Answering : public CWnd
{
public:
    int lastCommand = -1;

protected:
    template <int N>
    afx_msg LRESULT on(WPARAM wParam, LPARAM)
    {
        return answer(N, wParam);
    }
    template <int N>
    afx_msg void onCommand()
    {
        lastCommand = N;
    }
};

class ThreeEntries : public Answering
{
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThreeEntries, Answering)
    ENTRY(0)
    ENTRY(1)
    ENTRY(2)
END_MESSAGE_MAP()

LRESULT CALLBACK threeCases(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        CASE(0)
        CASE(1)
        CASE(2)
    }
    return ::DefWindowProcW(wnd, message, wParam, lParam);
}

class ManyEntries : public Answering
{
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ManyEntries, Answering)
    THREE_HUNDRED(ENTRY)
END_MESSAGE_MAP()

LRESULT CALLBACK manyCases(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        THREE_HUNDRED(CASE)
    }
    return ::DefWindowProcW(wnd, message, wParam, lParam);
}

template <int Depth>
using Level = std::integral_constant<int, Depth>;

/// A class with ten entries of its own and as many bases like it as its level says, down to ManyEntries.
template <class Depth>
class Layer;

template <class Depth>
using Below = std::conditional_t<Depth::value == 1, ManyEntries, Layer<Level<Depth::value - 1>>>;

template <class Depth>
class Layer : public Below<Depth>
{
    DECLARE_MESSAGE_MAP()
};

#define LAYER_ENTRY(n) ON_MESSAGE(kFirst + 1000 + Depth::value * 10 + (n), &ThisClass::template on<(n)>)
BEGIN_TEMPLATE_MESSAGE_MAP(Layer, Depth, Below<Depth>)
    TEN(LAYER_ENTRY, 0)
END_MESSAGE_MAP()

using FortyBases = Layer<Level<40>>;

class Commands : public Answering
{
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Commands, Answering)
    THREE_HUNDRED(COMMAND_ENTRY)
END_MESSAGE_MAP()

LRESULT CALLBACK commandCases(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        switch (LOWORD(wParam)) {
            THREE_HUNDRED(COMMAND_CASE)
        }
    return ::DefWindowProcW(wnd, message, wParam, lParam);
}

/// A window of the system alone.
class PlainWindow
{
public:
    PlainWindow(WNDPROC procedure, const wchar_t* name)
    {
        WNDCLASSW cls{};
        cls.lpfnWndProc = procedure;
        cls.hInstance = ::GetModuleHandleW(nullptr);
        cls.lpszClassName = name;
        ::RegisterClassW(&cls);
        m_wnd =
            ::CreateWindowExW(0, name, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, cls.hInstance, nullptr);
    }
    ~PlainWindow() { ::DestroyWindow(m_wnd); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    operator HWND() const { return m_wnd; }

private:
    HWND m_wnd;
};

template <class Wnd>
class MappedWindow : public Wnd
{
public:
    MappedWindow()
    {
        this->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    }
    ~MappedWindow() override { this->DestroyWindow(); }
};

void compareAnswers(HWND plain, HWND mapped, UINT message)
{
    const LRESULT expected = answer(static_cast<int>(message - kFirst), 5);
    REQUIRE(::SendMessageW(plain, message, 5, 0) == expected);
    REQUIRE(::SendMessageW(mapped, message, 5, 0) == expected);
    BENCHMARK("window procedure with a switch")
    {
        return ::SendMessageW(plain, message, 5, 0);
    };
    BENCHMARK("message map [at most 1.15]")
    {
        return ::SendMessageW(mapped, message, 5, 0);
    };
}

} // namespace

TEST_CASE("A message to the last of 3 handlers")
{
    const PlainWindow plain(&threeCases, L"ThreeCases");
    const MappedWindow<ThreeEntries> mapped;
    compareAnswers(plain, mapped.m_hWnd, kFirst + 2);
}

TEST_CASE("A message to the last of 300 handlers")
{
    const PlainWindow plain(&manyCases, L"ManyCases");
    const MappedWindow<ManyEntries> mapped;
    compareAnswers(plain, mapped.m_hWnd, kFirst + 299);
}

TEST_CASE("A message to a handler below 40 bases with 10 handlers each")
{
    const PlainWindow plain(&manyCases, L"ManyCases");
    const MappedWindow<FortyBases> mapped;
    compareAnswers(plain, mapped.m_hWnd, kFirst + 299);
}

TEST_CASE("A message without a handler, 40 bases")
{
    const PlainWindow plain(&::DefWindowProcW, L"NoCases");
    const MappedWindow<FortyBases> mapped;
    BENCHMARK("DefWindowProc")
    {
        return ::SendMessageW(plain, kUnhandled, 5, 0);
    };
    BENCHMARK("message map [at most 1.3]")
    {
        return ::SendMessageW(mapped.m_hWnd, kUnhandled, 5, 0);
    };
}

TEST_CASE("A command to the last of 300 handlers")
{
    constexpr UINT kLast = kFirstCommand + 299;
    const PlainWindow plain(&commandCases, L"CommandCases");
    const MappedWindow<Commands> mapped;
    REQUIRE(::SendMessageW(plain, WM_COMMAND, kLast, 0) == 1);
    REQUIRE(::SendMessageW(mapped.m_hWnd, WM_COMMAND, kLast, 0) == 1);
    REQUIRE(mapped.lastCommand == 299);
    BENCHMARK("window procedure with a switch")
    {
        return ::SendMessageW(plain, WM_COMMAND, kLast, 0);
    };
    BENCHMARK("message map, the question whether it is enabled included")
    {
        return ::SendMessageW(mapped.m_hWnd, WM_COMMAND, kLast, 0);
    };
}
