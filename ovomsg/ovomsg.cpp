#include <ovomsg/ovomsg.h>

#include <windows.h>

#include <messages.h> // written by the message compiler

#include <string_view>

static_assert(OVOMSG_URL_SCHEME == CATALOGUE_URL_SCHEME);
static_assert(OVOMSG_URL_INVALID == CATALOGUE_URL_INVALID);
static_assert(OVOMSG_URL_NOT_OPENED == CATALOGUE_URL_NOT_OPENED);
static_assert(OVOMSG_UPDATE_LIST_INCOMPLETE == CATALOGUE_UPDATE_LIST_INCOMPLETE);
static_assert(OVOMSG_UPDATE_LIST_NOT_SECURE == CATALOGUE_UPDATE_LIST_NOT_SECURE);
static_assert(OVOMSG_UPDATE_LIST_UNSIGNED == CATALOGUE_UPDATE_LIST_UNSIGNED);
static_assert(OVOMSG_UPDATE_LIST_ALTERED == CATALOGUE_UPDATE_LIST_ALTERED);
static_assert(OVOMSG_UPDATE_LIST_OLD == CATALOGUE_UPDATE_LIST_OLD);
static_assert(OVOMSG_UPDATE_LIST_NOT_READ == CATALOGUE_UPDATE_LIST_NOT_READ);
static_assert(OVOMSG_FILE_NOT_OPENED == CATALOGUE_FILE_NOT_OPENED);
static_assert(OVOMSG_FILE_NOT_READ == CATALOGUE_FILE_NOT_READ);
static_assert(OVOMSG_CLIPBOARD_BUSY == CATALOGUE_CLIPBOARD_BUSY);
static_assert(OVOMSG_CLIPBOARD_NO_OLE == CATALOGUE_CLIPBOARD_NO_OLE);
static_assert(OVOMSG_DOWNLOAD_FAILED == CATALOGUE_DOWNLOAD_FAILED);
static_assert(OVOMSG_DOWNLOAD_SCHEME == CATALOGUE_DOWNLOAD_SCHEME);
static_assert(OVOMSG_DOWNLOAD_NO_SERVER == CATALOGUE_DOWNLOAD_NO_SERVER);
static_assert(OVOMSG_DOWNLOAD_CUT == CATALOGUE_DOWNLOAD_CUT);
static_assert(OVOMSG_DOWNLOAD_ANSWER == CATALOGUE_DOWNLOAD_ANSWER);
static_assert(OVOMSG_DOWNLOAD_DENIED == CATALOGUE_DOWNLOAD_DENIED);
static_assert(OVOMSG_DOWNLOAD_NOT_FOUND == CATALOGUE_DOWNLOAD_NOT_FOUND);
static_assert(OVOMSG_DOWNLOAD_SERVER_ERROR == CATALOGUE_DOWNLOAD_SERVER_ERROR);
static_assert(OVOMSG_DOWNLOAD_REFUSED == CATALOGUE_DOWNLOAD_REFUSED);
static_assert(OVOMSG_DOWNLOAD_INVALID == CATALOGUE_DOWNLOAD_INVALID);
static_assert(OVOMSG_DOWNLOAD_NOT_RESOLVED == CATALOGUE_DOWNLOAD_NOT_RESOLVED);
static_assert(OVOMSG_DOWNLOAD_NOT_CONNECTED == CATALOGUE_DOWNLOAD_NOT_CONNECTED);
static_assert(OVOMSG_DOWNLOAD_TIMEOUT == CATALOGUE_DOWNLOAD_TIMEOUT);
static_assert(OVOMSG_DOWNLOAD_LOST == CATALOGUE_DOWNLOAD_LOST);
static_assert(OVOMSG_DOWNLOAD_CERTIFICATE == CATALOGUE_DOWNLOAD_CERTIFICATE);
static_assert(OVOMSG_DOWNLOAD_CANCELLED == CATALOGUE_DOWNLOAD_CANCELLED);
static_assert(OVOMSG_ADDRESS_INVALID == CATALOGUE_ADDRESS_INVALID);
static_assert(OVOMSG_CACHE_NOT_WRITTEN == CATALOGUE_CACHE_NOT_WRITTEN);
static_assert(OVOMSG_CSV_LINE == CATALOGUE_CSV_LINE);
static_assert(OVOMSG_CSV_QUOTE_CONTINUES == CATALOGUE_CSV_QUOTE_CONTINUES);
static_assert(OVOMSG_CSV_QUOTE_INSIDE == CATALOGUE_CSV_QUOTE_INSIDE);
static_assert(OVOMSG_CSV_QUOTE_OPEN == CATALOGUE_CSV_QUOTE_OPEN);
static_assert(OVOMSG_CSV_NO_COLUMNS == CATALOGUE_CSV_NO_COLUMNS);
static_assert(OVOMSG_CSV_HEADER_ROWS == CATALOGUE_CSV_HEADER_ROWS);
static_assert(OVOMSG_NUMBER_RANGE == CATALOGUE_NUMBER_RANGE);
static_assert(OVOMSG_SVG_NOT_WELL_FORMED == CATALOGUE_SVG_NOT_WELL_FORMED);
static_assert(OVOMSG_SVG_NOT_SVG == CATALOGUE_SVG_NOT_SVG);
static_assert(OVOMSG_SVG_TOO_LARGE == CATALOGUE_SVG_TOO_LARGE);
static_assert(OVOMSG_SVG_TOO_INTRICATE == CATALOGUE_SVG_TOO_INTRICATE);

namespace
{

constexpr int kTables = 1; // the resource that the message tables are, one a language

/// The module that this code is in.
HMODULE ownModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<const wchar_t*>(&ovoMsg), &module);
    return module;
}

/// The message table in the language that dialogs and strings are in, too: FormatMessage would go by the
/// locale of the thread instead.
const char* table()
{
    const HMODULE module = ownModule();
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(kTables), RT_MESSAGETABLE);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    return loaded ? static_cast<const char*>(::LockResource(loaded)) : nullptr;
}

/// The text of one entry. A table holds blocks of numbers in a row, and each block its entries one behind the
/// other.
std::wstring_view entryOf(const char* table, unsigned id)
{
    const auto& data = *reinterpret_cast<const MESSAGE_RESOURCE_DATA*>(table);
    for (DWORD i = 0; i < data.NumberOfBlocks; ++i) {
        const MESSAGE_RESOURCE_BLOCK& block = data.Blocks[i];
        if (id < block.LowId || id > block.HighId)
            continue;
        const char* at = table + block.OffsetToEntries;
        for (unsigned skip = id - block.LowId; skip > 0; --skip)
            at += reinterpret_cast<const MESSAGE_RESOURCE_ENTRY*>(at)->Length;
        return reinterpret_cast<const wchar_t*>(reinterpret_cast<const MESSAGE_RESOURCE_ENTRY*>(at)->Text);
    }
    return {};
}

} // namespace

std::wstring ovoMsg(unsigned id)
{
    const char* const messages = table();
    const std::wstring_view text = messages ? entryOf(messages, id) : std::wstring_view();
    if (text.empty())
        return L"Message " + std::to_wstring(id) + L" is missing from the message catalogue.";
    return std::wstring(text.substr(0, text.find_last_not_of(L"\r\n") + 1));
}
