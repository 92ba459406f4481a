#include "GalleryScene.h"

#include "model/MillionList.h"
#include "resource.h"

#include <gtest/gtest.h>

namespace
{

/// Which row of the list of a million rows has a part of a text, from the first row on.
int found(const wchar_t* part)
{
    GalleryScene scene;
    scene.open(L"lists");
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_STRING | LVFI_PARTIAL;
    wanted.psz = part;
    return static_cast<int>(::SendMessageW(scene.control(IDC_LISTS_MILLION), LVM_FINDITEMW,
                                           static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&wanted)));
}

} // namespace

TEST(MillionRows, AreFoundByAPartOfTheirTexts)
{
    EXPECT_EQ(found(L"row 1234"), 1233);
    EXPECT_EQ(found(L"W 5"), 4) << "whatever the case";
    EXPECT_EQ(found(L"998001"), 998) << "the square, before the number of a row";
    EXPECT_EQ(found(L"1000000000000"), MillionList::kRows - 1) << "the last row";
}

TEST(MillionRows, WithATextThatNoneHasAreNotFound)
{
    EXPECT_EQ(found(L"column"), -1);
    EXPECT_EQ(found(L"\u0663"), -1);
}
