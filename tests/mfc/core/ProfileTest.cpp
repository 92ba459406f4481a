// The profile, in the registry and in an INI file.
#include "Texts.h"
#include "resource.h"
#include <testkit/TemporaryProfile.h>

#include <afxwin.h>

#include <cstring>

using Kind = ovo::testkit::TemporaryProfile::Kind;

namespace
{

class Profile : public ::testing::TestWithParam<Kind>
{
protected:
    ovo::testkit::TemporaryProfile profile{GetParam()};
    CWinApp& app = *AfxGetApp();
};

std::string nameOfKind(const ::testing::TestParamInfo<Kind>& info)
{
    return info.param == Kind::Registry ? "Registry" : "IniFile";
}

INSTANTIATE_TEST_SUITE_P(Both, Profile, ::testing::Values(Kind::Registry, Kind::IniFile), nameOfKind);

/// A value as it stands in the registry under the profile's key.
struct RegistryValue
{
    LSTATUS status;
    DWORD type = 0;
    std::vector<BYTE> data;

    RegistryValue(const std::wstring& key, LPCWSTR name)
    {
        HKEY opened = nullptr;
        status = ::RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &opened);
        if (status != ERROR_SUCCESS)
            return;
        DWORD size = 0;
        status = ::RegQueryValueExW(opened, name, nullptr, &type, nullptr, &size);
        data.resize(size);
        if (status == ERROR_SUCCESS)
            status = ::RegQueryValueExW(opened, name, nullptr, nullptr, data.data(), &size);
        ::RegCloseKey(opened);
    }
};

} // namespace

TEST_P(Profile, WhatIsNotThereIsTheDefault)
{
    EXPECT_EQ(app.GetProfileString(L"none", L"none"), L"");
    EXPECT_EQ(app.GetProfileString(L"none", L"none", L"default"), L"default");
    EXPECT_EQ(app.GetProfileInt(L"none", L"none", 7), 7u);
    EXPECT_EQ(static_cast<int>(app.GetProfileInt(L"none", L"none", -7)), -7);
    BYTE* data = reinterpret_cast<BYTE*>(1);
    UINT bytes = 5;
    EXPECT_FALSE(app.GetProfileBinary(L"none", L"none", &data, &bytes));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(bytes, 0u);
}

TEST_P(Profile, TextsComeBack)
{
    for (const LPCWSTR text : {L"a text", L"", L"1,2", L"a=b;c", L"=1,2"}) {
        EXPECT_TRUE(app.WriteProfileString(L"settings", L"entry", text));
        EXPECT_EQ(app.GetProfileString(L"settings", L"entry", L"default"), text);
    }
}

TEST_P(Profile, ALongTextComesBackWhole)
{
    const CString text(L'x', 5000);
    EXPECT_TRUE(app.WriteProfileString(L"settings", L"entry", text));
    EXPECT_EQ(app.GetProfileString(L"settings", L"entry"), text);
    EXPECT_EQ(app.GetProfileString(L"settings", L"none", text), text);
}

TEST_P(Profile, NumbersComeBack)
{
    for (const int number : {0, 1, 123456789, -5, INT_MIN}) {
        EXPECT_TRUE(app.WriteProfileInt(L"settings", L"number", number));
        EXPECT_EQ(static_cast<int>(app.GetProfileInt(L"settings", L"number", 99)), number);
    }
}

TEST_P(Profile, BytesComeBack)
{
    BYTE written[256];
    for (int i = 0; i < 256; ++i)
        written[i] = static_cast<BYTE>(i);
    EXPECT_TRUE(app.WriteProfileBinary(L"settings", L"bytes", written, sizeof written));
    BYTE* data = nullptr;
    UINT bytes = 0;
    ASSERT_TRUE(app.GetProfileBinary(L"settings", L"bytes", &data, &bytes));
    ASSERT_EQ(bytes, sizeof written);
    EXPECT_EQ(std::memcmp(data, written, bytes), 0);
    delete[] data;
}

TEST_P(Profile, AnEmptyEntryNameIsANameLikeAnyOther)
{
    EXPECT_TRUE(app.WriteProfileString(L"settings", L"other", L"3,4"));
    EXPECT_TRUE(app.WriteProfileString(L"settings", L"", L"1,2"));
    EXPECT_EQ(app.GetProfileString(L"settings", L""), L"1,2");
    EXPECT_TRUE(app.WriteProfileString(L"settings", L"", L"5,6"));
    EXPECT_EQ(app.GetProfileString(L"settings", L""), L"5,6");
    EXPECT_EQ(app.GetProfileString(L"settings", L"other"), L"3,4");
}

TEST_P(Profile, SectionsAndEntriesAreApartAndWithoutCase)
{
    EXPECT_TRUE(app.WriteProfileString(L"One", L"Entry", L"1"));
    EXPECT_TRUE(app.WriteProfileString(L"Two", L"Entry", L"2"));
    EXPECT_EQ(app.GetProfileString(L"oNE", L"eNTRY"), L"1");
    EXPECT_EQ(app.GetProfileString(L"two", L"ENTRY"), L"2");
    EXPECT_EQ(app.GetProfileString(L"One", L"Other", L"none"), L"none");
}

