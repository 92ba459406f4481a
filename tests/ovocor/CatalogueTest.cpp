#include <ovomsg/ovomsg.h>

#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <string>

TEST(Catalogue, HasTheTextsOfItsNumbers)
{
    for (const unsigned id :
         {OVOMSG_URL_SCHEME, OVOMSG_URL_INVALID, OVOMSG_URL_NOT_OPENED, OVOMSG_UPDATE_LIST_INCOMPLETE}) {
        const std::wstring text = ovoMsg(id);
        EXPECT_EQ(text.find(L"missing"), text.npos) << id;
        EXPECT_EQ(text.find_first_of(L"\r\n"), text.npos) << id;
    }
}

TEST(Catalogue, HasTheNumbersThatHostsKnow)
{
    EXPECT_EQ(OVOMSG_URL_SCHEME, 277u);
    EXPECT_EQ(OVOMSG_URL_INVALID, 278u);
    EXPECT_EQ(OVOMSG_URL_NOT_OPENED, 279u);
    EXPECT_EQ(OVOMSG_UPDATE_LIST_INCOMPLETE, 281u);
}

TEST(Catalogue, HasFormatsThatShowTheirArguments)
{
    const wchar_t* const address = L"file:///C:/100%25";
    for (const unsigned id : {OVOMSG_URL_SCHEME, OVOMSG_UPDATE_LIST_INCOMPLETE}) {
        const std::wstring text = stringPrintf(ovoMsg(id).c_str(), address);
        EXPECT_NE(text.find(address), text.npos) << id;
        EXPECT_EQ(text.find(L"%s"), text.npos) << id;
    }
    for (const unsigned id : {OVOMSG_URL_INVALID, OVOMSG_URL_NOT_OPENED}) {
        const std::wstring text = stringPrintf(ovoMsg(id).c_str(), address, L"no such oak");
        EXPECT_NE(text.find(address), text.npos) << id;
        EXPECT_TRUE(text.ends_with(L"no such oak")) << id;
    }
}

TEST(Catalogue, SaysWhyAnAddressCannotBeOpened)
{
    const wchar_t* const address = L"oak";
    EXPECT_EQ(stringPrintf(ovoMsg(OVOMSG_URL_SCHEME).c_str(), address),
              L"The address \"oak\" cannot be opened because it does not start with http:, https: or ftp:. "
              L"Check its spelling, "
              L"or look for the page on the maker's website.");
    EXPECT_EQ(stringPrintf(ovoMsg(OVOMSG_URL_INVALID).c_str(), address, L"No name."),
              L"The address \"oak\" is not valid. Check its spelling. The system says: No name.");
    EXPECT_EQ(stringPrintf(ovoMsg(OVOMSG_URL_NOT_OPENED).c_str(), address, L"No browser."),
              L"The address \"oak\" cannot be opened. Copy it into your web browser, or choose a default "
              L"browser in the "
              L"settings of Windows. The system says: No browser.");
    EXPECT_TRUE(ovoMsg(OVOMSG_UPDATE_LIST_INCOMPLETE)
                    .ends_with(L"Try again later, or look for updates on the maker's website."));
}

TEST(Catalogue, NamesANumberThatItDoesNotHave)
{
    for (const unsigned id : {0u, 1u, 280u, 9999u, 0xFFFFFFFFu}) {
        const std::wstring text = ovoMsg(id);
        EXPECT_NE(text.find(std::to_wstring(id)), text.npos);
        EXPECT_EQ(text.find(L'%'), text.npos) << "it may be used as a format";
    }
}
