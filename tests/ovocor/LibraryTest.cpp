#include <ovocor/Library.h>

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::wstring pathOf(HMODULE module)
{
    wchar_t path[1024]{};
    ::GetModuleFileNameW(module, path, static_cast<DWORD>(std::size(path)));
    return path;
}

std::wstring folderOf(const std::wstring& path)
{
    return path.substr(0, path.find_last_of(L'\\'));
}

std::wstring systemFolder()
{
    wchar_t path[MAX_PATH]{};
    ::GetSystemDirectoryW(path, MAX_PATH);
    return path;
}

bool same(const std::wstring& a, const std::wstring& b)
{
    return ::CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE) == CSTR_EQUAL;
}

/// A library for the time of a scope.
class Loaded
{
public:
    explicit Loaded(HMODULE module)
        : m_module(module)
    {
    }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;
    ~Loaded()
    {
        if (m_module)
            ::FreeLibrary(m_module);
    }

    HMODULE get() const { return m_module; }
    explicit operator bool() const { return m_module != nullptr; }

private:
    HMODULE m_module;
};

/// Copies a library of ours, under another name, to a place that is searched for libraries by default.
class Decoy
{
public:
    explicit Decoy(std::wstring path)
        : m_path(std::move(path))
    {
        const std::wstring original = folderOf(pathOf(nullptr)) + L"\\ovomsg11.dll";
        EXPECT_TRUE(::CopyFileW(original.c_str(), m_path.c_str(), FALSE)) << ::GetLastError();
    }
    Decoy(const Decoy&) = delete;
    Decoy& operator=(const Decoy&) = delete;
    ~Decoy() { ::DeleteFileW(m_path.c_str()); }

private:
    std::wstring m_path;
};

/// Another current directory for the time of a scope.
class Inside
{
public:
    explicit Inside(const std::wstring& directory)
    {
        ::GetCurrentDirectoryW(MAX_PATH, m_previous);
        ::SetCurrentDirectoryW(directory.c_str());
    }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;
    ~Inside() { ::SetCurrentDirectoryW(m_previous); }

private:
    wchar_t m_previous[MAX_PATH]{};
};

} // namespace

TEST(LoadProgramLibrary, LoadsFromBesideTheProgram)
{
    const Loaded library(OVO::LoadProgramLibrary(L"ovomsg11.dll"));
    ASSERT_TRUE(library);
    EXPECT_TRUE(same(folderOf(pathOf(library.get())), folderOf(pathOf(nullptr))));
}

TEST(LoadProgramLibrary, FindsNothingInTheSystemDirectory)
{
    EXPECT_EQ(OVO::LoadProgramLibrary(L"version.dll"), nullptr);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(LoadProgramLibrary, FindsNothingInTheCurrentDirectory)
{
    const TemporaryFolder folder;
    const Decoy decoy(folder.path() + L"\\ovodecoy.dll");
    const Inside inside(folder.path());
    ASSERT_TRUE(Loaded(::LoadLibraryW(L"ovodecoy.dll"))) << "the system itself finds it there";
    EXPECT_EQ(OVO::LoadProgramLibrary(L"ovodecoy.dll"), nullptr);
}

TEST(LoadSystemLibrary, LoadsFromTheSystemDirectory)
{
    const Loaded library(OVO::LoadSystemLibrary(L"version.dll"));
    ASSERT_TRUE(library);
    EXPECT_TRUE(same(folderOf(pathOf(library.get())), systemFolder()));
}

TEST(LoadSystemLibrary, FindsNothingBesideTheProgram)
{
    EXPECT_EQ(OVO::LoadSystemLibrary(L"ovomsg11.dll"), nullptr);
}

TEST(LoadSystemLibrary, FindsNothingInTheCurrentDirectory)
{
    const TemporaryFolder folder;
    const Decoy decoy(folder.path() + L"\\ovodecoy.dll");
    const Inside inside(folder.path());
    EXPECT_EQ(OVO::LoadSystemLibrary(L"ovodecoy.dll"), nullptr);
}

TEST(LoadLibrary, TakesNoNamesWithDirectories)
{
    for (const wchar_t* name :
         {L"..\\version.dll", L"drivers/../version.dll", L"C:\\windows\\system32\\version.dll",
          L"c:version.dll", L"", L"\\version.dll"}) {
        EXPECT_EQ(OVO::LoadSystemLibrary(name), nullptr) << testing::PrintToString(std::wstring(name));
        EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_INVALID_NAME));
        EXPECT_EQ(OVO::LoadProgramLibrary(name), nullptr) << testing::PrintToString(std::wstring(name));
    }
    EXPECT_EQ(OVO::LoadSystemLibrary(nullptr), nullptr);
}
