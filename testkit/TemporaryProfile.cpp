#include "TemporaryProfile.h"

#include <shlwapi.h>

#include <cstdlib>

namespace ovo::testkit
{

namespace
{

constexpr wchar_t kCompany[] = L"ovoui tests";

std::wstring uniqueName()
{
    static int count = 0;
    return L"profile " + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
}

std::wstring temporaryFolder()
{
    wchar_t path[MAX_PATH + 1] = L"";
    ::GetTempPathW(MAX_PATH, path);
    return path;
}

void freeText(LPCTSTR text)
{
    std::free(const_cast<wchar_t*>(text));
}

} // namespace

TemporaryProfile::TemporaryProfile(Kind kind)
    : m_kind(kind)
{
    CWinApp& app = *AfxGetApp();
    m_oldKey = std::exchange(app.m_pszRegistryKey, nullptr);
    m_oldName = std::exchange(app.m_pszProfileName, nullptr);
    const std::wstring name = uniqueName();
    if (kind == Kind::Registry) {
        // The framework puts the sections under Software, company, program name.
        app.SetRegistryKey(kCompany);
        freeText(app.m_pszProfileName);
        app.m_pszProfileName = ::_wcsdup(name.c_str());
        m_place = std::wstring{L"Software\\"} + kCompany + L"\\" + name;
    } else {
        m_place = temporaryFolder() + name + L".ini";
        app.m_pszProfileName = ::_wcsdup(m_place.c_str());
    }
}

TemporaryProfile::~TemporaryProfile()
{
    CWinApp& app = *AfxGetApp();
    freeText(std::exchange(app.m_pszRegistryKey, m_oldKey));
    freeText(std::exchange(app.m_pszProfileName, m_oldName));
    if (m_kind == Kind::Registry)
        ::SHDeleteKeyW(HKEY_CURRENT_USER, m_place.c_str());
    else
        ::DeleteFileW(m_place.c_str());
}

} // namespace ovo::testkit
