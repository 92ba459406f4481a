#include <ovoui/frame/Language.h>

#include <ovoui/frame/Module.h>
#include <ovoui/frame/Platform.h>
#include <ovoui/frame/core/LanguageChoice.h>
#include <ovouires/resource.h>

#include <cwchar>
#include <iterator>

using namespace ovoui::frame;

namespace
{

constexpr WORD kStringsOfBlock = 16;

/// What the texts are marked with: each language without a region and with one.
std::vector<LANGID> allRegions()
{
    const auto note = [](HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR list) -> BOOL {
        reinterpret_cast<std::vector<LANGID>*>(list)->push_back(language);
        return TRUE;
    };
    std::vector<LANGID> found;
    ::EnumResourceLanguagesW(ovoui::resourceModule(), RT_STRING,
                             MAKEINTRESOURCEW(IDS_LANGUAGE / kStringsOfBlock + 1), note,
                             reinterpret_cast<LONG_PTR>(&found));
    return found;
}

bool setThreadLanguage(LANGID language)
{
    // A list of one number of four digits, ended by an empty text; no list clears the choice.
    wchar_t list[6] = {};
    ::swprintf(list, std::size(list), L"%04X", language);
    ULONG count = 0;
    return ::SetThreadPreferredUILanguages(MUI_LANGUAGE_ID, language ? list : nullptr, &count) != FALSE;
}

} // namespace

std::vector<LANGID> textLanguages()
{
    return languagesAmong(allRegions());
}

bool setTextLanguage(LANGID language)
{
    const LANGID region = language ? withRegionOfMarks(allRegions(), language) : 0;
    if (language && !region)
        return false;
    if (!setThreadLanguage(region))
        return false;
    if (!ovoui::platform().takesLanguageFromLocale)
        return true;
    return ::SetThreadLocale(region ? MAKELCID(region, SORT_DEFAULT) : ::GetUserDefaultLCID()) != FALSE;
}

std::wstring textLanguage()
{
    return ovoui::resourceString(IDS_LANGUAGE);
}
