// CString: the buffer, and everything that does not format or load.
#include <afx.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <cwctype>

/// What lies before the characters. A negative count marks a buffer that must not be shared.
struct CString::Data
{
    long references;
    int length;
    int capacity;

    LPWSTR text() { return reinterpret_cast<LPWSTR>(this + 1); }
};

namespace
{

constexpr long kLocked = -1;

bool isSpace(wchar_t character)
{
    return std::iswspace(character) != 0;
}

auto oneOf(LPCWSTR characters)
{
    return [characters](wchar_t c) { return c != 0 && std::wcschr(characters, c) != nullptr; };
}

int clampedTo(int value, int length)
{
    return std::clamp(value, 0, length);
}

} // namespace

CString::Data* CString::emptyData()
{
    struct Empty
    {
        Data data{2, 0, 0}; // never counted down to 0
        wchar_t terminator = 0;
    };
    static Empty empty;
    return &empty.data;
}

CString::Data* CString::allocate(int capacity)
{
    void* memory = std::malloc(sizeof(Data) + (static_cast<std::size_t>(capacity) + 1) * sizeof(wchar_t));
    if (!memory)
        AfxThrowMemoryException();
    Data* data = static_cast<Data*>(memory);
    *data = {1, 0, capacity};
    data->text()[0] = 0;
    return data;
}

CString::Data* CString::data() const
{
    return reinterpret_cast<Data*>(m_pszData) - 1;
}

std::wstring_view CString::view() const
{
    return {m_pszData, static_cast<std::size_t>(data()->length)};
}

void CString::release()
{
    Data* const old = data();
    if (old != emptyData() && (old->references == kLocked || --old->references == 0))
        std::free(old);
    m_pszData = emptyData()->text();
}

/// Makes the buffer this object's own, with room for `length` characters, keeping the text that fits.
LPWSTR CString::makeRoom(int length)
{
    Data* const old = data();
    const bool own = old != emptyData() && (old->references == 1 || old->references == kLocked);
    if (own && old->capacity >= length)
        return m_pszData;

    const int grown = own ? std::max(length, old->capacity + old->capacity / 2) : std::max(length, old->length);
    Data* const fresh = allocate(grown);
    const int kept = std::min(old->length, grown);
    std::wmemcpy(fresh->text(), m_pszData, static_cast<std::size_t>(kept));
    fresh->length = kept;
    fresh->text()[kept] = 0;
    if (old->references == kLocked)
        fresh->references = kLocked;
    release();
    m_pszData = fresh->text();
    return m_pszData;
}

void CString::setLength(int length)
{
    if (length == 0 && data() == emptyData())
        return;
    data()->length = length;
    m_pszData[length] = 0;
}

/// `text` may lie in this object's own buffer.
void CString::assign(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    if (length == 0) {
        Empty();
        return;
    }
    const CString keepAlive(*this);
    makeRoom(length);
    std::wmemmove(m_pszData, text.data(), text.size());
    setLength(length);
}

void CString::append(std::wstring_view text)
{
    if (text.empty())
        return;
    const CString keepAlive(*this);
    const int before = GetLength();
    const int after = before + static_cast<int>(text.size());
    makeRoom(after);
    std::wmemmove(m_pszData + before, text.data(), text.size());
    setLength(after);
}

CString::CString()
    : m_pszData(emptyData()->text())
{
}

CString::CString(const CString& other)
    : CString()
{
    *this = other;
}

CString::CString(CString&& other) noexcept
    : m_pszData(other.m_pszData)
{
    other.m_pszData = emptyData()->text();
}

CString::CString(LPCWSTR text)
    : CString()
{
    if (text && IS_INTRESOURCE(text))
        LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(text)));
    else
        SetString(text);
}

CString::CString(LPCSTR text)
    : CString(text, text && !IS_INTRESOURCE(text) ? static_cast<int>(std::strlen(text)) : 0)
{
    if (text && IS_INTRESOURCE(text))
        LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(text)));
}

CString::CString(LPCWSTR text, int length)
    : CString()
{
    SetString(text, length);
}

CString::CString(LPCSTR text, int length)
    : CString()
{
    if (!text || length <= 0)
        return;
    const int wide = ::MultiByteToWideChar(CP_ACP, 0, text, length, nullptr, 0);
    ::MultiByteToWideChar(CP_ACP, 0, text, length, makeRoom(wide), wide);
    setLength(wide);
}

CString::CString(wchar_t character, int count)
    : CString()
{
    if (count <= 0)
        return;
    std::wmemset(makeRoom(count), character, static_cast<std::size_t>(count));
    setLength(count);
}

