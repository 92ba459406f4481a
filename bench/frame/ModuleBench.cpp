// Loading and unloading ovoui.dll with all that it needs, in a process that has none of it; printed beside a
// library of the system's.
#include <windows.h>

#include <catch2/catch.hpp>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

double medianOf(const std::string& library)
{
    const std::string command = "bench_module_host.exe " + library + " 40";
    FILE* pipe = ::_popen(command.c_str(), "r");
    if (!pipe)
        return 0;
    char line[64]{};
    const bool read = std::fgets(line, sizeof line, pipe) != nullptr;
    ::_pclose(pipe);
    return read ? std::atof(line) : 0;
}

} // namespace

TEST_CASE("Loading and unloading the library")
{
    const double system = medianOf("msimg32.dll");
    const double ours = medianOf("ovoui.dll");
    REQUIRE(system > 0);
    REQUIRE(ours > 0);
    std::printf("\nRATIOS Loading and unloading the library\n  %-64s %14.1f ns  %8.3f\n  %-64s %14.1f ns  %8.3f\n",
                "msimg32.dll", system, 1.0, "ovoui.dll with all its dependencies", ours, ours / system);
}
