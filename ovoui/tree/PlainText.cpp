#include <ovoui/tree/PlainText.h>

#include <ovoui/frame/GlobalMemory.h>

#include <ovocor/Text.h>

#include <afxole.h>

namespace
{

void offer(COleDataSource& source, CLIPFORMAT format, const void* bytes, std::size_t size)
{
    if (ovoui::frame::GlobalMemory memory = ovoui::frame::globalCopy(bytes, size))
        source.CacheGlobalData(format, memory.release());
}

} // namespace

void cachePlaintext(COleDataSource& source, const std::wstring& text)
{
    offer(source, CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    const std::string narrow = getMBS(text);
    offer(source, CF_TEXT, narrow.c_str(), narrow.size() + 1);
}
