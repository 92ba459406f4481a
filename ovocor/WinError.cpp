#include <ovocor/WinError.h>

#include <ovocor/Text.h>

#include <memory>

namespace
{

/// Keeps the thread's last error over calls that change it.
class LastErrorKept
{
public:
    LastErrorKept() = default;
    LastErrorKept(const LastErrorKept&) = delete;
    LastErrorKept& operator=(const LastErrorKept&) = delete;
    ~LastErrorKept() { ::SetLastError(m_code); }

private:
    DWORD m_code = ::GetLastError();
};

struct LocalDeleter
{
    void operator()(void* memory) const { ::LocalFree(memory); }
};

/// On one line: runs of blanks and line ends become one space, none at the ends.
std::wstring folded(std::wstring_view text)
{
    std::wstring result;
    for (const wchar_t c : text) {
        const bool blank = c == L' ' || c == L'\r' || c == L'\n' || c == L'\t';
        if (!blank)
            result += c;
        else if (!result.empty() && result.back() != L' ')
            result += L' ';
    }
    if (!result.empty() && result.back() == L' ')
        result.pop_back();
    return result;
}

std::wstring systemText(DWORD code, HMODULE module)
{
    const DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS |
                        FORMAT_MESSAGE_FROM_SYSTEM | (module ? FORMAT_MESSAGE_FROM_HMODULE : 0);
    wchar_t* buffer = nullptr;
    const DWORD length =
        ::FormatMessageW(flags, module, code, 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    const std::unique_ptr<wchar_t, LocalDeleter> owner(buffer);
    return length ? folded({buffer, length}) : std::wstring();
}

std::wstring withSystemText(std::wstring_view text, DWORD code)
{
    if (text.empty())
        return formatMessage(code);
    return std::wstring(text) + L": " + formatMessage(code);
}

} // namespace

std::wstring formatMessage(DWORD code, HMODULE module)
{
    const LastErrorKept kept;
    const std::wstring text = systemText(code, module);
    if (!text.empty())
        return text;
    return stringPrintf(code < 0x80000000 ? L"error %lu" : L"error 0x%08lX", code);
}

WinError::WinError(std::wstring_view text, DWORD code)
    : OvoError(withSystemText(text, code))
    , m_code(code)
{
}

WinError::WinError(const WinError&) noexcept = default;

WinError& WinError::operator=(const WinError&) noexcept = default;

WinError::~WinError() = default;

DWORD WinError::code() const noexcept
{
    return m_code;
}