CString::~CString()
{
    release();
}

CString& CString::operator=(const CString& other)
{
    if (m_pszData == other.m_pszData)
        return *this;
    Data* const shared = other.data();
    if (data()->references == kLocked || shared->references == kLocked) {
        assign(other.view());
        return *this;
    }
    if (shared != emptyData())
        ++shared->references;
    release();
    m_pszData = other.m_pszData;
    return *this;
}

CString& CString::operator=(CString&& other) noexcept
{
    std::swap(m_pszData, other.m_pszData);
    return *this;
}

CString& CString::operator=(LPCWSTR text)
{
    SetString(text);
    return *this;
}

CString& CString::operator=(LPCSTR text)
{
    return *this = CString(text);
}

CString& CString::operator=(wchar_t character)
{
    assign({&character, 1});
    return *this;
}

int CString::GetLength() const
{
    return data()->length;
}

BOOL CString::IsEmpty() const
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
    return std::wcscmp(m_pszData, text ? text : L"");
}

int CString::CompareNoCase(LPCWSTR text) const
{
    return ::_wcsicmp(m_pszData, text ? text : L"");
}

int CString::Collate(LPCWSTR text) const
{
    return ::CompareStringW(LOCALE_USER_DEFAULT, 0, m_pszData, -1, text ? text : L"", -1) - CSTR_EQUAL;
}

int CString::CollateNoCase(LPCWSTR text) const
{
    return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, m_pszData, -1, text ? text : L"", -1) - CSTR_EQUAL;
}

int CString::Find(LPCWSTR text, int start) const
{
    if (!text || start < 0 || start > GetLength())
        return -1;
    return static_cast<int>(view().find(text, static_cast<std::size_t>(start)));
}

int CString::Find(wchar_t character, int start) const
{
    if (start < 0 || start > GetLength())
        return -1;
    return static_cast<int>(view().find(character, static_cast<std::size_t>(start)));
}

int CString::ReverseFind(wchar_t character) const
{
    return static_cast<int>(view().rfind(character));
}

int CString::FindOneOf(LPCWSTR characters) const
{
    return static_cast<int>(view().find_first_of(characters));
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    const int length = GetLength();
    return Mid(length - clampedTo(count, length));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const int length = GetLength();
    first = clampedTo(first, length);
    count = clampedTo(count, length - first);
    return count == length ? *this : CString(m_pszData + first, count);
}

CString CString::SpanIncluding(LPCWSTR characters) const
{
    return Left(static_cast<int>(std::wcsspn(m_pszData, characters)));
}

CString CString::SpanExcluding(LPCWSTR characters) const
{
    return Left(static_cast<int>(std::wcscspn(m_pszData, characters)));
}

CString CString::Tokenize(LPCWSTR separators, int& start) const
{
    if (!separators || !*separators) {
        if (start >= 0 && start < GetLength()) {
            const CString rest = Mid(start);
            start = GetLength() + 1;
            return rest;
        }
        start = -1;
        return CString();
    }
    if (start >= 0 && start < GetLength()) {
        const int first = start + static_cast<int>(std::wcsspn(m_pszData + start, separators));
        if (first < GetLength()) {
            const int count = static_cast<int>(std::wcscspn(m_pszData + first, separators));
            start = first + count + 1;
            return Mid(first, count);
        }
    }
    start = -1;
    return CString();
}

void CString::Empty()
{
    if (data()->references == kLocked)
        setLength(0);
    else
        release();
}

void CString::SetAt(int index, wchar_t character)
{
    ASSERT(index >= 0 && index < GetLength());
    makeRoom(GetLength())[index] = character;
}

void CString::SetString(LPCWSTR text)
{
    assign(text ? std::wstring_view(text) : std::wstring_view());
}

void CString::SetString(LPCWSTR text, int length)
{
    assign(text && length > 0 ? std::wstring_view(text, static_cast<std::size_t>(length)) : std::wstring_view());
}

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

int CString::Insert(int index, LPCWSTR text)
{
    if (text && *text) {
        const int at = clampedTo(index, GetLength());
        *this = Left(at) + text + Mid(at);
    }
    return GetLength();
}

int CString::Insert(int index, wchar_t character)
{
    return Insert(index, CString(character));
}

int CString::Delete(int index, int count)
{
    const int length = GetLength();
    const int first = std::max(index, 0);
    const int gone = clampedTo(count, std::max(0, length - first));
    if (gone > 0) {
        makeRoom(length);
        std::wmemmove(m_pszData + first, m_pszData + first + gone, static_cast<std::size_t>(length - first - gone));
        setLength(length - gone);
    }
    return GetLength();
}

