// MakeShortString against its definition, with the system's fonts.
#include "ListScene.h"

#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

#include <random>

using namespace ovo::testkit;
using namespace std::string_literals;

namespace
{

/// A context with a font.
class Ruler
{
public:
    Ruler(const wchar_t* face, int height, int weight = FW_NORMAL, bool italic = false)
        : m_picture(10, 10)
    {
        m_font.CreateFont(-height, 0, 0, 0, weight, italic, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                          CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, face);
        m_old = ::SelectObject(dc(), m_font.GetSafeHandle());
    }
    ~Ruler() { ::SelectObject(dc(), m_old); }

    HDC dc() const { return m_picture.dc(); }

    int extent(const std::wstring& text, std::size_t length) const
    {
        SIZE size{};
        ::GetTextExtentPoint32W(dc(), text.c_str(), static_cast<int>(length), &size);
        return size.cx;
    }
    int extent(const std::wstring& text) const { return extent(text, text.size()); }

    LPCWSTR shorten(LPCWSTR text, int width, int offset) const
    {
        return COVOListCtrlEx::MakeShortString(CDC::FromHandle(dc()), text, width, offset);
    }
    std::wstring shorten(const std::wstring& text, int width, int offset) const
    {
        return shorten(text.c_str(), width, offset);
    }

private:
    Picture m_picture;
    CFont m_font;
    HGDIOBJ m_old = nullptr;
};

std::wstring randomText(std::mt19937& random, std::size_t length)
{
    std::wstring text;
    while (text.size() < length) {
        const unsigned kind = random() % 16;
        const unsigned value = random();
        if (kind < 11)
            text += static_cast<wchar_t>(0x20 + value % 0x5F);
        else if (kind == 11)
            text += L'\t';
        else if (kind == 12)
            text += static_cast<wchar_t>(0x300 + value % 0x40); // combining
        else if (kind == 13)
            text += static_cast<wchar_t>(0x4E00 + value % 0x100);
        else if (kind == 14)
            text += static_cast<wchar_t>(0x5D0 + value % 0x1A); // right to left
        else
            (text += static_cast<wchar_t>(0xD83D)) += static_cast<wchar_t>(0xDE00 + value % 0x40);
    }
    return text.substr(0, length); // may cut a pair
}

int g_measured;

BOOL WINAPI countPoint(HDC dc, LPCWSTR text, int count, LPSIZE size)
{
    ++g_measured;
    return ::GetTextExtentPoint32W(dc, text, count, size);
}

BOOL WINAPI countExtents(HDC dc, LPCWSTR text, int count, int room, LPINT fit, LPINT extents, LPSIZE size)
{
    ++g_measured;
    return ::GetTextExtentExPointW(dc, text, count, room, fit, extents, size);
}

/// As some platforms do it: nothing for who does not ask how many characters fit, and within a text
/// characters that take less than on their own.
BOOL WINAPI narrowExtents(HDC dc, LPCWSTR text, int count, int room, LPINT fit, LPINT extents, LPSIZE size)
{
    const BOOL measured = ::GetTextExtentExPointW(dc, text, count, room, fit, extents, size);
    for (int i = 0; i < count; ++i)
        extents[i] = !fit ? 0 : text[i] >= 0x300 ? extents[i] * 2 / 3 : extents[i];
    return measured;
}

} // namespace

TEST(ShortString, IsWhatTheDefinitionGivesForRandomTexts)
{
    const Ruler rulers[] = {{L"Tahoma", 11},       {L"Tahoma", 17, FW_BOLD},
                            {L"Courier New", 13},  {L"Times New Roman", 20, FW_NORMAL, true},
                            {L"MS Shell Dlg", 11}, {L"System", 16}};
    std::mt19937 random(20240511);
    for (const Ruler& ruler : rulers)
        for (int round = 0; round < 600; ++round) {
            const std::wstring text = randomText(random, 1 + random() % (round % 6 ? 40 : 263));
            const int width = static_cast<int>(random() % static_cast<unsigned>(ruler.extent(text) + 30)) - 5;
            const int offset = static_cast<int>(random() % 3) * 4;
            const std::wstring expected = shortByDefinition(ruler.dc(), text, width, offset);
            if (expected.size() > 263)
                continue; // more than the buffer holds
            ASSERT_EQ(ruler.shorten(text, width, offset), expected)
                << "width " << width << ", offset " << offset << ", round " << round;
        }
}

TEST(ShortString, GivesTheTextItselfWhenItFits)
{
    const Ruler ruler(L"Tahoma", 11);
    const std::wstring text = L"fits";
    const int width = ruler.extent(text) + 12;
    EXPECT_EQ(ruler.shorten(text.c_str(), width, 12), text.c_str());
    EXPECT_NE(ruler.shorten(text.c_str(), width - 1, 12), text.c_str());
    const std::wstring empty;
    EXPECT_EQ(ruler.shorten(empty.c_str(), -5, 12), empty.c_str());
    const std::wstring longText(5000, L'i');
    EXPECT_EQ(ruler.shorten(longText.c_str(), ruler.extent(longText), 0), longText.c_str());
}

