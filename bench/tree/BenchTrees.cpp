#include "BenchTrees.h"

#include <algorithm>
#include <cwchar>
#include <random>

namespace
{

constexpr DWORD kStyle =
    WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
const CRect kPlace(0, 0, 300, 500);

} // namespace

BenchParent::BenchParent()
{
    CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 360, 560),
             nullptr, 0);
}

BenchParent::~BenchParent()
{
    DestroyWindow();
}

BenchTree::BenchTree(CWnd& parent)
{
    Create(kStyle, kPlace, &parent, 1);
}

BenchTree::~BenchTree() = default;

void BenchTree::fill(const std::vector<std::wstring>& labels)
{
    SetRedraw(FALSE);
    for (const std::wstring& label : labels)
        (new BenchNode(label))->insert(*this, TVI_ROOT, TVI_LAST);
    SetRedraw(TRUE);
    UpdateWindow();
}

BareTree::BareTree(CWnd& parent)
    : m_window(::CreateWindowExW(0, WC_TREEVIEWW, L"", kStyle, kPlace.left, kPlace.top, kPlace.Width(),
                                 kPlace.Height(), parent.m_hWnd, nullptr, nullptr, nullptr))
{
}

BareTree::~BareTree()
{
    ::DestroyWindow(m_window);
}

LRESULT BareTree::send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageW(m_window, message, wParam, lParam);
}

HTREEITEM BareTree::insert(const std::wstring& label, HTREEITEM after) const
{
    TVINSERTSTRUCTW insert{};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = const_cast<LPWSTR>(label.c_str());
    return reinterpret_cast<HTREEITEM>(send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

void BareTree::fill(const std::vector<std::wstring>& labels) const
{
    send(WM_SETREDRAW, FALSE);
    for (const std::wstring& label : labels)
        insert(label, TVI_LAST);
    send(WM_SETREDRAW, TRUE);
    ::UpdateWindow(m_window);
}

HTREEITEM BareTree::next(UINT relation, HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

void BareTree::setSelected(HTREEITEM item, bool selected) const
{
    TVITEMW change{};
    change.mask = TVIF_HANDLE | TVIF_STATE;
    change.hItem = item;
    change.state = selected ? TVIS_SELECTED : 0;
    change.stateMask = TVIS_SELECTED;
    send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change));
}

std::vector<std::wstring> labels(int count)
{
    std::vector<std::wstring> result;
    result.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        wchar_t label[24];
        std::swprintf(label, 24, L"item %06d", i);
        result.emplace_back(label);
    }
    return result;
}

std::vector<std::wstring> shuffled(std::vector<std::wstring> labels)
{
    std::shuffle(labels.begin(), labels.end(), std::mt19937(7));
    return labels;
}
