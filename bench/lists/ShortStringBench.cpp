// Cutting a text to a width, against measuring it anew for every character less.
#include "BenchLists.h"

#include <catch2/catch.hpp>

namespace
{

int extentOf(CDC& dc, const std::wstring& text, int length)
{
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.c_str(), length, &size);
    return size.cx;
}

std::wstring stepByStep(CDC& dc, const std::wstring& text, int width, int offset)
{
    const int length = static_cast<int>(text.size());
    if (extentOf(dc, text, length) + offset <= width)
        return text;
    const int dots = extentOf(dc, L"...", 4);
    int kept = length - 1;
    while (kept > 1 && extentOf(dc, text, kept) + offset + dots > width)
        --kept;
    return text.substr(0, static_cast<std::size_t>(kept)) + L"...";
}

} // namespace

TEST_CASE("shortening a text of 260 characters")
{
    CClientDC dc(nullptr);
    std::wstring text;
    while (text.size() < 260)
        text += L"a longer text ";
    text.resize(260);
    for (const int width : {100, 600}) {
        REQUIRE(stepByStep(dc, text, width, 12) ==
                COVOListCtrlEx::MakeShortString(&dc, text.c_str(), width, 12));
        const std::string to = " to " + std::to_string(width) + " pixels";
        BENCHMARK("step by step" + to + " [baseline]")
        {
            return stepByStep(dc, text, width, 12).size();
        };
        BENCHMARK("MakeShortString" + to + " [at most 0.1]")
        {
            return COVOListCtrlEx::MakeShortString(&dc, text.c_str(), width, 12);
        };
    }
}