int CString::Remove(wchar_t character)
{
    const int before = GetLength();
    if (Find(character) < 0)
        return 0;
    makeRoom(before);
    const LPWSTR end = std::remove(m_pszData, m_pszData + before, character);
    setLength(static_cast<int>(end - m_pszData));
    return before - GetLength();
}

int CString::Replace(wchar_t from, wchar_t to)
{
    const int length = GetLength();
    const int found = static_cast<int>(std::count(m_pszData, m_pszData + length, from));
    if (found == 0 || from == to)
        return 0;
    makeRoom(length);
    std::replace(m_pszData, m_pszData + length, from, to);
    return found;
}

int CString::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring_view pattern = from ? from : L"";
    if (pattern.empty())
        return 0;
    int count = 0;
    CString result;
    std::size_t start = 0;
    for (std::size_t at; (at = view().find(pattern, start)) != std::wstring_view::npos; start = at + pattern.size()) {
        result.append(view().substr(start, at - start));
        result.Append(to);
        ++count;
    }
    if (count == 0)
        return 0;
    result.append(view().substr(start));
    *this = result;
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
    makeRoom(GetLength());
    std::reverse(m_pszData, m_pszData + GetLength());
    return *this;
}

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

CString& CString::Trim() { return TrimRight().TrimLeft(); }
CString& CString::Trim(wchar_t character) { return TrimRight(character).TrimLeft(character); }
CString& CString::Trim(LPCWSTR characters) { return TrimRight(characters).TrimLeft(characters); }
CString& CString::TrimLeft() { return trimLeftWhile(&isSpace); }
CString& CString::TrimRight() { return trimRightWhile(&isSpace); }
CString& CString::TrimLeft(LPCWSTR characters) { return trimLeftWhile(oneOf(characters)); }
CString& CString::TrimRight(LPCWSTR characters) { return trimRightWhile(oneOf(characters)); }

CString& CString::TrimLeft(wchar_t character)
{
    return trimLeftWhile([character](wchar_t c) { return c == character; });
}

CString& CString::TrimRight(wchar_t character)
{
    return trimRightWhile([character](wchar_t c) { return c == character; });
}

// Wide text is in no code page: as documented, nothing to convert.
void CString::OemToAnsi() {}
void CString::AnsiToOem() {}

LPWSTR CString::GetBuffer(int minLength)
{
    return makeRoom(std::max(minLength, GetLength()));
}

LPWSTR CString::GetBufferSetLength(int length)
{
    const LPWSTR buffer = makeRoom(length);
    setLength(length);
    return buffer;
}

void CString::ReleaseBuffer(int length)
{
    if (data() == emptyData())
        return;
    setLength(length >= 0 ? length : static_cast<int>(::wcsnlen(m_pszData, static_cast<std::size_t>(data()->capacity))));
}

void CString::ReleaseBufferSetLength(int length)
{
    ReleaseBuffer(std::max(length, 0));
}

void CString::FreeExtra()
{
    if (data()->references != 1 || data()->capacity == data()->length)
        return;
    const CString old = std::move(*this);
    assign(old.view());
}

int CString::GetAllocLength() const
{
    return data()->capacity;
}

void CString::Preallocate(int length)
{
    makeRoom(length);
}

void CString::Truncate(int length)
{
    if (length >= GetLength())
        return;
    makeRoom(GetLength());
    setLength(std::max(length, 0));
}

LPWSTR CString::LockBuffer()
{
    // Room for one, so that even an empty text gets a buffer of its own to lock.
    const LPWSTR buffer = makeRoom(std::max(GetLength(), 1));
    data()->references = kLocked;
    return buffer;
}

void CString::UnlockBuffer()
{
    if (data()->references == kLocked)
        data()->references = 1;
}

BSTR CString::AllocSysString() const
{
    const BSTR copy = ::SysAllocStringLen(m_pszData, static_cast<UINT>(GetLength()));
    if (!copy)
        AfxThrowMemoryException();
    return copy;
}

BSTR CString::SetSysString(BSTR* target) const
{
    if (!::SysReAllocStringLen(target, m_pszData, static_cast<UINT>(GetLength())))
        AfxThrowMemoryException();
    return *target;
}

BOOL CString::GetEnvironmentVariable(LPCWSTR name)
{
    const DWORD size = ::GetEnvironmentVariableW(name, nullptr, 0);
    if (size == 0) {
        Empty();
        return FALSE;
    }
    ::GetEnvironmentVariableW(name, GetBuffer(static_cast<int>(size)), size);
    ReleaseBuffer();
    return TRUE;
}

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
