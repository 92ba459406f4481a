// The numbers in the resource module that hosts know: the names may change, the numbers not.
#include <ovoui/frame/Language.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace
{

using Numbers = std::vector<std::pair<int, int>>; ///< each as it is, and as hosts know it

const Numbers kDialogs{{IDD_MESSAGE_BOX, 1505},
                       {IDD_SYSTEM_INFO, 1506},
                       {IDD_UPDATE_AVAILABLE, 1507},
                       {IDD_POPUP_SLIDER, 20200},
                       {IDD_COLOUR_PICKER, 20201}};

const Numbers kStrings{
    {IDS_BUTTON_ABORT, 20100},      {IDS_BUTTON_OK, 20101},         {IDS_BUTTON_CANCEL, 20102},
    {IDS_BUTTON_RETRY, 20103},      {IDS_BUTTON_IGNORE, 20104},     {IDS_BUTTON_YES, 20105},
    {IDS_BUTTON_NO, 20106},         {IDS_BUTTON_YES_TO_ALL, 20107}, {IDS_BUTTON_NO_TO_ALL, 20108},
    {IDS_BUTTON_HELP, 20109},       {IDS_MESSAGE_CAPTION, 20110},   {IDS_DELETE_ONE, 20112},
    {IDS_DELETE_MANY, 20113},       {IDS_DELETE_CAPTION, 20114},    {IDS_COLOUR_RED, 20212},
    {IDS_COLOUR_GREEN, 20213},      {IDS_COLOUR_BLUE, 20214},       {IDS_COLOUR_HUE, 20215},
    {IDS_COLOUR_SATURATION, 20216}, {IDS_COLOUR_VALUE, 20217},      {IDS_COLOUR_LIGHTNESS, 20218},
    {IDS_COLOUR_SPACE_RGB, 20219},  {IDS_COLOUR_SPACE_HSV, 20220},  {IDS_COLOUR_SPACE_HLS, 20221},
    {IDS_UPDATE_AVAILABLE, 20222},  {IDS_UPDATE_NONE, 20223}};

const Numbers kControls{{IDC_SYSTEM_INFO_COPY, 1001},
                        {IDC_SYSTEM_INFO_TEXT, 1002},
                        {IDC_COLOUR_SLIDER_1, 3432},
                        {IDC_COLOUR_SLIDER_2, 3433},
                        {IDC_COLOUR_SLIDER_3, 3434},
                        {IDC_WHEEL, 3435},
                        {IDC_PATCH, 3436},
                        {IDC_COLOUR_VALUE_1, 3437},
                        {IDC_COLOUR_VALUE_2, 3438},
                        {IDC_COLOUR_VALUE_3, 3439},
                        {IDC_COLOUR_CAPTION_1, 3440},
                        {IDC_COLOUR_CAPTION_2, 3441},
                        {IDC_COLOUR_CAPTION_3, 3442},
                        {IDC_COLOUR_SLIDER_ALPHA, 3443},
                        {IDC_COLOUR_VALUE_ALPHA, 3444},
                        {IDC_COLOUR_CAPTION_ALPHA, 3445},
                        {IDC_POPUP_SLIDER, 20505},
                        {IDC_COLOUR_SPACE, 20506},
                        {IDC_MESSAGE_TEXT, 20507},
                        {IDC_UPDATE_TEXT, 20508}};

const Numbers kCommands{{ID_DROP_COPY, 1191},   {ID_DROP_LINK, 1194},   {ID_DROP_MOVE, 5610},
                        {ID_TREE_DELETE, 5146}, {ID_TREE_REDRAW, 5234}, {ID_TREE_RENAME, 5598}};

const Numbers kOthers{{IDR_TREE_ACCELERATORS, 7471}, {IDR_DROP_MENU, 7472}, {IDC_DRAG_COLOUR, 742}};

HMODULE module()
{
    textLanguages(); // a call that makes this program need the library
    return ::GetModuleHandleW(L"ovouires.dll");
}

bool has(int number, LPCWSTR type)
{
    return ::FindResourceW(module(), MAKEINTRESOURCEW(number), type) != nullptr;
}

} // namespace

TEST(ResourceNumbers, AreThoseThatHostsKnow)
{
    for (const Numbers& kind : {kDialogs, kStrings, kControls, kCommands, kOthers})
        for (const auto& [number, known] : kind)
            EXPECT_EQ(number, known);
}

TEST(ResourceNumbers, AreInTheModule)
{
    for (const auto& dialog : kDialogs)
        EXPECT_TRUE(has(dialog.second, RT_DIALOG)) << dialog.second;
    for (const auto& string : kStrings) {
        wchar_t text[256];
        EXPECT_GT(::LoadStringW(module(), static_cast<UINT>(string.second), text, 256), 0) << string.second;
    }
    EXPECT_TRUE(has(7471, RT_ACCELERATOR));
    EXPECT_TRUE(has(7472, RT_MENU));
    EXPECT_TRUE(has(742, RT_GROUP_CURSOR));
}
