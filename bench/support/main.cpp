// The benchmarks' entry point: an MFC program without a window of its own, or a plain one in a native build.
#define CATCH_CONFIG_RUNNER
#include <catch2/catch.hpp>

#ifdef _WIN32
#include <afxwin.h>

static CWinApp theApp;

static bool startFramework()
{
    return AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOW);
}
#else
static bool startFramework()
{
    return true;
}
#endif

int main(int argc, char** argv)
{
    return startFramework() ? Catch::Session().run(argc, argv) : 1;
}
