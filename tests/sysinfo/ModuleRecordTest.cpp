// Modules that were built with known contents, compared with their lines in the dialog.
#include "FileKinds.h"
#include "ShownModules.h"
#include <testkit/TemporaryFiles.h>

#include <fstream>

using namespace ovo::testkit;

namespace
{

const IMAGE_NT_HEADERS& headersOf(HMODULE module)
{
    const auto* const bytes = reinterpret_cast<const BYTE*>(module);
    return *reinterpret_cast<const IMAGE_NT_HEADERS*>(
        bytes + reinterpret_cast<const IMAGE_DOS_HEADER*>(bytes)->e_lfanew);
}

/// By the system's own calendar: from 1601 in steps of 100 nanoseconds.
std::wstring localTime(DWORD secondsSince1970)
{
    static const wchar_t* const kMonths[] = {L"January",   L"February", L"March",    L"April",
                                             L"May",       L"June",     L"July",     L"August",
                                             L"September", L"October",  L"November", L"December"};
    const ULONGLONG ticks = (ULONGLONG{secondsSince1970} + 11644473600ull) * 10000000ull;
    const FILETIME utc{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    ::FileTimeToSystemTime(&utc, &universal);
    ::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
    return stringPrintf(L"%d %s %d %02d:%02d:%02d", local.wDay, kMonths[local.wMonth - 1], local.wYear,
                        local.wHour, local.wMinute, local.wSecond);
}

/// A copy of a module without code whose header has this link time.
std::wstring copyLinkedAt(DWORD time, const TemporaryFiles& files)
{
    const std::wstring path = files.path(L"linked_" + std::to_wstring(time) + L".dll");
    {
        const Library original(L"sysinfo_plain.dll");
        EXPECT_TRUE(::CopyFileW(original.path().c_str(), path.c_str(), FALSE));
    }
    std::fstream file(std::filesystem::path(path), std::ios::in | std::ios::out | std::ios::binary);
    LONG headers = 0;
    file.seekg(offsetof(IMAGE_DOS_HEADER, e_lfanew));
    file.read(reinterpret_cast<char*>(&headers), sizeof headers);
    file.seekp(headers + static_cast<LONG>(offsetof(IMAGE_NT_HEADERS, FileHeader.TimeDateStamp)));
    file.write(reinterpret_cast<const char*>(&time), sizeof time);
    EXPECT_TRUE(file.good());
    return path;
}

/// The test's module with a record of this kind.
std::wstring moduleOf(const FileKind& kind)
{
    return stringPrintf(L"sysinfo_kind_%u_%u.dll", kind.type, kind.subtype);
}

} // namespace

TEST(ModuleRecord, EveryFileTypeAndSubtypeIsNamedInItsLine)
{
    std::vector<std::unique_ptr<Library>> modules;
    for (const FileKind& kind : kFileKinds)
        modules.push_back(std::make_unique<Library>(moduleOf(kind)));
    Shown shown;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const FileKind& kind = kFileKinds[i];
        const std::wstring name = moduleOf(kind);
        const IMAGE_NT_HEADERS& headers = headersOf(modules[i]->get());
        const std::wstring expected = stringPrintf(
            L"%s\t%s\t0x%x\t%s\t%u.%u.3.4\t%u.%u.7.8\t%s\t%s\t%s\t%s\t%s", name.c_str(),
            modules[i]->address().c_str(), static_cast<unsigned>(headers.OptionalHeader.SizeOfImage),
            localTime(headers.FileHeader.TimeDateStamp).c_str(), kind.type, kind.subtype, kind.subtype,
            kind.type, kind.words, L"pre-release", (L"NT/2000" + listSeparator() + L"win32").c_str(),
            modules[i]->path().c_str(), L"Made for tests");
        EXPECT_EQ(lowercase(shown.line(name)), lowercase(expected));
    }
}

TEST(ModuleRecord, LinkTimesAreLocalTimes)
{
    const TemporaryFiles files;
    for (const DWORD time : {DWORD{0}, DWORD{1}, DWORD{1234567890}, DWORD{0x7FFFFFFF}, DWORD{0x80000000},
                             DWORD{0x80000001}, DWORD{0xFFFFFFFF}}) {
        const Library module(copyLinkedAt(time, files));
        Shown shown;
        const auto columns = shown.columns(L"linked_" + std::to_wstring(time) + L".dll");
        ASSERT_EQ(columns.size(), 11u);
        EXPECT_EQ(columns[kLinkTime], localTime(time));
    }
}
