// CString: text that is copied by sharing and changed after unsharing.
#pragma once

#include <afx/FormatArgument.h>
#include <afx/Platform.h>

#include <compare>
#include <cstdarg>
#include <string_view>

/// Wide text. One pointer to a counted buffer: copies are cheap, and the first change makes a copy of its
/// own. Objects that share a buffer belong to one thread. Positions and lengths count wide characters.
/// Format and the like take a CString as it is. Functions of the C runtime with an ellipsis do not: write
/// `(LPCTSTR)text` there.
class OVOMFC_API CString
{
public:
    CString();
    CString(const CString& other);
    CString(CString&& other) noexcept;
    /// NULL gives an empty text; a resource id (MAKEINTRESOURCE) loads that string.
    CString(LPCWSTR text);
    /// From the ANSI code page.
    explicit CString(LPCSTR text);
    CString(LPCWSTR text, int length);
    CString(LPCSTR text, int length);
    explicit CString(wchar_t character, int count = 1);
    ~CString();

    CString& operator=(const CString& other);
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCWSTR text);
    CString& operator=(LPCSTR text);
    CString& operator=(wchar_t character);

    // Looking
    int GetLength() const;
    bool IsEmpty() const;
    LPCWSTR GetString() const { return m_pszData; }
    operator LPCWSTR() const { return m_pszData; }
    wchar_t GetAt(int index) const; ///< The terminating zero may be read.
    wchar_t operator[](int index) const { return GetAt(index); }

    // Comparing: negative, 0, positive
    int Compare(LPCWSTR text) const;
    int CompareNoCase(LPCWSTR text) const;
    int Collate(LPCWSTR text) const; ///< In the order of the user's locale.
    int CollateNoCase(LPCWSTR text) const;

    // Finding: the index, or -1
    int Find(LPCWSTR text, int start = 0) const;
    int Find(wchar_t character, int start = 0) const;
    int ReverseFind(wchar_t character) const;
    int FindOneOf(LPCWSTR characters) const;

    // Parts. Positions and counts outside the text are cut to it.
    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString SpanIncluding(LPCWSTR characters) const; ///< The longest beginning made of these characters.
    CString SpanExcluding(LPCWSTR characters) const; ///< The longest beginning without any of them.
    /// The next token between separators from `start`, which moves behind it; at the end an empty text, and
    /// `start` becomes -1.
    CString Tokenize(LPCWSTR separators, int& start) const;

    // Changing
    void Empty();
    void SetAt(int index, wchar_t character);
    void SetString(LPCWSTR text);
    void SetString(LPCWSTR text, int length);
    void Append(LPCWSTR text);
    void Append(LPCWSTR text, int length);
    void AppendChar(wchar_t character);
    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(wchar_t character);
    int Insert(int index, LPCWSTR text);      ///< Gives the new length.
    int Insert(int index, wchar_t character); ///< As above.
    int Delete(int index, int count = 1);     ///< As above.
    int Remove(wchar_t character);            ///< Gives how many went.
    int Replace(wchar_t from, wchar_t to);    ///< Gives how many were changed.
    int Replace(LPCWSTR from, LPCWSTR to);    ///< As above.
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim();
    CString& Trim(wchar_t character);
    CString& Trim(LPCWSTR characters);
    CString& TrimLeft();
    CString& TrimLeft(wchar_t character);
    CString& TrimLeft(LPCWSTR characters);
    CString& TrimRight();
    CString& TrimRight(wchar_t character);
    CString& TrimRight(LPCWSTR characters);
    void OemToAnsi();
    void AnsiToOem();

    // Formatting: %s is wide, %S is narrow, %hs is narrow, %I64d is 64 bits. An argument for %s may be a
    // CString.
    template <afxdetail::FormatArgument... Arguments>
    void Format(LPCWSTR format, Arguments... arguments)
    {
        formatList(format, afxdetail::formatArgument(arguments)...);
    }
    template <afxdetail::FormatArgument... Arguments>
    void Format(UINT formatId, Arguments... arguments)
    {
        formatList(loaded(formatId), afxdetail::formatArgument(arguments)...);
    }
    void FormatV(LPCWSTR format, va_list arguments);
    template <afxdetail::FormatArgument... Arguments>
    void AppendFormat(LPCWSTR format, Arguments... arguments)
    {
        appendFormatList(format, afxdetail::formatArgument(arguments)...);
    }
    template <afxdetail::FormatArgument... Arguments>
    void AppendFormat(UINT formatId, Arguments... arguments)
    {
        appendFormatList(loaded(formatId), afxdetail::formatArgument(arguments)...);
    }
    void AppendFormatV(LPCWSTR format, va_list arguments);
    /// In the manner of the system's FormatMessage (%1, %2).
    template <afxdetail::FormatArgument... Arguments>
    void FormatMessage(LPCWSTR format, Arguments... arguments)
    {
        formatMessageList(format, afxdetail::formatArgument(arguments)...);
    }
    template <afxdetail::FormatArgument... Arguments>
    void FormatMessage(UINT formatId, Arguments... arguments)
    {
        formatMessageList(loaded(formatId), afxdetail::formatArgument(arguments)...);
    }
    void FormatMessageV(LPCWSTR format, va_list* arguments);

    // Resources. FALSE and an empty text when there is no such string.
    BOOL LoadString(UINT id); ///< Along the resource chain.
    BOOL LoadString(HINSTANCE module, UINT id);
    BOOL LoadString(HINSTANCE module, UINT id, WORD language);

    // The buffer. Between Get and Release no other call may be made.
    /// At least `minLength` characters and a terminating zero, unshared.
    LPWSTR GetBuffer(int minLength = 0);
    LPWSTR GetBufferSetLength(int length);
    /// -1: up to the terminating zero.
    void ReleaseBuffer(int length = -1);
    void ReleaseBufferSetLength(int length);
    void FreeExtra();
    int GetAllocLength() const;
    void Preallocate(int length);
    void Truncate(int length);
    LPWSTR LockBuffer(); ///< Unshares the buffer until UnlockBuffer.
    void UnlockBuffer();

    /// A copy for COM, freed by SysFreeString.
    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* target) const;
    BOOL GetEnvironmentVariable(LPCWSTR name);

