#include <ovoui/tree/AppendPosition.h>

namespace ovoui::tree
{

HTREEITEM behindLast(HTREEITEM last)
{
    static const bool wine =
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return wine ? TVI_LAST : last;
}

} // namespace ovoui::tree