TEST(ShortString, MeasuresTheDotsAsFourCharacters)
{
    const Ruler ruler(L"Tahoma", 11);
    const std::wstring text = L"mmmmmmmmmm";
    SIZE dots{};
    ::GetTextExtentPoint32W(ruler.dc(), L"...", 4, &dots);
    const int exact = ruler.extent(text, 5) + dots.cx;
    EXPECT_EQ(ruler.shorten(text, exact, 0), L"mmmmm...");
    EXPECT_EQ(ruler.shorten(text, exact - 1, 0), L"mmmm...");
}

TEST(ShortString, IsEmptyWithoutRoom)
{
    const Ruler ruler(L"Tahoma", 11);
    EXPECT_EQ(ruler.shorten(std::wstring(L"text"), 0, 0), L"");
    EXPECT_EQ(ruler.shorten(std::wstring(L"text"), -10, 0), L"");
    EXPECT_EQ(ruler.shorten(std::wstring(L"m"), 0, 0), L"");
    EXPECT_EQ(ruler.shorten(std::wstring(L"mmm"), ruler.extent(L"m") - 1, 0), L"");
    EXPECT_EQ(ruler.shorten(std::wstring(L"mmm"), ruler.extent(L"m"), 0), L"m...");
}

TEST(ShortString, ASingleCharacterStaysWhole)
{
    const Ruler ruler(L"Tahoma", 11);
    EXPECT_EQ(ruler.shorten(std::wstring(L"m"), 1, 12), L"m");
}

TEST(ShortString, MayCutASurrogatePair)
{
    // Characters are counted as the system counts them: a half of a pair can be left over.
    const Ruler ruler(L"Tahoma", 11);
    const std::wstring text = L"ab\xD83D\xDE00"
                              L"cdefgh";
    bool cut = false;
    for (int width = 1; width < ruler.extent(text); ++width) {
        const std::wstring result = ruler.shorten(text, width, 0);
        EXPECT_EQ(result, shortByDefinition(ruler.dc(), text, width, 0));
        cut = cut || result == L"ab\xD83D...";
    }
    EXPECT_TRUE(cut);
}

TEST(ShortString, NeverLeavesItsBuffer)
{
    const Ruler ruler(L"Tahoma", 11);
    for (std::size_t length = 255; length <= 270; ++length) {
        std::wstring text(length - 1, L'i');
        text += L'W'; // wider than the dots: everything before it fits together with them
        for (int less = 1; less < 12; ++less) {
            const std::wstring result = ruler.shorten(text, ruler.extent(text) - less, 0);
            EXPECT_LE(result.size(), 263u);
            EXPECT_TRUE(result.ends_with(L"i...")) << length;
        }
    }
    for (const std::size_t length : {300u, 1000u, 100000u}) {
        const std::wstring text(length, L'i');
        const std::wstring result = ruler.shorten(text, ruler.extent(text) - 1, 0);
        EXPECT_EQ(result, std::wstring(260, L'i') + L"...");
        EXPECT_EQ(ruler.shorten(text, 50, 4), shortByDefinition(ruler.dc(), text.substr(0, 100), 50, 4));
    }
}

TEST(ShortString, TakesItsOwnResult)
{
    const Ruler ruler(L"Tahoma", 11);
    const LPCWSTR first = ruler.shorten(L"a rather long text, longer than that", 100, 0);
    const std::wstring copy = first;
    EXPECT_EQ(std::wstring(ruler.shorten(first, 60, 0)), shortByDefinition(ruler.dc(), copy, 60, 0));
}

TEST(ShortString, MeasuresAtMostTwiceHoweverLongTheText)
{
    const Ruler ruler(L"Tahoma", 11);
    const ImportPatch ours(L"ovoui.dll", "GetTextExtentExPointW", reinterpret_cast<void*>(&countExtents));
    const ImportPatch frameworks(L"ovomfc.dll", "GetTextExtentPoint32W",
                                 reinterpret_cast<void*>(&countPoint));
    for (const std::size_t length : {1u, 2u, 20u, 260u, 263u, 264u, 1000u, 100000u})
        for (const int width : {-1, 0, 5, 50, 500, 50000000}) {
            g_measured = 0;
            ruler.shorten(std::wstring(length, L'm'), width, 4);
            EXPECT_LE(g_measured, 2) << length << " characters, width " << width;
            EXPECT_GE(g_measured, 1);
        }
}

TEST(ShortString, IsTheSameWhereATextIsMeasuredOtherwiseThanItsBeginnings)
{
    const Ruler ruler(L"Tahoma", 11);
    const ImportPatch patch(L"ovoui.dll", "GetTextExtentExPointW", reinterpret_cast<void*>(&narrowExtents));
    for (const std::wstring& text :
         {std::wstring(30, L'm'), std::wstring(30, 0x5D0), L"plain and \x05D0\x05D1\x05D2\x05D3 mixed"s})
        for (int width = 1; width < ruler.extent(text); width += 3)
            EXPECT_EQ(std::wstring(ruler.shorten(text, width, 4)),
                      shortByDefinition(ruler.dc(), text, width, 4))
                << "width " << width;
}
