// What looking through a list keeps in memory, however long the list is.
#include <ovoui/update/core/ListSearch.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

using namespace ovoui::update;

/// The bytes of the heap that are in use, as AddressSanitizer counts them. Not every compiler has its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace
{

/// The most bytes that a search has in use after any line of a list of so many rows.
std::size_t mostInUse(int rows)
{
    RunningProduct running;
    running.product = L"Board";
    running.version = {11, 5, 0, 7};
    const std::size_t before = __sanitizer_get_current_allocated_bytes();
    std::size_t most = 0;
    ListSearch search(running);
    for (int row = 0; row < rows; ++row) {
        search.feedLine(row % 2 ? L"#update,Board,,Windows,Intel64,11.*,12.1,https://example.org/12,\"Some"
                                : L"#update,Other,,,,11.*,12.1,https://example.org/other,\"Some");
        search.feedLine(L"news\"");
        most = std::max(most, __sanitizer_get_current_allocated_bytes() - before);
    }
    search.finish();
    EXPECT_TRUE(search.offer());
    return most;
}

} // namespace

TEST(ListMemory, DoesNotGrowWithTheList)
{
    mostInUse(10); // what is made once stays
    const std::size_t few = mostInUse(100);
    const std::size_t many = mostInUse(100'000);
    RecordProperty("few", std::to_string(few));
    RecordProperty("many", std::to_string(many));
    EXPECT_GT(few, 0u);
    EXPECT_EQ(many, few);
}
