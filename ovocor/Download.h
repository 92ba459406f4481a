/// Not exported. One download into the system's URL cache.
#pragma once

#include <ovocor/DownloadControl.h>
#include <ovocor/WinInet.h>

#include <cstdint>
#include <optional>
#include <string>

namespace OVO
{

class CacheFile;
class ControlledRequest;

/// Fetches one address. Every failure is an OvoError that names the address, the cause and a remedy, or
/// DownloadCancelled.
class Download
{
public:
    /// The control is borrowed.
    Download(const std::wstring& url, DownloadControl& control);

    /// Gives the full name of the local file.
    std::wstring run();

private:
    void takeApart();
    DWORD requestFlags() const;
    void limitWaiting(HINTERNET request) const;
    void checkAnswer(HINTERNET request) const;
    std::optional<std::uint64_t> announcedSize(HINTERNET request) const;
    std::uint64_t copy(ControlledRequest& request, CacheFile& file) const;

    HINTERNET checked(HINTERNET handle) const;
    [[noreturn]] void fail(const std::wstring& cause) const;
    [[noreturn]] void failWith(DWORD code) const;
    std::wstring causeOf(DWORD code) const;

    const WinInet& m_inet;
    DownloadControl& m_control;
    std::wstring m_url;
    std::wstring m_canonical;
    bool m_secure = false;
    INTERNET_PORT m_port = 0;
    std::wstring m_host;
    std::wstring m_user;
    std::wstring m_password;
    std::wstring m_object; // path and query
};

} // namespace OVO
