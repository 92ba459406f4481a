// The list of pages: a multi-selection tree like any other.
#pragma once

#include "PageTable.h"

#include <ovoui/images/AlphaImageList.h>
#include <ovoui/tree/MultiTreeCtrl.h>

#include <memory>

class PageTree : public MultiTreeCtrl
{
public:
    PageTree();
    ~PageTree() override;

    /// Creates the window with an item for every page of the table.
    bool create(CWnd& parent, UINT id);

    /// Loads the images for the resolution of the monitor that the tree is on.
    void loadImages();

    /// Lists the pages of a group whose title or name has the text in it, whatever its case.
    void list(PageGroup group, const std::wstring& text);
    /// Null when none is listed.
    const PageEntry* firstPage();
    bool lists(const PageEntry& page);

    /// Marks a page, if it is listed.
    void show(const PageEntry& page);
    /// The page behind an item; null for none.
    const PageEntry* pageAt(HTREEITEM item) const;

    void reportError(const wchar_t* message) override;
    bool isCommandDisabled(unsigned id) override;

private:
    std::unique_ptr<CAlphaImageList> m_images; ///< shown by the tree until others are loaded
};