TEST_P(Profile, ANullTextDeletesTheEntry)
{
    app.WriteProfileString(L"settings", L"kept", L"k");
    app.WriteProfileString(L"settings", L"gone", L"g");
    EXPECT_TRUE(app.WriteProfileString(L"settings", L"gone", nullptr));
    EXPECT_EQ(app.GetProfileString(L"settings", L"gone", L"default"), L"default");
    EXPECT_EQ(app.GetProfileString(L"settings", L"kept"), L"k");
}

TEST_P(Profile, ANullEntryDeletesTheSection)
{
    app.WriteProfileString(L"gone", L"entry", L"g");
    app.WriteProfileInt(L"gone", L"number", 1);
    app.WriteProfileString(L"kept", L"entry", L"k");
    EXPECT_TRUE(app.WriteProfileString(L"gone", nullptr, L"ignored"));
    EXPECT_EQ(app.GetProfileString(L"gone", L"entry", L"default"), L"default");
    EXPECT_EQ(app.GetProfileInt(L"gone", L"number", 9), 9u);
    EXPECT_EQ(app.GetProfileString(L"kept", L"entry"), L"k");
}

// Where it is

TEST(RegistryProfile, LiesUnderTheCompanyAndTheProgram)
{
    const ovo::testkit::TemporaryProfile profile(Kind::Registry);
    CWinApp& app = *AfxGetApp();
    app.WriteProfileString(L"settings", L"text", L"abc");
    app.WriteProfileInt(L"settings", L"number", 5);
    app.WriteProfileString(L"settings", L"", L"unnamed");
    BYTE bytes[] = {1, 2, 3};
    app.WriteProfileBinary(L"settings", L"bytes", bytes, 3);

    const std::wstring section = profile.place() + L"\\settings";
    const RegistryValue text(section, L"text");
    EXPECT_EQ(text.status, ERROR_SUCCESS);
    EXPECT_EQ(text.type, DWORD{REG_SZ});
    EXPECT_EQ(text.data.size(), 4 * sizeof(wchar_t)) << "with its end";
    const RegistryValue number(section, L"number");
    EXPECT_EQ(number.type, DWORD{REG_DWORD});
    EXPECT_EQ(RegistryValue(section, L"bytes").type, DWORD{REG_BINARY});
    EXPECT_EQ(RegistryValue(section, nullptr).status, ERROR_SUCCESS) << "the key's default value";
}

TEST(RegistryProfile, AValueOfAnotherTypeIsTheDefault)
{
    const ovo::testkit::TemporaryProfile profile(Kind::Registry);
    CWinApp& app = *AfxGetApp();
    app.WriteProfileString(L"settings", L"text", L"12");
    app.WriteProfileInt(L"settings", L"number", 5);
    EXPECT_EQ(app.GetProfileInt(L"settings", L"text", 9), 9u);
    EXPECT_EQ(app.GetProfileString(L"settings", L"number", L"default"), L"default");
}

TEST(RegistryProfile, ATextWithoutItsEndIsReadWhole)
{
    const ovo::testkit::TemporaryProfile profile(Kind::Registry);
    CWinApp& app = *AfxGetApp();
    const HKEY section = app.GetSectionKey(L"settings");
    ASSERT_NE(section, nullptr);
    ::RegSetValueExW(section, L"text", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"abc"), 3 * sizeof(wchar_t));
    ::RegCloseKey(section);
    EXPECT_EQ(app.GetProfileString(L"settings", L"text"), L"abc");
}

TEST(RegistryProfile, KeysArePassedToTheCaller)
{
    const ovo::testkit::TemporaryProfile profile(Kind::Registry);
    const HKEY program = AfxGetApp()->GetAppRegistryKey();
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(::RegSetValueExW(program, L"direct", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"x"), 4),
              ERROR_SUCCESS);
    EXPECT_EQ(::RegCloseKey(program), ERROR_SUCCESS);
    EXPECT_EQ(RegistryValue(profile.place(), L"direct").status, ERROR_SUCCESS);
}

TEST(RegistryProfile, TheCompanyMayBeAStringResource)
{
    const ovo::testkit::TemporaryProfile profile(Kind::Registry);
    CWinApp& app = *AfxGetApp();
    const CString name = app.m_pszProfileName;
    app.SetRegistryKey(IDS_COMPANY);
    EXPECT_STREQ(app.m_pszRegistryKey, L"ovoui tests");
    EXPECT_STREQ(app.m_pszProfileName, app.m_pszAppName) << "sections lie under the program's name";
    std::free(const_cast<LPTSTR>(app.m_pszProfileName));
    app.m_pszProfileName = ::_wcsdup(name);
}

TEST(IniProfile, LiesInTheFileThatIsNamed)
{
    const ovo::testkit::TemporaryProfile profile(Kind::IniFile);
    CWinApp& app = *AfxGetApp();
    app.WriteProfileString(L"settings", L"text", L"abc");
    app.WriteProfileInt(L"settings", L"number", -5);
    wchar_t text[16];
    ::GetPrivateProfileStringW(L"settings", L"text", L"", text, 16, profile.place().c_str());
    EXPECT_STREQ(text, L"abc");
    ::GetPrivateProfileStringW(L"settings", L"number", L"", text, 16, profile.place().c_str());
    EXPECT_STREQ(text, L"-5");
}
