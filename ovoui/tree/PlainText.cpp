#include <ovoui/tree/PlainText.h>

#include <ovoui/frame/ClipboardText.h>

void cachePlaintext(COleDataSource& source, const std::wstring& text)
{
    ovoui::frame::offerText(source, text);
}

void copyPlaintext(const std::wstring& text)
{
    ovoui::frame::copyByOle(text);
}
