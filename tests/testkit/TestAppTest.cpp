#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ovo::testkit;

namespace
{

bool keyExists(const std::wstring& path)
{
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    ::RegCloseKey(key);
    return true;
}

bool fileExists(const std::wstring& path)
{
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

TEST(TestApp, WritesMessageBoxesDownInsteadOfShowingThem)
{
    EXPECT_EQ(AfxMessageBox(L"Careful!", MB_YESNO | MB_ICONSTOP, 42), IDOK);

    ASSERT_EQ(TestApp::instance().boxes().size(), 1U);
    EXPECT_EQ(TestApp::instance().boxes()[0].text, L"Careful!");
    EXPECT_EQ(TestApp::instance().boxes()[0].type, static_cast<UINT>(MB_YESNO | MB_ICONSTOP));
    EXPECT_EQ(TestApp::instance().boxes()[0].helpId, 42U);
}

TEST(TestApp, AnswersBoxesInOrder)
{
    TestApp::instance().answerBoxes({IDNO, IDRETRY});

    EXPECT_EQ(AfxMessageBox(L"a"), IDNO);
    EXPECT_EQ(AfxMessageBox(L"b"), IDRETRY);
    EXPECT_EQ(AfxMessageBox(L"c"), IDOK);
}

TEST(TestApp, CallsTheTestWhileABoxWaits)
{
    TestApp& app = TestApp::instance();
    std::size_t asked = 0;
    app.onBox = [&] { asked = app.boxes().size(); };
    app.answerBoxes({IDNO});

    EXPECT_EQ(AfxMessageBox(L"a"), IDNO);

    EXPECT_EQ(asked, 1U) << "it is written down by then";
}

TEST(TestApp, WhatIsCalledAtABoxMayTakeItselfAway)
{
    TestApp& app = TestApp::instance();
    auto made = std::make_shared<int>(0);
    bool lasts = false;
    app.onBox = [&lasts, own = std::move(made)] {
        const std::weak_ptr<int> watched = own;
        bool& outcome = lasts;
        TestApp::instance().onBox = nullptr;
        outcome = !watched.expired();
    };

    AfxMessageBox(L"a");

    EXPECT_TRUE(lasts) << "until it returns";
    EXPECT_FALSE(app.onBox);
}

TEST(TestApp, ForgetsBetweenTests)
{
    EXPECT_TRUE(TestApp::instance().boxes().empty()) << "the boxes of the tests before";
    EXPECT_FALSE(TestApp::instance().onBox) << "nor does a test before call its own variables";
}

TEST(TestApp, WritesCallsForHelpDown)
{
    AfxGetApp()->HtmlHelp(77, HH_DISPLAY_TOPIC);
    AfxGetApp()->WinHelp(78, HELP_QUIT);

    ASSERT_EQ(TestApp::instance().helps().size(), 2U);
    EXPECT_EQ(TestApp::instance().helps()[0].data, 77U);
    EXPECT_EQ(TestApp::instance().helps()[0].command, static_cast<UINT>(HH_DISPLAY_TOPIC));
    EXPECT_EQ(TestApp::instance().helps()[1].data, 78U);
    EXPECT_EQ(TestApp::instance().helps()[1].command, static_cast<UINT>(HELP_QUIT));
}

TEST(TemporaryProfile, KeepsTheProfileInTheRegistryAndRemovesIt)
{
    std::wstring place;
    {
        const TemporaryProfile profile;
        place = profile.place();
        EXPECT_TRUE(AfxGetApp()->WriteProfileInt(L"settings", L"width", 320));
        EXPECT_TRUE(keyExists(place + L"\\settings"));
        EXPECT_EQ(AfxGetApp()->GetProfileInt(L"settings", L"width", 0), 320U);
    }
    EXPECT_FALSE(keyExists(place));
}

TEST(TemporaryProfile, KeepsTheProfileInAFileAndRemovesIt)
{
    std::wstring place;
    {
        const TemporaryProfile profile{TemporaryProfile::Kind::IniFile};
        place = profile.place();
        EXPECT_TRUE(AfxGetApp()->WriteProfileString(L"settings", L"name", L"oak"));
        EXPECT_TRUE(fileExists(place));
        EXPECT_EQ(AfxGetApp()->GetProfileString(L"settings", L"name"), L"oak");
    }
    EXPECT_FALSE(fileExists(place));
}

TEST(TemporaryProfile, GivesTheFormerPlaceBack)
{
    const std::wstring name = AfxGetApp()->m_pszProfileName;
    const LPCTSTR key = AfxGetApp()->m_pszRegistryKey;
    {
        const TemporaryProfile outer;
        EXPECT_TRUE(AfxGetApp()->WriteProfileInt(L"settings", L"n", 1));
        {
            const TemporaryProfile inner;
            EXPECT_EQ(AfxGetApp()->GetProfileInt(L"settings", L"n", 0), 0U) << "each begins empty";
        }
        EXPECT_EQ(AfxGetApp()->GetProfileInt(L"settings", L"n", 0), 1U);
    }
    EXPECT_EQ(AfxGetApp()->m_pszProfileName, name);
    EXPECT_EQ(AfxGetApp()->m_pszRegistryKey, key);
}
