#include <ovoui/frame/core/LanguageChoice.h>

#include <algorithm>

namespace ovoui::frame
{
namespace
{

constexpr int kEnglish = 9;

int primaryOf(LanguageId id)
{
    return id & 0x3FF;
}

bool hasRegion(LanguageId id)
{
    return id >> 10 != 0;
}

} // namespace

std::vector<LanguageId> languagesAmong(const std::vector<LanguageId>& marks)
{
    std::vector<LanguageId> languages = marks;
    std::erase_if(languages, hasRegion);
    std::ranges::stable_partition(languages, [](LanguageId id) { return primaryOf(id) == kEnglish; });
    return languages;
}

LanguageId withRegionOfMarks(const std::vector<LanguageId>& marks, LanguageId language)
{
    const auto found = std::ranges::find_if(
        marks, [&](LanguageId mark) { return primaryOf(mark) == primaryOf(language) && hasRegion(mark); });
    return found == marks.end() ? LanguageId{0} : *found;
}

} // namespace ovoui::frame
