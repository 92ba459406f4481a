// A tree of folders: each item is a node that knows its path.
#pragma once

#include <ovoui/ovoui.h>

#include <filesystem>

namespace fs = std::filesystem;

class FolderNode : public MultiTreeCtrl::Node
{
public:
    explicit FolderNode(const fs::path& path)
        : m_path(path.has_filename() ? path : path.parent_path())
    {
        children = 1; // until opening it shows that there are none
    }
    const fs::path& path() const { return m_path; }

    std::wstring text(const MultiTreeCtrl&) const override
    {
        return m_path.has_filename() ? m_path.filename().wstring() : m_path.wstring();
    }
    std::wstring infotip(MultiTreeCtrl&) const override { return m_path.wstring(); }
    int closedImage() const override { return shellImage(L"folder", FILE_ATTRIBUTE_DIRECTORY); }
    int openImage() const override { return shellImage(L"folder", FILE_ATTRIBUTE_DIRECTORY, true); }
    void activate(MultiTreeCtrl& tree) override { tree.Expand(hTreeItem(), TVE_TOGGLE); }

    /// What is thrown here is reported by the tree, and the folder stays closed.
    bool expand(MultiTreeCtrl& tree) override
    {
        fs::directory_iterator entries(m_path);
        children = 0;
        for (const auto& entry : entries)
            if (entry.is_directory())
                children = (new FolderNode(entry.path()))->insert(tree, hTreeItem(), TVI_SORT) ? 1 : 0;
        return true;
    }

private:
    fs::path m_path;
};

class FolderTree : public MultiTreeCtrl
{
public:
    void reportError(const wchar_t* text) override
    {
        OVOMessageBox(GetParent()->m_hWnd, text, nullptr, MB_OK | MB_ICONWARNING, L"FolderError", 0);
    }
    bool isCommandDisabled(unsigned) override { return false; }

    /// The folder that the caret is on; empty for none.
    fs::path folder() const
    {
        const auto caret = node(GetSelectedItem());
        return caret ? static_cast<FolderNode&>(*caret).path() : fs::path();
    }

    /// Shows the folders below this one.
    void open(const fs::path& root)
    {
        DeleteAllItems();
        const HTREEITEM item = (new FolderNode(root))->insert(*this, TVI_ROOT, TVI_LAST);
        Expand(item, TVE_EXPAND);
        SelectItem(item);
    }

    /// Selects the folder around the present one.
    void goUp()
    {
        if (const HTREEITEM parent = GetParentItem(GetSelectedItem()))
            SelectItem(parent);
        else
            open(folder().parent_path());
    }
};
