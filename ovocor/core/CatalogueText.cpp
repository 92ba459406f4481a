#include <ovocor/core/CatalogueText.h>

#ifdef _WIN32
#include <ovomsg/ovomsg.h>
#endif

namespace OVO
{
namespace
{

#ifdef _WIN32

std::wstring formatOf(OvoMessageId id)
{
    return ovoMsg(id);
}

#else

struct Message
{
    unsigned id;
    const wchar_t* text;
};

constexpr Message kEnglish[] = {
#include <EnglishTexts.inc>
};

std::wstring formatOf(OvoMessageId id)
{
    for (const Message& message : kEnglish)
        if (message.id == id)
            return message.text;
    return {};
}

#endif

} // namespace

std::wstring catalogueText(OvoMessageId id, std::initializer_list<std::wstring_view> arguments)
{
    constexpr std::wstring_view kPlace = L"%s";
    std::wstring text = formatOf(id);
    std::size_t at = 0;
    for (const std::wstring_view argument : arguments) {
        at = text.find(kPlace, at);
        if (at == text.npos)
            break;
        text.replace(at, kPlace.size(), argument);
        at += argument.size();
    }
    return text;
}

} // namespace OVO
