// What a message costs on its way to a handler: our message map against a window procedure with a switch. Both
// have 100 handlers and the last one is hit.
#include <afxwin.h>

#include <catch2/catch.hpp>

#include <utility>

namespace
{

constexpr UINT kFirst = WM_APP;
constexpr int kHandlers = 100;
constexpr UINT kLast = kFirst + kHandlers - 1;

LRESULT answer(int handler, WPARAM wParam)
{
    return handler + static_cast<LRESULT>(wParam);
}

#define TEN(macro, tens)                                                                                          \
    macro(tens + 0) macro(tens + 1) macro(tens + 2) macro(tens + 3) macro(tens + 4) macro(tens + 5)               \
        macro(tens + 6) macro(tens + 7) macro(tens + 8) macro(tens + 9)
#define HUNDRED(macro)                                                                                            \
    TEN(macro, 0) TEN(macro, 10) TEN(macro, 20) TEN(macro, 30) TEN(macro, 40) TEN(macro, 50) TEN(macro, 60)       \
    TEN(macro, 70) TEN(macro, 80) TEN(macro, 90)

LRESULT CALLBACK switchProcedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
#define CASE(n)                                                                                                   \
    case kFirst + (n):                                                                                            \
        return answer(n, wParam);
        HUNDRED(CASE)
#undef CASE
    }
    return ::DefWindowProcW(wnd, message, wParam, lParam);
}

class MappedWnd : public CWnd
{
protected:
    template <int N>
    afx_msg LRESULT on(WPARAM wParam, LPARAM)
    {
        return answer(N, wParam);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MappedWnd, CWnd)
#define ENTRY(n) ON_MESSAGE(kFirst + (n), on<(n)>)
    HUNDRED(ENTRY)
#undef ENTRY
END_MESSAGE_MAP()

HWND makeSwitchWindow()
{
    WNDCLASSW cls{};
    cls.lpfnWndProc = &switchProcedure;
    cls.hInstance = ::GetModuleHandleW(nullptr);
    cls.lpszClassName = L"SwitchWindow";
    ::RegisterClassW(&cls);
    return ::CreateWindowExW(0, cls.lpszClassName, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, cls.hInstance,
                             nullptr);
}

} // namespace

TEST_CASE("Dispatching a message to the last of 100 handlers")
{
    const HWND plain = makeSwitchWindow();
    MappedWnd mapped;
    REQUIRE(mapped.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    REQUIRE(::SendMessageW(plain, kLast, 5, 0) == 104);
    REQUIRE(::SendMessageW(mapped.m_hWnd, kLast, 5, 0) == 104);

    BENCHMARK("window procedure with a switch") { return ::SendMessageW(plain, kLast, 5, 0); };
    BENCHMARK("message map [at most 1.5]") { return ::SendMessageW(mapped.m_hWnd, kLast, 5, 0); };

    ::DestroyWindow(plain);
    mapped.DestroyWindow();
}
