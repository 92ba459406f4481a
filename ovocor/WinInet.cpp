#include <ovocor/WinInet.h>

#include <ovocor/Library.h>
#include <ovocor/WinError.h>

namespace OVO
{

namespace
{

template <class Function>
void fetch(HMODULE module, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
    if (!function)
        throw WinError(L"wininet.dll", ::GetLastError());
}

WinInet load()
{
    WinInet inet;
    inet.module = LoadSystemLibrary(L"wininet.dll");
    if (!inet.module)
        throw WinError(L"wininet.dll", ::GetLastError());
    fetch(inet.module, "InternetCanonicalizeUrlW", inet.canonicalizeUrl);
    fetch(inet.module, "InternetCrackUrlW", inet.crackUrl);
    fetch(inet.module, "InternetOpenW", inet.open);
    fetch(inet.module, "InternetSetOptionW", inet.setOption);
    fetch(inet.module, "InternetConnectW", inet.connect);
    fetch(inet.module, "HttpOpenRequestW", inet.openRequest);
    fetch(inet.module, "HttpSendRequestW", inet.sendRequest);
    fetch(inet.module, "InternetReadFile", inet.readFile);
    fetch(inet.module, "InternetCloseHandle", inet.closeHandle);
    fetch(inet.module, "HttpQueryInfoW", inet.queryInfo);
    fetch(inet.module, "CreateUrlCacheEntryW", inet.createCacheEntry);
    fetch(inet.module, "CommitUrlCacheEntryW", inet.commitCacheEntry);
    return inet;
}

} // namespace

const WinInet& WinInet::get()
{
    static const WinInet inet = load();
    return inet;
}

} // namespace OVO
