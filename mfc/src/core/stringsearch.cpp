// CString: looking, comparing, finding, parts.
#include "stringdata.h"

#include <algorithm>
#include <cwchar>

namespace
{

LPCWSTR orEmpty(LPCWSTR text)
{
    return text ? text : L"";
}

int compareInLocale(LPCWSTR left, LPCWSTR right, DWORD flags)
{
    return ::CompareStringW(LOCALE_USER_DEFAULT, flags, left, -1, orEmpty(right), -1) - CSTR_EQUAL;
}

} // namespace

int CString::GetLength() const
{
    return data()->length;
}

bool CString::IsEmpty() const
{
    return GetLength() == 0;
}

wchar_t CString::GetAt(int index) const
{
    ASSERT(index >= 0 && index <= GetLength());
    return m_pszData[index];
}

int CString::Compare(LPCWSTR text) const
{
    return std::wcscmp(m_pszData, orEmpty(text));
}

int CString::CompareNoCase(LPCWSTR text) const
{
    return ::_wcsicmp(m_pszData, orEmpty(text));
}

int CString::Collate(LPCWSTR text) const
{
    return compareInLocale(m_pszData, text, 0);
}

int CString::CollateNoCase(LPCWSTR text) const
{
    return compareInLocale(m_pszData, text, NORM_IGNORECASE);
}

int CString::Find(LPCWSTR text, int start) const
{
    if (!text || start < 0)
        return -1;
    return static_cast<int>(view().find(text, static_cast<std::size_t>(start)));
}

int CString::Find(wchar_t character, int start) const
{
    if (start < 0)
        return -1;
    return static_cast<int>(view().find(character, static_cast<std::size_t>(start)));
}

int CString::ReverseFind(wchar_t character) const
{
    return static_cast<int>(view().rfind(character));
}

int CString::FindOneOf(LPCWSTR characters) const
{
    return static_cast<int>(view().find_first_of(orEmpty(characters)));
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    const int length = GetLength();
    return Mid(length - std::clamp(count, 0, length));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const int length = GetLength();
    first = std::clamp(first, 0, length);
    count = std::clamp(count, 0, length - first);
    return count == length ? *this : CString(m_pszData + first, count);
}

CString CString::SpanIncluding(LPCWSTR characters) const
{
    return Left(static_cast<int>(std::wcsspn(m_pszData, orEmpty(characters))));
}

CString CString::SpanExcluding(LPCWSTR characters) const
{
    return Left(static_cast<int>(std::wcscspn(m_pszData, orEmpty(characters))));
}

CString CString::Tokenize(LPCWSTR separators, int& start) const
{
    const std::wstring_view text = view();
    const std::wstring_view between = orEmpty(separators);
    const std::size_t first =
        start < 0 ? text.npos : text.find_first_not_of(between, static_cast<std::size_t>(start));
    if (first == text.npos) {
        start = -1;
        return CString();
    }
    const std::size_t end = std::min(text.find_first_of(between, first), text.size());
    start = static_cast<int>(end) + 1;
    return Mid(static_cast<int>(first), static_cast<int>(end - first));
}
