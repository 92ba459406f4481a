// Tables as text for other programs.
#include <ovoui/lists/core/TableText.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

TEST(TableText, TabsBetweenCellsAndALineEndBehindRows)
{
    EXPECT_EQ(tabSeparated({{L"a", L"b"}, {L"c", L""}}), L"a\tb\r\nc\t\r\n");
    EXPECT_EQ(tabSeparated({}), L"");
    EXPECT_EQ(tabSeparated({{L"one\ttwo\r\nthree"}}), L"one two  three\r\n");
}

TEST(TableText, HtmlWithAndWithoutHeadings)
{
    const std::vector<TableRow> rows{{L"A", L"B"}, {L"1 < 2 & 3 > 2", L"x\r\ny"}};
    EXPECT_EQ(htmlTable(rows, true), L"<table><tr><th>A</th><th>B</th></tr>\r\n"
                                     L"<tr><td>1 &lt; 2 &amp; 3 &gt; 2</td><td>x<br>y</td></tr>\r\n</table>");
    EXPECT_EQ(htmlTable({{L"A"}}, false), L"<table><tr><td>A</td></tr>\r\n</table>");
}

TEST(TableText, TheClipboardsDescriptionSaysWhereThePartsAre)
{
    const std::string fragment = "<table>\xC3\xA4</table>";
    const std::string all = htmlForClipboard(fragment);
    const auto place = [&](const std::string& name) {
        return std::stoul(all.substr(all.find(name + ":") + name.size() + 1, 10));
    };
    EXPECT_EQ(all.substr(place("StartFragment"), place("EndFragment") - place("StartFragment")), fragment);
    EXPECT_EQ(place("EndHTML"), all.size());
    EXPECT_EQ(all.substr(place("StartHTML"), 6), "<html>");
}
