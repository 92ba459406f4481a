// CString: changing the text.
#include "stringdata.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace
{

bool isSpace(wchar_t character)
{
    return std::iswspace(character) != 0;
}

auto oneOf(LPCWSTR characters)
{
    return [set = std::wstring_view(characters ? characters : L"")](wchar_t c) {
        return set.find(c) != set.npos;
    };
}

auto equalTo(wchar_t character)
{
    return [character](wchar_t c) { return c == character; };
}

} // namespace

void CString::SetAt(int index, wchar_t character)
{
    ASSERT(index >= 0 && index < GetLength());
    makeRoom(GetLength())[index] = character;
}

// Appending

void CString::Append(LPCWSTR text)
{
    if (text)
        append(text);
}

void CString::Append(LPCWSTR text, int length)
{
    if (text && length > 0)
        append({text, static_cast<std::size_t>(length)});
}

void CString::AppendChar(wchar_t character)
{
    append({&character, 1});
}

CString& CString::operator+=(const CString& text)
{
    append(text.view());
    return *this;
}

CString& CString::operator+=(LPCWSTR text)
{
    Append(text);
    return *this;
}

CString& CString::operator+=(LPCSTR text)
{
    return *this += CString(text);
}

CString& CString::operator+=(wchar_t character)
{
    AppendChar(character);
    return *this;
}

// Inserting, deleting, replacing

int CString::Insert(int index, LPCWSTR text)
{
    const CString inserted(text); // which may be a part of this text
    const int before = GetLength();
    const auto at = static_cast<std::size_t>(std::clamp(index, 0, before));
    append(inserted.view());
    std::rotate(m_pszData + at, m_pszData + before, m_pszData + GetLength());
    return GetLength();
}

int CString::Insert(int index, wchar_t character)
{
    const wchar_t text[] = {character, 0};
    return Insert(index, text);
}

int CString::Delete(int index, int count)
{
    const int length = GetLength();
    const int first = std::clamp(index, 0, length);
    const int gone = std::clamp(count, 0, length - first);
    if (gone == 0)
        return length;
    const LPWSTR text = makeRoom(length);
    std::wmemmove(text + first, text + first + gone, static_cast<std::size_t>(length - first - gone));
    setLength(length - gone);
    return GetLength();
}

int CString::Remove(wchar_t character)
{
    const int before = GetLength();
    if (Find(character) < 0)
        return 0;
    const LPWSTR text = makeRoom(before);
    setLength(static_cast<int>(std::remove(text, text + before, character) - text));
    return before - GetLength();
}

int CString::Replace(wchar_t from, wchar_t to)
{
    const int length = GetLength();
    const auto found = static_cast<int>(std::count(m_pszData, m_pszData + length, from));
    if (found == 0 || from == to)
        return 0;
    const LPWSTR text = makeRoom(length);
    std::replace(text, text + length, from, to);
    return found;
}

int CString::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring_view pattern = from ? from : L"";
    if (pattern.empty() || Find(from) < 0)
        return 0;
    const std::wstring_view text = view();
    CString result;
    int count = 0;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find(pattern, start)) != text.npos; start = at + pattern.size()) {
        result.append(text.substr(start, at - start));
        result.Append(to);
        ++count;
    }
    result.append(text.substr(start));
    *this = std::move(result);
    return count;
}

CString& CString::MakeUpper()
{
    ::CharUpperBuffW(makeRoom(GetLength()), static_cast<DWORD>(GetLength()));
    return *this;
}

CString& CString::MakeLower()
{
    ::CharLowerBuffW(makeRoom(GetLength()), static_cast<DWORD>(GetLength()));
    return *this;
}

CString& CString::MakeReverse()
{
    const LPWSTR text = makeRoom(GetLength());
    std::reverse(text, text + GetLength());
    return *this;
}

// Trimming

template <class Belongs>
CString& CString::trimLeftWhile(Belongs belongs)
{
    const std::wstring_view text = view();
    const auto first = std::find_if_not(text.begin(), text.end(), belongs);
    Delete(0, static_cast<int>(first - text.begin()));
    return *this;
}

template <class Belongs>
CString& CString::trimRightWhile(Belongs belongs)
{
    const std::wstring_view text = view();
    const auto last = std::find_if_not(text.rbegin(), text.rend(), belongs);
    Truncate(static_cast<int>(text.rend() - last));
    return *this;
}

CString& CString::TrimLeft()
{
    return trimLeftWhile(&isSpace);
}

CString& CString::TrimLeft(wchar_t character)
{
    return trimLeftWhile(equalTo(character));
}

CString& CString::TrimLeft(LPCWSTR characters)
{
    return trimLeftWhile(oneOf(characters));
}

CString& CString::TrimRight()
{
    return trimRightWhile(&isSpace);
}

CString& CString::TrimRight(wchar_t character)
{
    return trimRightWhile(equalTo(character));
}

CString& CString::TrimRight(LPCWSTR characters)
{
    return trimRightWhile(oneOf(characters));
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(wchar_t character)
{
    return TrimRight(character).TrimLeft(character);
}

CString& CString::Trim(LPCWSTR characters)
{
    return TrimRight(characters).TrimLeft(characters);
}

// Wide text is in no code page: as documented, nothing to convert.
void CString::OemToAnsi() {}
void CString::AnsiToOem() {}

// Joining

CString operator+(const CString& left, const CString& right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(const CString& left, LPCWSTR right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(LPCWSTR left, const CString& right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(const CString& left, wchar_t right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(wchar_t left, const CString& right)
{
    CString sum(left);
    sum += right;
    return sum;
}
