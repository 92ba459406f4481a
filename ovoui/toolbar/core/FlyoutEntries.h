/// What a flyout shows, and what follows when another of its entries becomes hot. Plain values, no windows.
#pragma once

#include <ovoui/toolbar/core/FlyoutRecords.h>

#include <string>
#include <vector>

namespace ovoui::toolbar
{

/// An entry that is a button of a toolbar resource.
struct ResourceEntry
{
    int entry = 0;  ///< in the order in which the entries were attached
    int button = 0; ///< of the resource, separators counted

    friend bool operator==(const ResourceEntry&, const ResourceEntry&) = default;
};

/// The entries of a record whose resource has `buttons` buttons. Those that it does not have are left out.
std::vector<ResourceEntry> entriesOfResource(const FlyoutRecord& record, int buttons);

inline constexpr int kNoImage = -2; ///< as the platform's toolbar has it

/// An entry of a list of commands.
struct ListedEntry
{
    int command = 0; ///< 0 for a separator
    int image = kNoImage;
    std::wstring name; ///< empty when the record names none

    bool isSeparator() const { return command == 0; }

    friend bool operator==(const ListedEntry&, const ListedEntry&) = default;
};

std::vector<ListedEntry> entriesOfList(const FlyoutRecord& record);

/// The strips that a flyout of its own images is to be given, each once, in the record's order.
std::vector<int> stripsOf(const FlyoutRecord& record);

inline constexpr int kNoEntry = -1;

/// The entry under the pointer, or kNoEntry: `hit` is what the control answers, `count` the number of its
/// buttons.
int entryUnder(int hit, int count, bool separator);

enum class HotStep
{
    Release, ///< the entry of before is not shown pressed any more
    HideTip,
    Press,
    ShowPrompt,
    ShowIdlePrompt,
    AwaitTip
};

/// When the entry `now` becomes hot in place of `before`; each may be kNoEntry.
std::vector<HotStep> hotSteps(int before, int now);

} // namespace ovoui::toolbar