private:
    struct Data;

    static Data* emptyData();
    static Data* allocate(int capacity);
    Data* data() const;
    std::wstring_view view() const;
    bool isLocked() const;
    bool ownsRoom(int length) const;
    Data* grown(int length) const;
    void use(Data* buffer);
    void release();
    void assign(std::wstring_view text);
    void append(std::wstring_view text);
    LPWSTR makeRoom(int length);
    void setLength(int length);
    static CString loaded(UINT id);
    void AFX_CDECL formatList(LPCWSTR format, ...);
    void AFX_CDECL appendFormatList(LPCWSTR format, ...);
    void AFX_CDECL formatMessageList(LPCWSTR format, ...);
    template <class Belongs>
    CString& trimLeftWhile(Belongs belongs);
    template <class Belongs>
    CString& trimRightWhile(Belongs belongs);

    LPWSTR m_pszData;
};

using CStringW = CString;

OVOMFC_API CString operator+(const CString& left, const CString& right);
OVOMFC_API CString operator+(const CString& left, LPCWSTR right);
OVOMFC_API CString operator+(LPCWSTR left, const CString& right);
OVOMFC_API CString operator+(const CString& left, wchar_t right);
OVOMFC_API CString operator+(wchar_t left, const CString& right);

inline bool operator==(const CString& left, const CString& right)
{
    return left.Compare(right) == 0;
}
inline bool operator==(const CString& left, LPCWSTR right)
{
    return left.Compare(right) == 0;
}
/// Whether the text is this one character.
inline bool operator==(const CString& left, wchar_t right)
{
    return left.GetLength() == 1 && left[0] == right;
}
inline std::strong_ordering operator<=>(const CString& left, const CString& right)
{
    return left.Compare(right) <=> 0;
}
inline std::strong_ordering operator<=>(const CString& left, LPCWSTR right)
{
    return left.Compare(right) <=> 0;
}

/// The `index`-th part of a text between separators. FALSE, and an empty text, when there are not so many;
/// FALSE, and `part` as it was, without a text.
OVOMFC_API BOOL AFXAPI AfxExtractSubString(CString& part, LPCTSTR text, int index, TCHAR separator = '\n');

/// %1 (and %2) in a string resource or text replaced by the arguments.
OVOMFC_API void AFXAPI AfxFormatString1(CString& result, UINT id, LPCTSTR first);
OVOMFC_API void AFXAPI AfxFormatString2(CString& result, UINT id, LPCTSTR first, LPCTSTR second);
OVOMFC_API void AFXAPI AfxFormatStrings(CString& result, UINT id, LPCTSTR const* arguments, int count);
OVOMFC_API void AFXAPI AfxFormatStrings(CString& result, LPCTSTR format, LPCTSTR const* arguments, int count);
