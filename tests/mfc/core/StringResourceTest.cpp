// CString and AfxLoadString: string resources of this program. The way through other modules is tested with
// them.
#include "Texts.h"
#include "resource.h"

#include <afxwin.h>

TEST(StringResources, AreLoadedByNumber)
{
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_FORMAT));
    EXPECT_EQ(text, L"%d of %s");
    EXPECT_TRUE(text.LoadString(IDS_LAST_OF_BLOCK));
    EXPECT_EQ(text, L"last of a block");
    EXPECT_TRUE(text.LoadString(IDS_FIRST_OF_BLOCK));
    EXPECT_EQ(text, L"first of a block");
}

TEST(StringResources, HaveNoLimitOfLength)
{
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_LONG));
    EXPECT_GT(text.GetLength(), 256);
    EXPECT_EQ(text.Right(8), L"is here.");
}

TEST(StringResources, AMissingOneEmptiesTheText)
{
    for (const UINT id : {UINT{IDS_EMPTY}, 60000u, 0u}) {
        CString text = L"before";
        EXPECT_FALSE(text.LoadString(id));
        EXPECT_TRUE(text.IsEmpty());
        text = L"before";
        EXPECT_FALSE(text.LoadString(::GetModuleHandleW(nullptr), id));
        EXPECT_TRUE(text.IsEmpty());
    }
}

TEST(StringResources, ANumberInPlaceOfATextLoadsIt)
{
    EXPECT_EQ(CString(MAKEINTRESOURCEW(IDS_QUESTION)), L"Really?");
    EXPECT_EQ(CString(MAKEINTRESOURCEA(IDS_QUESTION)), L"Really?");
    EXPECT_EQ(CString(MAKEINTRESOURCEW(60000)), L"");
}

TEST(StringResources, AreLoadedFromOneModuleInALanguage)
{
    const HINSTANCE program = ::GetModuleHandleW(nullptr);
    CString text;
    EXPECT_TRUE(text.LoadString(program, IDS_FORMAT, MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN)));
    EXPECT_EQ(text, L"%d von %s");
    EXPECT_TRUE(text.LoadString(program, IDS_FORMAT, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)));
    EXPECT_EQ(text, L"%d of %s");
    EXPECT_TRUE(text.LoadString(program, IDS_QUESTION));
    EXPECT_EQ(text, L"Really?");
    EXPECT_FALSE(text.LoadString(program, AFX_IDS_IDLEMESSAGE)) << "which is the framework's";
}

TEST(StringResources, TheFrameworksOwnAreFoundLast)
{
    CString text;
    EXPECT_TRUE(text.LoadString(AFX_IDS_IDLEMESSAGE));
    EXPECT_EQ(text, L"Ready");
}

TEST(StringResources, EveryStandardCommandHasItsPrompt)
{
    for (const UINT id :
         {ID_FILE_NEW, ID_FILE_OPEN, ID_FILE_SAVE, ID_EDIT_COPY, ID_EDIT_UNDO, ID_APP_ABOUT, ID_APP_EXIT,
          ID_HELP, ID_VIEW_TOOLBAR, ID_VIEW_STATUS_BAR, ID_WINDOW_SPLIT, ID_NEXT_PANE}) {
        CString text;
        EXPECT_TRUE(text.LoadString(id)) << std::hex << id;
        CString prompt;
        CString tip;
        EXPECT_TRUE(AfxExtractSubString(prompt, text, 0));
        EXPECT_TRUE(AfxExtractSubString(tip, text, 1)) << text;
        EXPECT_FALSE(prompt.IsEmpty());
        EXPECT_FALSE(tip.IsEmpty());
    }
    for (const UINT command : {SC_SIZE, SC_MOVE, SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE, SC_RESTORE}) {
        CString text;
        EXPECT_TRUE(text.LoadString(AFX_IDS_SCFIRST + (command - SC_SIZE) / 16)) << std::hex << command;
    }
}

TEST(StringResources, IntoABufferAreCutToIt)
{
    wchar_t buffer[6];
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    EXPECT_EQ(AfxLoadString(IDS_QUESTION, buffer, 5), 4);
    EXPECT_STREQ(buffer, L"Real");
    EXPECT_EQ(buffer[5], L'#');
    EXPECT_EQ(AfxLoadString(60000, buffer, 5), 0);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(AfxLoadString(IDS_QUESTION, buffer, 0), 0);
    wchar_t whole[256];
    EXPECT_EQ(AfxLoadString(IDS_QUESTION, whole), 7);
    EXPECT_STREQ(whole, L"Really?");
}

TEST(StringResources, TheFrameworksOwnTextsAreWordedAsThePlatformsAre)
{
    const struct
    {
        UINT id;
        const wchar_t* text;
    } rows[] = {
        {ID_EDIT_REPEAT, L"Repeats the last action\nRepeat"},
        {ID_EDIT_UNDO, L"Undoes the last action\nUndo"},
        {ID_FILE_PRINT_DIRECT, L"Prints the active document using the current settings\nPrint"},
        {AFX_IDS_SCRESTORE, L"Restores the window to normal size"},
        {AFX_IDP_NO_ERROR_AVAILABLE, L"An unknown error occurred."},
        {AFX_IDP_INTERNAL_FAILURE, L"An internal error occurred. Save your work and restart the program."},
    };
    for (const auto& row : rows) {
        CString text;
        EXPECT_TRUE(text.LoadString(row.id)) << row.id;
        EXPECT_STREQ(text.GetString(), row.text);
    }
}
