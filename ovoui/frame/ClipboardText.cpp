#include <ovoui/frame/ClipboardText.h>

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovocor/WinError.h>

#include <ovomsg/ovomsg.h>

#include <afxole.h>

#include <algorithm>
#include <memory>

namespace ovoui::frame
{
namespace
{

constexpr int kTries = 5;
constexpr DWORD kPause = 50; // milliseconds between two of them

class OpenedClipboard
{
public:
    explicit OpenedClipboard(HWND owner)
        : m_open(::OpenClipboard(owner) != FALSE)
    {
    }
    ~OpenedClipboard()
    {
        if (m_open)
            ::CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return m_open; }

private:
    bool m_open;
};

bool put(ClipboardFormat& contents)
{
    if (!::SetClipboardData(contents.format, contents.memory.get()))
        return false;
    contents.memory.release(); // the clipboard owns it now
    return true;
}

void offer(COleDataSource& source, CLIPFORMAT format, GlobalMemory memory)
{
    if (memory)
        source.CacheGlobalData(format, memory.release());
}

/// What OLE says to it.
HRESULT copy(const std::wstring& text)
{
    auto source = std::make_unique<COleDataSource>();
    offerText(*source, text);
    HRESULT status = S_OK;
    try {
        source->SetClipboard();
        source.release(); // the clipboard owns it now
        return status;
    } catch (COleException* error) {
        status = error->m_sc;
        error->Delete();
    }
    source.release()->InternalRelease();
    return status;
}

} // namespace

bool setClipboard(HWND owner, std::span<ClipboardFormat> contents)
{
    const auto hasMemory = [](const ClipboardFormat& one) { return one.memory != nullptr; };
    if (!std::ranges::all_of(contents, hasMemory))
        return false;
    const OpenedClipboard clipboard(owner);
    return clipboard && ::EmptyClipboard() && std::ranges::all_of(contents, put);
}

bool setClipboardText(HWND owner, std::wstring_view text)
{
    ClipboardFormat contents[] = {{CF_UNICODETEXT, globalText(text)}};
    return setClipboard(owner, contents);
}

GlobalMemory globalText(std::wstring_view text)
{
    const std::wstring copy(text); // ends with a zero
    return globalCopy(copy.c_str(), (copy.size() + 1) * sizeof(wchar_t));
}

void offerText(COleDataSource& source, const std::wstring& text)
{
    offer(source, CF_UNICODETEXT, globalText(text));
    const std::string narrow = getMBS(text);
    offer(source, CF_TEXT, globalCopy(narrow.c_str(), narrow.size() + 1));
}

void copyByOle(const std::wstring& text)
{
    for (int attempt = 1;; ++attempt) {
        const HRESULT status = copy(text);
        if (SUCCEEDED(status))
            return;
        if (status == CO_E_NOTINITIALIZED)
            throw WinError(ovoMsg(OVOMSG_CLIPBOARD_NO_OLE), static_cast<DWORD>(status));
        if (attempt == kTries)
            throw OvoError(ovoMsg(OVOMSG_CLIPBOARD_BUSY));
        ::Sleep(kPause);
    }
}

} // namespace ovoui::frame
