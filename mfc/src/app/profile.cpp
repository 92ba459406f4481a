// CWinApp: the profile, in the registry or in a private INI file.
#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

namespace
{

struct CloseKey
{
    void operator()(HKEY key) const { ::RegCloseKey(key); }
};
using UniqueKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKey>;

UniqueKey subKey(HKEY parent, LPCTSTR name)
{
    HKEY key = nullptr;
    if (parent)
        ::RegCreateKeyExW(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr,
                          &key, nullptr);
    return UniqueKey(key);
}

/// An empty entry is the section's default value in the registry.
LPCTSTR valueName(LPCTSTR entry)
{
    return entry && *entry ? entry : nullptr;
}

/// A value of a given type; empty and false when it is missing or of another type.
bool readValue(HKEY section, LPCTSTR entry, DWORD type, std::vector<BYTE>& data)
{
    DWORD actual = 0;
    DWORD bytes = 0;
    if (::RegQueryValueExW(section, valueName(entry), nullptr, &actual, nullptr, &bytes) != ERROR_SUCCESS ||
        actual != type)
        return false;
    data.resize(bytes);
    return ::RegQueryValueExW(section, valueName(entry), nullptr, nullptr, data.data(), &bytes) ==
           ERROR_SUCCESS;
}

bool writeValue(HKEY section, LPCTSTR entry, DWORD type, const void* data, std::size_t bytes)
{
    return section && ::RegSetValueExW(section, valueName(entry), 0, type, static_cast<const BYTE*>(data),
                                       static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
}

/// Text of a private INI file, of any length.
CString readIni(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue, LPCTSTR file)
{
    std::vector<wchar_t> buffer(256);
    for (;;) {
        const DWORD length = ::GetPrivateProfileStringW(section, entry, defaultValue, buffer.data(),
                                                        static_cast<DWORD>(buffer.size()), file);
        if (length + 1 < buffer.size())
            return CString(buffer.data(), static_cast<int>(length));
        buffer.resize(buffer.size() * 2);
    }
}

// Bytes in an INI file are text: two letters a byte, low half first.
CString toLetters(const BYTE* data, UINT bytes)
{
    CString text;
    for (UINT i = 0; i < bytes; ++i) {
        text.AppendChar(static_cast<wchar_t>(L'A' + (data[i] & 0x0F)));
        text.AppendChar(static_cast<wchar_t>(L'A' + (data[i] >> 4)));
    }
    return text;
}

std::vector<BYTE> fromLetters(const CString& text)
{
    std::vector<BYTE> data;
    for (int i = 0; i + 1 < text.GetLength(); i += 2)
        data.push_back(static_cast<BYTE>(((text[i + 1] - L'A') << 4) | ((text[i] - L'A') & 0x0F)));
    return data;
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR company)
{
    std::free(const_cast<LPTSTR>(m_pszRegistryKey));
    m_pszRegistryKey = ::_wcsdup(company);
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = ::_wcsdup(m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT companyId)
{
    CString company;
    company.LoadString(companyId);
    SetRegistryKey(static_cast<LPCTSTR>(company));
}

HKEY CWinApp::GetAppRegistryKey()
{
    ASSERT(m_pszRegistryKey && m_pszProfileName);
    const UniqueKey software = subKey(HKEY_CURRENT_USER, L"Software");
    const UniqueKey company = subKey(software.get(), m_pszRegistryKey);
    return subKey(company.get(), m_pszProfileName).release();
}

HKEY CWinApp::GetSectionKey(LPCTSTR section)
{
    const UniqueKey program(GetAppRegistryKey());
    return subKey(program.get(), section).release();
}

UINT CWinApp::GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue)
{
    if (!usesRegistry())
        return ::GetPrivateProfileIntW(section, entry, defaultValue, m_pszProfileName);
    const UniqueKey key(GetSectionKey(section));
    std::vector<BYTE> data;
    if (!key || !readValue(key.get(), entry, REG_DWORD, data) || data.size() != sizeof(DWORD))
        return static_cast<UINT>(defaultValue);
    return *reinterpret_cast<const DWORD*>(data.data());
}

BOOL CWinApp::WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value)
{
    if (!usesRegistry())
        return ::WritePrivateProfileStringW(section, entry, std::to_wstring(value).c_str(), m_pszProfileName);
    const UniqueKey key(GetSectionKey(section));
    return writeValue(key.get(), entry, REG_DWORD, &value, sizeof value);
}

CString CWinApp::GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue)
{
    const LPCTSTR otherwise = defaultValue ? defaultValue : L"";
    if (!usesRegistry())
        return readIni(section, entry, otherwise, m_pszProfileName);
    const UniqueKey key(GetSectionKey(section));
    std::vector<BYTE> data;
    if (!key || !readValue(key.get(), entry, REG_SZ, data))
        return CString(otherwise);
    data.resize(data.size() + sizeof(wchar_t)); // the text may lack its end
    return CString(reinterpret_cast<LPCWSTR>(data.data()));
}

BOOL CWinApp::WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value)
{
    if (!usesRegistry())
        return ::WritePrivateProfileStringW(section, entry, value, m_pszProfileName);
    if (!entry) {
        const UniqueKey program(GetAppRegistryKey());
        return program && ::RegDeleteTreeW(program.get(), section) == ERROR_SUCCESS;
    }
    const UniqueKey key(GetSectionKey(section));
    if (!value)
        return key && ::RegDeleteValueW(key.get(), valueName(entry)) == ERROR_SUCCESS;
    return writeValue(key.get(), entry, REG_SZ, value, (std::wcslen(value) + 1) * sizeof(wchar_t));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* bytes)
{
    *data = nullptr;
    *bytes = 0;
    std::vector<BYTE> found;
    if (usesRegistry()) {
        const UniqueKey key(GetSectionKey(section));
        if (!key || !readValue(key.get(), entry, REG_BINARY, found))
            return FALSE;
    } else {
        const CString text = readIni(section, entry, L"", m_pszProfileName);
        if (text.IsEmpty())
            return FALSE;
        found = fromLetters(text);
    }
    *bytes = static_cast<UINT>(found.size());
    *data = new BYTE[found.size()];
    std::copy(found.begin(), found.end(), *data);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT bytes)
{
    if (!usesRegistry())
        return WriteProfileString(section, entry, toLetters(data, bytes));
    const UniqueKey key(GetSectionKey(section));
    return writeValue(key.get(), entry, REG_BINARY, data, bytes);
}
