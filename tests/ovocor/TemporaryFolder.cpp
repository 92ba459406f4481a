#include "TemporaryFolder.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace
{

std::wstring freshPath()
{
    wchar_t folder[MAX_PATH]{};
    ::GetTempPathW(MAX_PATH, folder);
    static unsigned s_count = 0;
    return std::wstring(folder) + L"ovo" + std::to_wstring(::GetCurrentProcessId()) + L"-" +
           std::to_wstring(++s_count);
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : m_path(freshPath())
{
    EXPECT_TRUE(::CreateDirectoryW(m_path.c_str(), nullptr)) << ::GetLastError();
}

TemporaryFolder::~TemporaryFolder()
{
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW((m_path + L"\\*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
                ::DeleteFileW((m_path + L'\\' + found.cFileName).c_str());
        } while (::FindNextFileW(search, &found));
        ::FindClose(search);
    }
    ::RemoveDirectoryW(m_path.c_str());
}

std::wstring TemporaryFolder::write(const std::wstring& name, std::string_view bytes) const
{
    const std::wstring path = m_path + L'\\' + name;
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << ::GetLastError();
    DWORD written = 0;
    EXPECT_TRUE(::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    EXPECT_EQ(written, bytes.size());
    ::CloseHandle(file);
    return path;
}
