// What the tree page shows: a project of folders and files, kept as plain data.
#pragma once

#include <memory>
#include <string>
#include <vector>

struct ProjectItem
{
    enum class Kind
    {
        Folder,
        SortedFolder, ///< keeps what is in it in order
        BrokenFolder, ///< cannot be opened
        File,
        LockedFile, ///< can neither be renamed nor deleted
        Link
    };

    using Pointer = std::shared_ptr<ProjectItem>;

    std::wstring name;
    Kind kind = Kind::File;
    std::vector<Pointer> items;
    ProjectItem* parent = nullptr;
    bool published = false; ///< the user's mark, of files only

    static Pointer make(std::wstring name, Kind kind, std::vector<Pointer> items = {});

    /// A garden project for the left tree, an archive for the right one.
    static Pointer makeProject();
    static Pointer makeArchive();

    bool isFolder() const { return kind <= Kind::BrokenFolder; }
    bool isSorted() const { return kind == Kind::SortedFolder; }
    bool isLocked() const { return kind == Kind::LockedFile; }

    /// How many files are in here, and how many of them are published.
    struct Count
    {
        int files = 0;
        int published = 0;
    };
    Count count() const;
    /// Marks this file, or all in this folder.
    void publish(bool published);

    /// Whether `other` is this item or somewhere in it.
    bool holds(const ProjectItem& other) const;
    ProjectItem* find(const std::wstring& wanted) const;

    /// The item and all in it once more, in no folder.
    Pointer copy() const;

    /// Puts an item behind `position` others (-1: behind all), under a name that no other one here has.
    void add(Pointer item, int position);
    /// Takes this item out of its folder.
    void leave();
};
