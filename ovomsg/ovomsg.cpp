#include <ovomsg/ovomsg.h>

#include <windows.h>

#include <messages.h> // written by the message compiler

#include <memory>

static_assert(OVOMSG_URL_SCHEME == CATALOGUE_URL_SCHEME);
static_assert(OVOMSG_URL_INVALID == CATALOGUE_URL_INVALID);
static_assert(OVOMSG_URL_NOT_OPENED == CATALOGUE_URL_NOT_OPENED);
static_assert(OVOMSG_UPDATE_LIST_INCOMPLETE == CATALOGUE_UPDATE_LIST_INCOMPLETE);
static_assert(OVOMSG_UPDATE_LIST_NOT_SECURE == CATALOGUE_UPDATE_LIST_NOT_SECURE);
static_assert(OVOMSG_UPDATE_LIST_UNSIGNED == CATALOGUE_UPDATE_LIST_UNSIGNED);
static_assert(OVOMSG_UPDATE_LIST_ALTERED == CATALOGUE_UPDATE_LIST_ALTERED);
static_assert(OVOMSG_UPDATE_LIST_OLD == CATALOGUE_UPDATE_LIST_OLD);

namespace
{

struct LocalDeleter
{
    void operator()(void* memory) const { ::LocalFree(memory); }
};

/// The module that this code is in.
HMODULE ownModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<const wchar_t*>(&ovoMsg), &module);
    return module;
}

std::wstring withoutLineEnd(std::wstring text)
{
    text.erase(text.find_last_not_of(L"\r\n") + 1);
    return text;
}

} // namespace

std::wstring ovoMsg(unsigned id)
{
    wchar_t* buffer = nullptr;
    const DWORD length = ::FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_IGNORE_INSERTS,
        ownModule(), id, 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    const std::unique_ptr<wchar_t, LocalDeleter> owner(buffer);
    if (length == 0)
        return L"Message " + std::to_wstring(id) + L" is missing from the message catalogue.";
    return withoutLineEnd({buffer, length});
}
