#include <ovoui/frame/ResourceVersion.h>

#include <ovoui/version.h>

#include <ovocor/Text.h>

#include <array>
#include <cstring>
#include <optional>
#include <string>

namespace ovoui
{
namespace
{

using Version = std::array<unsigned, 3>;

constexpr Version kOwn{OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH};

/// A version record begins with three words and its name; the fixed part follows at the next multiple of
/// four.
constexpr std::size_t kFixedPart = 40;

std::optional<Version> versionOf(HMODULE module)
{
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const auto* const record = loaded ? static_cast<const char*>(::LockResource(loaded)) : nullptr;
    VS_FIXEDFILEINFO info;
    if (!record || ::SizeofResource(module, found) < kFixedPart + sizeof info)
        return std::nullopt;
    std::memcpy(&info, record + kFixedPart, sizeof info);
    if (info.dwSignature != VS_FFI_SIGNATURE)
        return std::nullopt;
    return Version{HIWORD(info.dwFileVersionMS), LOWORD(info.dwFileVersionMS), HIWORD(info.dwFileVersionLS)};
}

std::wstring textOf(const std::optional<Version>& version)
{
    if (!version)
        return L"(unknown)";
    const auto [major, minor, patch] = *version;
    return std::to_wstring(major) + L'.' + std::to_wstring(minor) + L'.' + std::to_wstring(patch);
}

void tell(const std::wstring& text)
{
    ::OutputDebugStringW((text + L"\n").c_str());
    if (::GetErrorMode() & SEM_FAILCRITICALERRORS)
        return;
    // The system shows the box for us: the loader's lock is held, and a window of ours might wait for it.
    ::MessageBoxW(nullptr, text.c_str(), L"ovoui", MB_OK | MB_ICONERROR | MB_SERVICE_NOTIFICATION);
}

} // namespace

bool isOfOwnVersion(HMODULE resources)
{
    const std::optional<Version> version = versionOf(resources);
    if (version == kOwn)
        return true;
    // In English: the translations are in the module that is refused.
    tell(stringPrintf(
        L"ovoui.dll has version %s, but ovouires.dll beside it has version %s. Both must have the same "
        L"version. Install the program again.",
        textOf(kOwn).c_str(), textOf(version).c_str()));
    return false;
}

} // namespace ovoui
