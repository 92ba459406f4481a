// What the system shows of the version of the files that are shipped.
#include <ovoui/version.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

namespace
{

class ShippedFile : public testing::TestWithParam<const wchar_t*>
{
protected:
    void SetUp() override
    {
        const DWORD size = ::GetFileVersionInfoSizeW(GetParam(), nullptr);
        m_record.resize(size);
        ASSERT_TRUE(size && ::GetFileVersionInfoW(GetParam(), 0, size, m_record.data()));
    }

    std::wstring text(const wchar_t* name) const
    {
        const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
        void* value = nullptr;
        UINT length = 0;
        if (!::VerQueryValueW(m_record.data(), path.c_str(), &value, &length) || length == 0)
            return L"(none)";
        return static_cast<const wchar_t*>(value);
    }

    const VS_FIXEDFILEINFO& numbers() const
    {
        void* value = nullptr;
        UINT length = 0;
        EXPECT_TRUE(::VerQueryValueW(m_record.data(), L"\\", &value, &length));
        return *static_cast<const VS_FIXEDFILEINFO*>(value);
    }

private:
    std::vector<BYTE> m_record;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(All, ShippedFile,
                         testing::Values(L"ovoui.dll", L"ovosvg11.dll", L"ovouires.dll", L"ovomfc.dll",
                                         L"ovocor11.dll", L"ovomsg11.dll", L"gallery.exe", L"ovo-update-lint.exe"));

TEST_P(ShippedFile, TellsItsVersionAndItsName)
{
    EXPECT_EQ(text(L"FileVersion"), L"" OVOUI_VERSION_STRING);
    EXPECT_EQ(text(L"ProductVersion"), L"" OVOUI_VERSION_STRING);
    EXPECT_EQ(text(L"OriginalFilename"), GetParam());
    EXPECT_EQ(text(L"FileDescription").substr(0, 6), L"ovoui ");
    EXPECT_EQ(numbers().dwFileVersionMS, MAKELONG(OVOUI_VERSION_MINOR, OVOUI_VERSION_MAJOR));
    EXPECT_EQ(numbers().dwFileVersionLS, MAKELONG(0, OVOUI_VERSION_PATCH));
}
