#include "ProjectItem.h"

#include <algorithm>
#include <iterator>
#include <utility>

ProjectItem::Pointer ProjectItem::make(std::wstring name, Kind kind, std::vector<Pointer> items)
{
    auto item = std::make_shared<ProjectItem>();
    item->name = std::move(name);
    item->kind = kind;
    for (Pointer& each : items)
        each->parent = item.get();
    item->items = std::move(items);
    return item;
}

ProjectItem::Pointer ProjectItem::makeProject()
{
    const auto file = [](const wchar_t* name) { return make(name, Kind::File); };
    return make(
        L"", Kind::Folder,
        {make(L"Garden", Kind::Folder,
              {make(L"Beds (sorted)", Kind::SortedFolder,
                    {file(L"Dahlias.plan"), file(L"Herbs.plan"), file(L"Roses.plan"), file(L"Tulips.plan")}),
               make(L"To do (in your order)", Kind::Folder,
                    {file(L"Order seeds"), file(L"Sharpen tools"), file(L"Turn the compost")}),
               make(L"Licence.txt", Kind::LockedFile)}),
         make(L"Unreadable drive", Kind::BrokenFolder), file(L"Notes.txt")});
}

ProjectItem::Pointer ProjectItem::makeArchive()
{
    const auto file = [](const wchar_t* name) { return make(name, Kind::File); };
    return make(L"", Kind::Folder,
                {make(L"Archive", Kind::SortedFolder,
                      {make(L"2024", Kind::SortedFolder, {file(L"Pumpkins.plan"), file(L"Sunflowers.plan")}),
                       make(L"2025", Kind::SortedFolder, {file(L"Beans.plan"), file(L"Maize.plan")})}),
                 make(L"Bin", Kind::Folder)});
}

bool ProjectItem::holds(const ProjectItem& other) const
{
    const ProjectItem* at = &other;
    while (at && at != this)
        at = at->parent;
    return at != nullptr;
}

ProjectItem* ProjectItem::find(const std::wstring& wanted) const
{
    const auto found = std::ranges::find(items, wanted, [](const Pointer& item) { return item->name; });
    return found == items.end() ? nullptr : found->get();
}

ProjectItem::Pointer ProjectItem::copy() const
{
    std::vector<Pointer> copies;
    std::ranges::transform(items, std::back_inserter(copies),
                           [](const Pointer& item) { return item->copy(); });
    return make(name, kind, std::move(copies));
}

void ProjectItem::add(Pointer item, int position)
{
    const std::wstring name = item->name;
    for (int number = 2; find(item->name); ++number)
        item->name = name + L" (" + std::to_wstring(number) + L")";
    item->parent = this;
    const auto count = static_cast<int>(items.size());
    items.insert(items.begin() + (position < 0 ? count : std::min(position, count)), std::move(item));
}

void ProjectItem::leave()
{
    if (ProjectItem* const folder = std::exchange(parent, nullptr))
        std::erase_if(folder->items, [this](const Pointer& item) { return item.get() == this; });
}

ProjectItem::Count ProjectItem::count() const
{
    if (!isFolder())
        return {1, published ? 1 : 0};
    Count all;
    for (const Pointer& item : items) {
        const Count in = item->count();
        all.files += in.files;
        all.published += in.published;
    }
    return all;
}

void ProjectItem::publish(bool publishedNow)
{
    published = publishedNow;
    for (const Pointer& item : items)
        item->publish(publishedNow);
}
