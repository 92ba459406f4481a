#include <ovoui/toolbar/core/FlyoutEntries.h>

#include <algorithm>
#include <cstddef>

namespace ovoui::toolbar
{

std::vector<ResourceEntry> entriesOfResource(const FlyoutRecord& record, int buttons)
{
    std::vector<ResourceEntry> entries;
    int entry = 0;
    for (const int button : record.buttonIndices) {
        if (button >= 0 && button < buttons)
            entries.push_back({entry, button});
        ++entry;
    }
    return entries;
}

std::vector<ListedEntry> entriesOfList(const FlyoutRecord& record)
{
    std::vector<ListedEntry> entries;
    for (std::size_t i = 0; i < record.commands.size(); ++i)
        entries.push_back({.command = record.commands[i],
                           .image = i < record.images.size() ? record.images[i] : kNoImage,
                           .name = i < record.names.size() ? record.names[i].value() : std::wstring()});
    return entries;
}

std::vector<int> stripsOf(const FlyoutRecord& record)
{
    std::vector<int> strips;
    for (const int strip : record.bitmapIds)
        if (std::ranges::find(strips, strip) == strips.end())
            strips.push_back(strip);
    return strips;
}

int entryUnder(int hit, int count, bool separator)
{
    return hit >= 0 && hit < count && !separator ? hit : kNoEntry;
}

std::vector<HotStep> hotSteps(int before, int now)
{
    using enum HotStep;
    if (before == now)
        return {};
    if (now == kNoEntry)
        return {Release, HideTip, ShowIdlePrompt};
    if (before == kNoEntry)
        return {HideTip, Press, ShowPrompt, AwaitTip};
    return {Release, HideTip, Press, ShowPrompt, AwaitTip};
}

} // namespace ovoui::toolbar
