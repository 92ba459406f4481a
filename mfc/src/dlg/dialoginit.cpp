#include "dialoginit.h"

#include <cstring>

namespace afxdetail
{

namespace
{

const LPCTSTR kDialogInitType = MAKEINTRESOURCEW(240);

// How resource editors name the two messages, whatever the system's numbers are now.
constexpr WORD kOldListAddString = 0x0401;
constexpr WORD kOldComboAddString = 0x0403;

/// One message of the resource: three fields, packed, and the data behind them.
struct Entry
{
    WORD control;
    WORD message;
    DWORD length;
};
constexpr std::size_t kEntrySize = 8;

Entry readEntry(const BYTE* position)
{
    Entry entry{};
    std::memcpy(&entry.control, position, 2);
    if (entry.control == 0)
        return entry; // the end: nothing more may be read
    std::memcpy(&entry.message, position + 2, 2);
    std::memcpy(&entry.length, position + 4, 4);
    return entry;
}

UINT messageOf(const Entry& entry)
{
    switch (entry.message) {
    case kOldListAddString:
        return LB_ADDSTRING;
    case kOldComboAddString:
        return CB_ADDSTRING;
    default:
        return entry.message;
    }
}

bool send(HWND dialog, const Entry& entry, const BYTE* data)
{
    const UINT message = messageOf(entry);
    // Texts are narrow in these resources.
    const LRESULT result =
        ::SendDlgItemMessageA(dialog, entry.control, message, 0, reinterpret_cast<LPARAM>(data));
    const bool addsText = message == LB_ADDSTRING || message == CB_ADDSTRING;
    return !addsText || result >= 0;
}

} // namespace

bool runDialogInit(HWND dialog, const void* data)
{
    const auto* position = static_cast<const BYTE*>(data);
    if (!position)
        return true;
    for (Entry entry = readEntry(position); entry.control != 0; entry = readEntry(position)) {
        if (!send(dialog, entry, position + kEntrySize))
            return false;
        position += kEntrySize + entry.length;
    }
    return true;
}

bool runDialogInit(HWND dialog, LPCTSTR templateName)
{
    const HINSTANCE module = AfxFindResourceHandle(templateName, kDialogInitType);
    const HRSRC found = ::FindResourceW(module, templateName, kDialogInitType);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    return !loaded || runDialogInit(dialog, ::LockResource(loaded));
}

} // namespace afxdetail
