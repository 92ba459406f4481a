// The resource chain.
#include <afx/ExtensionModule.h>

#include <detail/modulestate.h>
#include <detail/resourcechain.h>

namespace
{

constexpr WORD kAnyLanguage = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);

using Question = std::function<bool(HINSTANCE)>;

/// The first extension module, among the system's or the others, that the question is answered with yes for.
HINSTANCE firstExtension(const Question& question, bool system)
{
    for (const CDynLinkLibrary* library = AfxGetModuleState()->libraries; library;
         library = library->m_pNextDLL)
        if ((library->m_bSystem != FALSE) == system && library->m_hResource && question(library->m_hResource))
            return library->m_hResource;
    return nullptr;
}

} // namespace

HINSTANCE afxdetail::firstInResourceChain(const Question& question)
{
    if (const HINSTANCE current = AfxGetResourceHandle(); current && question(current))
        return current;
    if (const HINSTANCE extension = firstExtension(question, false))
        return extension;
    if (const HINSTANCE framework = frameworkModule(); question(framework))
        return framework;
    return firstExtension(question, true);
}

std::wstring_view afxdetail::stringResource(HINSTANCE module, UINT id, WORD language)
{
    const HRSRC found = ::FindResourceExW(module, RT_STRING, MAKEINTRESOURCEW(id / 16 + 1), language);
    const HGLOBAL block = found ? ::LoadResource(module, found) : nullptr;
    const auto* entry = block ? static_cast<const WORD*>(::LockResource(block)) : nullptr;
    if (!entry)
        return {};
    // A block holds sixteen counted strings in a row; one that is not there has the length 0.
    for (UINT skip = id % 16; skip > 0; --skip)
        entry += 1 + *entry;
    return {reinterpret_cast<LPCWSTR>(entry + 1), *entry};
}

std::wstring_view afxdetail::stringResource(UINT id)
{
    std::wstring_view text;
    firstInResourceChain([&](HINSTANCE module) {
        text = stringResource(module, id, kAnyLanguage);
        return !text.empty();
    });
    return text;
}

HINSTANCE afxdetail::moduleOfString(UINT id)
{
    const HINSTANCE found = firstInResourceChain(
        [id](HINSTANCE module) { return !stringResource(module, id, kAnyLanguage).empty(); });
    return found ? found : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR name, LPCTSTR type)
{
    const HINSTANCE found = afxdetail::firstInResourceChain(
        [=](HINSTANCE module) { return ::FindResourceW(module, name, type) != nullptr; });
    return found ? found : AfxGetResourceHandle();
}

int AFXAPI AfxLoadString(UINT id, LPTSTR buffer, UINT maxLength)
{
    if (!buffer || maxLength == 0)
        return 0;
    const std::wstring_view text = afxdetail::stringResource(id).substr(0, maxLength - 1);
    text.copy(buffer, text.size());
    buffer[text.size()] = 0;
    return static_cast<int>(text.size());
}
