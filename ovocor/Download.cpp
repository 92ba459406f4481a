#include <ovocor/Download.h>

#include <ovocor/CacheFile.h>
#include <ovocor/ControlledRequest.h>
#include <ovocor/Text.h>
#include <ovocor/Url.h>
#include <ovocor/WinError.h>
#include <ovocor/core/Escapes.h>
#include <ovomsg/ovomsg.h>

#include <algorithm>
#include <cwchar>
#include <string_view>
#include <vector>

namespace OVO
{

namespace
{

constexpr DWORD kTimeout = 30'000; // milliseconds, for each step of a conversation
constexpr std::size_t kPiece = 64 * 1024;

bool isCertificateError(DWORD code)
{
    switch (code) {
    case ERROR_INTERNET_SEC_CERT_DATE_INVALID:
    case ERROR_INTERNET_SEC_CERT_CN_INVALID:
    case ERROR_INTERNET_SEC_CERT_ERRORS:
    case ERROR_INTERNET_SEC_CERT_REV_FAILED:
    case ERROR_INTERNET_SEC_CERT_REVOKED:
    case ERROR_INTERNET_INVALID_CA:
    case ERROR_INTERNET_SECURITY_CHANNEL_ERROR:
        return true;
    default:
        return false;
    }
}

/// What the user can do about the answer of a web server.
OvoMessageId remedyFor(DWORD status)
{
    switch (status) {
    case HTTP_STATUS_DENIED:
    case HTTP_STATUS_FORBIDDEN:
    case HTTP_STATUS_PROXY_AUTH_REQ:
        return OVOMSG_DOWNLOAD_DENIED;
    case HTTP_STATUS_NOT_FOUND:
    case HTTP_STATUS_GONE:
        return OVOMSG_DOWNLOAD_NOT_FOUND;
    default:
        return status >= HTTP_STATUS_SERVER_ERROR ? OVOMSG_DOWNLOAD_SERVER_ERROR : OVOMSG_DOWNLOAD_REFUSED;
    }
}

const wchar_t* orNull(const std::wstring& text)
{
    return text.empty() ? nullptr : text.c_str();
}

} // namespace

Download::Download(const std::wstring& url, DownloadControl& control)
    : m_inet(WinInet::get())
    , m_control(control)
    , m_url(url)
    , m_canonical(canonicalizeUrl(url))
{
    takeApart();
}

void Download::takeApart()
{
    URL_COMPONENTSW parts{};
    parts.dwStructSize = sizeof parts;
    // A length other than 0 asks for the part.
    parts.dwHostNameLength = 1;
    parts.dwUserNameLength = 1;
    parts.dwPasswordLength = 1;
    parts.dwUrlPathLength = 1;
    parts.dwExtraInfoLength = 1;
    if (!m_inet.crackUrl(m_canonical.c_str(), static_cast<DWORD>(m_canonical.size()), 0, &parts))
        failWith(::GetLastError());

    if (parts.nScheme != INTERNET_SCHEME_HTTP && parts.nScheme != INTERNET_SCHEME_HTTPS)
        fail(ovoMsg(OVOMSG_DOWNLOAD_SCHEME));
    if (parts.dwHostNameLength == 0)
        fail(ovoMsg(OVOMSG_DOWNLOAD_NO_SERVER));
    m_secure = parts.nScheme == INTERNET_SCHEME_HTTPS;
    m_port = parts.nPort;
    m_host.assign(parts.lpszHostName, parts.dwHostNameLength);
    // Servers are told what these stand for.
    m_user = withoutEscapes({parts.lpszUserName, parts.dwUserNameLength});
    m_password = withoutEscapes({parts.lpszPassword, parts.dwPasswordLength});
    m_object.assign(parts.lpszUrlPath, parts.dwUrlPathLength);
    m_object += std::wstring_view(parts.lpszExtraInfo, parts.dwExtraInfoLength);
    m_object.erase(std::min(m_object.find(L'#'), m_object.size())); // the fragment is not sent to a server
}

std::wstring Download::run()
{
    const InternetHandle session(
        checked(m_inet.open(L"ovocor/11", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0)));
    const InternetHandle connection(
        checked(m_inet.connect(session.get(), m_host.c_str(), m_port, orNull(m_user), orNull(m_password),
                               INTERNET_SERVICE_HTTP, 0, 0)));
    ControlledRequest request(checked(m_inet.openRequest(connection.get(), nullptr, m_object.c_str(), nullptr,
                                                         nullptr, nullptr, requestFlags(), 0)),
                              m_control);
    limitWaiting(request.get());
    if (!m_inet.sendRequest(request.get(), nullptr, 0, nullptr, 0))
        failWith(::GetLastError());
    checkAnswer(request.get());

    const std::optional<std::uint64_t> announced = announcedSize(request.get());
    CacheFile file(m_url);
    request.expect(announced.value_or(0));
    const std::uint64_t size = copy(request, file);
    if (announced && size != *announced)
        fail(stringPrintf(ovoMsg(OVOMSG_DOWNLOAD_CUT).c_str(), size, *announced));
    file.commit();
    return file.path();
}

/// The file is written here and entered into the cache when it is known to be whole; WinINet itself would
/// also keep the first part of a body that was cut short.
DWORD Download::requestFlags() const
{
    return INTERNET_FLAG_RELOAD | INTERNET_FLAG_PRAGMA_NOCACHE | INTERNET_FLAG_NO_CACHE_WRITE |
           INTERNET_FLAG_NO_UI | (m_secure ? INTERNET_FLAG_SECURE : 0);
}

/// The caller's thread waits meanwhile, so it must not wait for ever.
void Download::limitWaiting(HINTERNET request) const
{
    const auto set = [&](DWORD option, DWORD value) {
        m_inet.setOption(request, option, &value, sizeof value);
    };
    set(INTERNET_OPTION_CONNECT_TIMEOUT, kTimeout);
    set(INTERNET_OPTION_SEND_TIMEOUT, kTimeout);
    set(INTERNET_OPTION_RECEIVE_TIMEOUT, kTimeout);
    set(INTERNET_OPTION_CONNECT_RETRIES, 1);
}

void Download::checkAnswer(HINTERNET request) const
{
    DWORD status = 0;
    DWORD size = sizeof status;
    if (!m_inet.queryInfo(request, HTTP_QUERY_STATUS_CODE | HTTP_QUERY_FLAG_NUMBER, &status, &size, nullptr))
        failWith(::GetLastError());
    if (status >= HTTP_STATUS_OK && status < HTTP_STATUS_AMBIGUOUS)
        return;

    wchar_t reason[128]{};
    size = sizeof reason;
    m_inet.queryInfo(request, HTTP_QUERY_STATUS_TEXT, reason, &size, nullptr);
    const std::wstring answer = std::to_wstring(status) + (*reason ? L" " : L"") + reason;
    fail(stringPrintf(ovoMsg(OVOMSG_DOWNLOAD_ANSWER).c_str(), m_host.c_str(), answer.c_str(),
                      ovoMsg(remedyFor(status)).c_str()));
}

std::optional<std::uint64_t> Download::announcedSize(HINTERNET request) const
{
    wchar_t digits[32]{};
    DWORD size = sizeof digits;
    if (!m_inet.queryInfo(request, HTTP_QUERY_CONTENT_LENGTH, digits, &size, nullptr))
        return std::nullopt;
    return std::wcstoull(digits, nullptr, 10);
}

std::uint64_t Download::copy(ControlledRequest& request, CacheFile& file) const
{
    std::vector<char> piece(kPiece);
    std::uint64_t total = 0;
    while (true) {
        DWORD got = 0;
        if (!m_inet.readFile(request.get(), piece.data(), static_cast<DWORD>(piece.size()), &got))
            failWith(::GetLastError());
        if (got == 0 && m_control.cancelled())
            throw DownloadCancelled();
        if (got == 0)
            return total;
        file.write(piece.data(), got);
        total += got;
        request.receive(total);
    }
}

HINTERNET Download::checked(HINTERNET handle) const
{
    if (!handle)
        failWith(::GetLastError());
    return handle;
}

void Download::fail(const std::wstring& cause) const
{
    throw OvoError(stringPrintf(ovoMsg(OVOMSG_DOWNLOAD_FAILED).c_str(), m_url.c_str(), cause.c_str()));
}

void Download::failWith(DWORD code) const
{
    if (m_control.cancelled())
        throw DownloadCancelled();
    fail(causeOf(code));
}

std::wstring Download::causeOf(DWORD code) const
{
    const auto ofServer = [&](OvoMessageId message) {
        return stringPrintf(ovoMsg(message).c_str(), m_host.c_str());
    };
    switch (code) {
    case ERROR_INTERNET_INVALID_URL:
    case ERROR_INTERNET_UNRECOGNIZED_SCHEME:
        return ovoMsg(OVOMSG_DOWNLOAD_INVALID);
    case ERROR_INTERNET_NAME_NOT_RESOLVED:
        return ofServer(OVOMSG_DOWNLOAD_NOT_RESOLVED);
    case ERROR_INTERNET_CANNOT_CONNECT:
        return ofServer(OVOMSG_DOWNLOAD_NOT_CONNECTED);
    case ERROR_INTERNET_TIMEOUT:
        return ofServer(OVOMSG_DOWNLOAD_TIMEOUT);
    case ERROR_INTERNET_CONNECTION_ABORTED:
    case ERROR_INTERNET_CONNECTION_RESET:
    case ERROR_HTTP_INVALID_SERVER_RESPONSE:
        return ofServer(OVOMSG_DOWNLOAD_LOST);
    default:
        break;
    }
    const std::wstring text = formatMessage(code, m_inet.module);
    if (isCertificateError(code))
        return stringPrintf(ovoMsg(OVOMSG_DOWNLOAD_CERTIFICATE).c_str(), m_host.c_str(), text.c_str());
    return text;
}

} // namespace OVO
