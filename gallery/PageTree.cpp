#include "PageTree.h"

#include "ImageStrip.h"
#include "resource.h"

#include <utility>

namespace
{

class PageNode : public MultiTreeCtrl::Node
{
public:
    explicit PageNode(const PageEntry& page)
        : m_page(page)
    {
    }

    const PageEntry& page() const { return m_page; }

    void activate(MultiTreeCtrl&) override {} // it is open already
    std::wstring text(const MultiTreeCtrl&) const override { return m_page.title; }
    std::wstring infotip(MultiTreeCtrl&) const override { return m_page.summary; }
    int closedImage() const override { return 0; }
    int openImage() const override { return 0; }

private:
    const PageEntry& m_page;
};

bool contains(std::wstring where, std::wstring what)
{
    ::CharLowerBuffW(where.data(), static_cast<DWORD>(where.size()));
    ::CharLowerBuffW(what.data(), static_cast<DWORD>(what.size()));
    return where.find(what) != std::wstring::npos;
}

constexpr ImageStrip kStrip{IDB_PAGES_16, IDB_PAGES_24, IDB_PAGES_32};

} // namespace

PageTree::PageTree() = default;

PageTree::~PageTree() = default;

bool PageTree::create(CWnd& parent, UINT id)
{
    constexpr DWORD kStyle =
        TVS_SHOWSELALWAYS | TVS_FULLROWSELECT | TVS_INFOTIP | WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    if (!CreateEx(WS_EX_CLIENTEDGE, kStyle, CRect(), &parent, id))
        return false;
    loadImages();
    list(PageGroup::All, {});
    return true;
}

void PageTree::list(PageGroup group, const std::wstring& text)
{
    DeleteAllItems();
    for (const PageEntry& page : pageTable()) {
        const bool inGroup = group == PageGroup::All || page.group == group;
        if (inGroup && (contains(page.title, text) || contains(page.name, text)))
            (new PageNode(page))->insert(*this, TVI_ROOT, TVI_LAST);
    }
}

const PageEntry* PageTree::firstPage()
{
    const auto first = beginAll();
    return first == end() ? nullptr : &static_cast<PageNode&>(*first).page();
}

bool PageTree::lists(const PageEntry& page)
{
    for (auto at = beginAll(); at != end(); ++at)
        if (&static_cast<PageNode&>(*at).page() == &page)
            return true;
    return false;
}

void PageTree::loadImages()
{
    const auto shownUntilNow = std::exchange(m_images, std::make_unique<CAlphaImageList>());
    createImages(*m_images, kStrip, m_hWnd);
    SetImageList(m_images->ImageList(), TVSIL_NORMAL);
}

void PageTree::show(const PageEntry& page)
{
    for (auto at = beginAll(); at != end(); ++at)
        if (&static_cast<PageNode&>(*at).page() == &page)
            SelectItem(at->hTreeItem());
}

const PageEntry* PageTree::pageAt(HTREEITEM item) const
{
    const OVO::Handle<Node> found = node(item);
    return found ? &static_cast<PageNode&>(*found).page() : nullptr;
}

void PageTree::reportError(const wchar_t* message)
{
    AfxMessageBox(message);
}

bool PageTree::isCommandDisabled(unsigned)
{
    return false;
}
