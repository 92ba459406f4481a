// The one table of pages.
#pragma once

#include "GalleryPage.h"

#include <memory>
#include <string_view>
#include <vector>

/// What pages have in common, in the order of their commands.
enum class PageGroup
{
    All,
    Frame,
    Bars,
    Lists,
    Values,
    Dialogs
};

struct PageEntry
{
    const wchar_t* name;    ///< on the command line and in file names
    const wchar_t* title;   ///< in the list and above the page
    const wchar_t* summary; ///< one sentence below the title
    std::shared_ptr<GalleryPage> (*make)();
    PageGroup group = PageGroup::Dialogs;
};

const std::vector<PageEntry>& pageTable();

/// Null when there is no such page.
const PageEntry* findPage(std::wstring_view name);
