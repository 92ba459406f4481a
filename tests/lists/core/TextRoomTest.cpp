// Room for a text and its zero: a write behind its end ends the program.
#include <ovoui/lists/core/TextRoom.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using ovoui::lists::TextRoom;

TEST(TextRoom, TakesATextOfItsLengthAndTheZero)
{
    for (std::size_t length = 0; length <= 300; ++length) {
        const auto room = std::make_unique<TextRoom>(length);
        wchar_t* const text = room->data();
        text[length] = L'\0';
        std::fill_n(text, length, L'x');
        EXPECT_EQ(room->data(), text) << length;
        EXPECT_EQ(std::wstring(room->data()), std::wstring(length, L'x')) << length;
    }
}
