#include <ovoui/frame/ClipboardText.h>

#include <algorithm>
#include <memory>

namespace ovoui::frame
{
namespace
{

struct FreeGlobal
{
    void operator()(void* memory) const { ::GlobalFree(memory); }
};
using GlobalMemory = std::unique_ptr<void, FreeGlobal>;

GlobalMemory globalText(std::wstring_view text)
{
    GlobalMemory memory{::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t))};
    auto* target = memory ? static_cast<wchar_t*>(::GlobalLock(memory.get())) : nullptr;
    if (!target)
        return nullptr;
    *std::copy(text.begin(), text.end(), target) = L'\0';
    ::GlobalUnlock(memory.get());
    return memory;
}

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

} // namespace

bool setClipboardText(HWND owner, std::wstring_view text)
{
    GlobalMemory memory = globalText(text);
    const OpenedClipboard clipboard(owner);
    if (!memory || !clipboard || !::EmptyClipboard())
        return false;
    if (!::SetClipboardData(CF_UNICODETEXT, memory.get()))
        return false;
    memory.release(); // the clipboard owns it now
    return true;
}

} // namespace ovoui::frame
