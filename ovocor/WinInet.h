/// Not exported. WinINet, loaded when it is first needed.
#pragma once

#include <windows.h>
#include <wininet.h>

namespace OVO
{

/// The entry points in use. WinINet is a large library that few programs need at once, so it is not linked.
struct WinInet
{
    /// Throws WinError when WinINet is not there.
    static const WinInet& get();

    HMODULE module = nullptr; ///< also has the texts of WinINet's error codes

    decltype(&::InternetCanonicalizeUrlW) canonicalizeUrl = nullptr;
    decltype(&::InternetCrackUrlW) crackUrl = nullptr;
    decltype(&::InternetOpenW) open = nullptr;
    decltype(&::InternetSetOptionW) setOption = nullptr;
    decltype(&::InternetConnectW) connect = nullptr;
    decltype(&::HttpOpenRequestW) openRequest = nullptr;
    decltype(&::HttpSendRequestW) sendRequest = nullptr;
    decltype(&::InternetReadFile) readFile = nullptr;
    decltype(&::InternetCloseHandle) closeHandle = nullptr;
    decltype(&::HttpQueryInfoW) queryInfo = nullptr;
    decltype(&::CreateUrlCacheEntryW) createCacheEntry = nullptr;
    decltype(&::CommitUrlCacheEntryW) commitCacheEntry = nullptr;
};

/// Owns a handle of WinINet.
class InternetHandle
{
public:
    explicit InternetHandle(HINTERNET handle)
        : m_handle(handle)
    {
    }
    InternetHandle(const InternetHandle&) = delete;
    InternetHandle& operator=(const InternetHandle&) = delete;
    ~InternetHandle()
    {
        if (m_handle)
            WinInet::get().closeHandle(m_handle);
    }

    HINTERNET get() const { return m_handle; }
    explicit operator bool() const { return m_handle != nullptr; }

private:
    HINTERNET m_handle;
};

} // namespace OVO
