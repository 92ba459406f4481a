#include <ovoui/frame/ResourceVersion.h>

#include <ovoui/frame/core/VersionBlock.h>
#include <ovoui/version.h>

#include <ovocor/Text.h>

#include <cstddef>
#include <optional>
#include <string>

namespace ovoui
{
namespace
{

using frame::ModuleVersion;

constexpr ModuleVersion kOwn{OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH};

std::optional<ModuleVersion> versionOf(HMODULE module)
{
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const auto* const record = loaded ? static_cast<const std::byte*>(::LockResource(loaded)) : nullptr;
    if (!record)
        return std::nullopt;
    return frame::moduleVersion({record, ::SizeofResource(module, found)});
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
    const std::optional<ModuleVersion> version = versionOf(resources);
    if (version == kOwn)
        return true;
    // In English: the translations are in the module that is refused.
    tell(stringPrintf(
        L"ovoui.dll has version %s, but ovouires.dll beside it has version %s. Both must have the same "
        L"version. Install the program again.",
        frame::textOf(kOwn).c_str(), frame::textOf(version).c_str()));
    return false;
}

} // namespace ovoui
