// CString: the buffer, and how texts are made and assigned.
#include "stringdata.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>
#include <utility>

// The buffer

CString::Data* CString::emptyData()
{
    struct Empty
    {
        Data data{2, 0, 0}; // shared, so never written to and never freed
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
    Data* data = new (memory) Data{1, 0, capacity};
    data->text()[0] = 0;
    return data;
}

bool CString::isLocked() const
{
    return data()->references == Data::kLocked;
}

/// Whether the buffer is this object's alone and holds so many characters.
bool CString::ownsRoom(int length) const
{
    return (data()->references == 1 || isLocked()) && data()->capacity >= length;
}

/// A new buffer with this text and room for `length` characters at least. A buffer that grows again and again
/// grows by half each time.
CString::Data* CString::grown(int length) const
{
    Data* const old = data();
    const int ahead =
        old->references == 1 ? old->capacity + std::min(old->capacity / 2, INT_MAX - old->capacity - 1) : 0;
    Data* const fresh = allocate(std::max({length, old->length, ahead}));
    std::wmemcpy(fresh->text(), m_pszData, static_cast<std::size_t>(old->length));
    fresh->length = old->length;
    fresh->text()[old->length] = 0;
    if (isLocked())
        fresh->references = Data::kLocked;
    return fresh;
}

void CString::release()
{
    Data* const old = data();
    m_pszData = emptyData()->text();
    if (old == emptyData())
        return;
    if (old->references == Data::kLocked || --old->references == 0)
        std::free(old);
}

/// Takes over a buffer, which may be the present one.
void CString::use(Data* buffer)
{
    if (buffer == data())
        return;
    release();
    m_pszData = buffer->text();
}

/// Makes the buffer this object's own, with room for `length` characters, keeping the text.
LPWSTR CString::makeRoom(int length)
{
    if (!ownsRoom(length))
        use(grown(length));
    return m_pszData;
}

void CString::setLength(int length)
{
    ASSERT(length >= 0 && length <= data()->capacity);
    if (data() == emptyData())
        return;
    data()->length = length;
    m_pszData[length] = 0;
}

void CString::assign(std::wstring_view text)
{
    if (text.empty()) {
        Empty();
        return;
    }
    const int length = static_cast<int>(text.size());
    // The text may lie in this object's own buffer, so that goes last.
    Data* const target = ownsRoom(length) ? data() : grown(length);
    std::wmemmove(target->text(), text.data(), text.size());
    use(target);
    setLength(length);
}

void CString::append(std::wstring_view text)
{
    if (text.empty())
        return;
    const int before = GetLength();
    if (text.size() >= static_cast<std::size_t>(INT_MAX - before))
        AfxThrowMemoryException();
    const int after = before + static_cast<int>(text.size());
    Data* const target = ownsRoom(after) ? data() : grown(after);
    std::wmemmove(target->text() + before, text.data(), text.size());
    use(target);
    setLength(after);
}

// Making

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
    : CString()
{
    *this = std::move(other);
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
    : CString()
{
    if (text && IS_INTRESOURCE(text))
        LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(text)));
    else if (text)
        *this = CString(text, static_cast<int>(std::strlen(text)));
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

// Assigning

CString& CString::operator=(const CString& other)
{
    if (m_pszData == other.m_pszData)
        return *this;
    if (isLocked() || other.isLocked()) {
        assign(other.view());
        return *this;
    }
    Data* const shared = other.data();
    if (shared != emptyData())
        ++shared->references;
    release();
    m_pszData = other.m_pszData;
    return *this;
}

CString& CString::operator=(CString&& other) noexcept
{
    if (isLocked() || other.isLocked())
        assign(other.view());
    else
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

void CString::SetString(LPCWSTR text)
{
    assign(text ? std::wstring_view(text) : std::wstring_view());
}

void CString::SetString(LPCWSTR text, int length)
{
    assign(text && length > 0 ? std::wstring_view(text, static_cast<std::size_t>(length))
                              : std::wstring_view());
}

void CString::Empty()
{
    if (isLocked())
        setLength(0);
    else
        release();
}

// The buffer as the caller sees it

LPWSTR CString::GetBuffer(int minLength)
{
    return makeRoom(std::max(minLength, GetLength()));
}

LPWSTR CString::GetBufferSetLength(int length)
{
    ASSERT(length >= 0);
    const LPWSTR buffer = makeRoom(length);
    setLength(length);
    return buffer;
}

void CString::ReleaseBuffer(int length)
{
    const auto capacity = static_cast<std::size_t>(data()->capacity);
    setLength(length >= 0 ? length : static_cast<int>(::wcsnlen(m_pszData, capacity)));
}

void CString::ReleaseBufferSetLength(int length)
{
    ASSERT(length >= 0);
    setLength(length);
}

void CString::FreeExtra()
{
    if (data()->references != 1 || data()->capacity == GetLength())
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
    makeRoom(std::max(length, GetLength()));
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
    data()->references = Data::kLocked;
    return buffer;
}

void CString::UnlockBuffer()
{
    if (isLocked())
        data()->references = 1;
}

// Elsewhere

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
