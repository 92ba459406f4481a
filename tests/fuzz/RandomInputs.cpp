// Drives a fuzz target where the fuzzer itself does not run: random inputs, the same ones in every run.
//
//     fuzz_UNIT RUNS
#include <afxole.h>
#include <afxwin.h>

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <objidl.h>
#include <random>
#include <vector>

// The headers of GDI+ use min and max without saying whose.
using std::max;
using std::min;
#include <gdiplus.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace
{

constexpr std::size_t kLongest = 96;

CWinApp theApp;
std::vector<std::uint8_t> g_input;

void showInput(int)
{
    std::fprintf(stderr, "with the input:");
    for (const std::uint8_t byte : g_input)
        std::fprintf(stderr, " %02x", byte);
    std::fprintf(stderr, "\n");
    std::_Exit(EXIT_FAILURE);
}

} // namespace

int main(int, char** arguments)
{
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_HIDE))
        return EXIT_FAILURE;
    ULONG_PTR gdiPlus = 0;
    const Gdiplus::GdiplusStartupInput startup;
    Gdiplus::GdiplusStartup(&gdiPlus, &startup, nullptr);
    std::signal(SIGABRT, showInput);
    std::signal(SIGSEGV, showInput);

    std::mt19937 random(1);
    const int runs = std::atoi(arguments[1]);
    for (int run = 0; run < runs; ++run) {
        g_input.resize(random() % (kLongest + 1));
        for (std::uint8_t& byte : g_input)
            byte = static_cast<std::uint8_t>(random());
        LLVMFuzzerTestOneInput(g_input.data(), g_input.size());
    }
    Gdiplus::GdiplusShutdown(gdiPlus);
    std::printf("%d inputs\n", runs);
    return runs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
