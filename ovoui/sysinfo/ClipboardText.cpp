#include <ovoui/sysinfo/ClipboardText.h>

#include <ovoui/tree/PlainText.h>

#include <ovocor/OvoError.h>

#include <ovomsg/ovomsg.h>

#include <afxole.h>

#include <memory>

namespace ovoui::sysinfo
{
namespace
{

constexpr int kTries = 5;
constexpr DWORD kPause = 50; // milliseconds between two of them

bool copied(const std::wstring& text)
{
    auto source = std::make_unique<COleDataSource>();
    cachePlaintext(*source, text);
    try {
        source->SetClipboard();
        source.release(); // the clipboard owns it now
        return true;
    } catch (COleException* error) {
        error->Delete();
    }
    source.release()->InternalRelease();
    return false;
}

} // namespace

void copyToClipboard(const std::wstring& text)
{
    for (int attempt = 1; !copied(text); ++attempt) {
        if (attempt == kTries)
            throw OvoError(ovoMsg(OVOMSG_CLIPBOARD_BUSY));
        ::Sleep(kPause);
    }
}

} // namespace ovoui::sysinfo
