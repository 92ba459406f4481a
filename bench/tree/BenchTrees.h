// The library's tree and a bare tree view, with the same style, size and items.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

#include <memory>
#include <string>
#include <vector>

/// A top-level window to put trees in, shown.
class BenchParent : public CWnd
{
public:
    BenchParent();
    ~BenchParent() override;
};

class BenchNode : public MultiTreeCtrl::Node
{
public:
    explicit BenchNode(const std::wstring& label)
        : m_label(label)
    {
    }

    const std::wstring& label() const { return m_label; }

    void activate(MultiTreeCtrl&) override {}
    std::wstring text(const MultiTreeCtrl&) const override { return m_label; }
    int closedImage() const override { return 0; }
    int openImage() const override { return 0; }

private:
    const std::wstring m_label;
};

class BenchTree : public MultiTreeCtrl
{
public:
    explicit BenchTree(CWnd& parent);
    ~BenchTree() override;

    void fill(const std::vector<std::wstring>& labels);

    void reportError(const wchar_t*) override {}
    bool isCommandDisabled(unsigned) override { return false; }
};

/// The top level, sorted or by position.
class BenchPlace : public MultiTreeCtrl::InsertionPoint
{
public:
    explicit BenchPlace(bool sorted)
        : m_sorted(sorted)
    {
    }

    HTREEITEM hTreeItem() const override { return TVI_ROOT; }
    bool canCompare() const override { return m_sorted; }
    bool expanded() const override { return true; }
    int compareChildren(MultiTreeCtrl&, const MultiTreeCtrl::Node& a,
                        const MultiTreeCtrl::Node& b) const override
    {
        return static_cast<const BenchNode&>(a).label().compare(static_cast<const BenchNode&>(b).label());
    }
    DWORD dragInto(COleDataObject&, DWORD&, bool&, int) const override { return 0; }
    bool dropInto(COleDataObject&, DWORD, MultiTreeCtrl&, int) override { return false; }

private:
    bool m_sorted;
};

/// A tree view that is driven by messages only.
class BareTree
{
public:
    explicit BareTree(CWnd& parent);
    ~BareTree();
    BareTree(const BareTree&) = delete;
    BareTree& operator=(const BareTree&) = delete;

    HWND window() const { return m_window; }
    operator HWND() const { return m_window; }
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    HTREEITEM insert(const std::wstring& label, HTREEITEM after) const;
    void fill(const std::vector<std::wstring>& labels) const;
    HTREEITEM next(UINT relation, HTREEITEM item = nullptr) const;
    void setSelected(HTREEITEM item, bool selected) const;

private:
    HWND m_window;
};

/// "item 000000" and so on, in order.
std::vector<std::wstring> labels(int count);
std::vector<std::wstring> shuffled(std::vector<std::wstring> labels);
