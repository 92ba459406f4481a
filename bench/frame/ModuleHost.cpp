// Loads and unloads a library a number of times and prints the median of one round in nanoseconds:
//   bench_module_host NAME.dll ROUNDS
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char** argv)
{
    if (argc < 3)
        return 1;
    std::vector<long long> times;
    for (int round = std::atoi(argv[2]); round > 0; --round) {
        const auto start = std::chrono::steady_clock::now();
        const HMODULE module = ::LoadLibraryA(argv[1]);
        if (!module)
            return 2;
        ::FreeLibrary(module);
        const auto end = std::chrono::steady_clock::now();
        times.push_back(std::chrono::duration_cast<std::chrono::nanoseconds>(end - start).count());
    }
    std::sort(times.begin(), times.end());
    std::printf("%lld\n", times[times.size() / 2]);
    return 0;
}
