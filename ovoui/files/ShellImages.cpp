#include <ovoui/files/ShellImages.h>

#include <shellapi.h>

namespace
{

constexpr UINT kSmallByName = SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX;

} // namespace

CImageList* shellImages()
{
    SHFILEINFOW info{};
    const auto list = ::SHGetFileInfoW(L"file", FILE_ATTRIBUTE_NORMAL, &info, sizeof info, kSmallByName);
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(list));
}

int shellImage(LPCWSTR name, DWORD attributes, bool open)
{
    SHFILEINFOW info{};
    const UINT how = kSmallByName | (open ? SHGFI_OPENICON : 0);
    return ::SHGetFileInfoW(name, attributes, &info, sizeof info, how) ? info.iIcon : 0;
}
