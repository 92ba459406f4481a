#include <ovocor/Url.h>

#include <ovocor/Download.h>
#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovocor/WinError.h>
#include <ovocor/WinInet.h>
#include <ovomsg/ovomsg.h>

std::wstring canonicalizeUrl(const std::wstring& url)
{
    const OVO::WinInet& inet = OVO::WinInet::get();
    std::wstring canonical(url.size() + 64, L'\0');
    while (true) {
        auto size = static_cast<DWORD>(canonical.size());
        if (!url.empty() && inet.canonicalizeUrl(url.c_str(), canonical.data(), &size, 0)) {
            canonical.resize(size);
            return canonical;
        }
        const DWORD code = url.empty() ? ERROR_INTERNET_INVALID_URL : ::GetLastError();
        // The size needed counts the terminator, and never shrinks what was offered: the loop ends.
        if (code != ERROR_INSUFFICIENT_BUFFER || size <= canonical.size())
            throw OvoError(stringPrintf(ovoMsg(OVOMSG_ADDRESS_INVALID).c_str(), url.c_str(),
                                        formatMessage(code, inet.module).c_str()));
        canonical.resize(size);
    }
}

std::wstring downloadUrlToCache(const std::wstring& url)
{
    DownloadControl alone;
    return downloadUrlToCache(url, alone);
}

std::wstring downloadUrlToCache(const std::wstring& url, DownloadControl& control)
{
    return OVO::Download(url, control).run();
}
