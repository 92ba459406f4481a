#include <ovoui/frame/ClipboardText.h>

#include <ovoui/frame/GlobalMemory.h>

#include <string>

namespace ovoui::frame
{
namespace
{

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
    const std::wstring copy(text); // ends with a zero
    GlobalMemory memory = globalCopy(copy.c_str(), (copy.size() + 1) * sizeof(wchar_t));
    const OpenedClipboard clipboard(owner);
    if (!memory || !clipboard || !::EmptyClipboard())
        return false;
    if (!::SetClipboardData(CF_UNICODETEXT, memory.get()))
        return false;
    memory.release(); // the clipboard owns it now
    return true;
}

} // namespace ovoui::frame
