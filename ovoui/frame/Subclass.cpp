#include <ovoui/frame/Subclass.h>

#include <ovoui/frame/EntryPoint.h>

#include <atomic>

namespace ovoui::frame
{

namespace
{

// The numbers of the functions
constexpr WORD kSet = 410;
constexpr WORD kRemove = 412;
constexpr WORD kNext = 413;

/// The common controls that this library is bound to: the process may have another version of them as well.
HMODULE commonControls()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&::ImageList_GetIconSize), &module);
    return module;
}

/// Looked for until it is found, then kept.
template <class Function, WORD kNumber>
Function common()
{
    static std::atomic<Function> s_found = nullptr;
    Function function = s_found;
    if (!function)
        s_found = function = entryPoint<Function>(commonControls(), MAKEINTRESOURCEA(kNumber));
    return function;
}

auto set()
{
    return common<decltype(&::SetWindowSubclass), kSet>();
}

auto remove()
{
    return common<decltype(&::RemoveWindowSubclass), kRemove>();
}

auto next()
{
    return common<decltype(&::DefSubclassProc), kNext>();
}

} // namespace

bool setSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data)
{
    // All three are found from now on, or none is needed.
    return set() && remove() && next() && set()(window, procedure, id, data);
}

void removeSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id)
{
    if (const auto function = remove())
        function(window, procedure, id);
}

LRESULT nextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return next()(window, message, wParam, lParam);
}

} // namespace ovoui::frame
