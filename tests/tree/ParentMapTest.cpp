// What a parent hears by its message map, as most hosts listen: the tree has its say first, and keeps from
// the parent only what is its nodes' business.
#include "TreeScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class MapParent : public RecordingParent
{
public:
    using RecordingParent::RecordingParent;

    bool refuses = false;
    std::vector<UINT> expanding; ///< the actions heard of

protected:
    afx_msg void OnSelchanging(NMHDR*, LRESULT* result) { *result = refuses; }
    afx_msg void OnItemexpanding(NMHDR* header, LRESULT* result)
    {
        expanding.push_back(reinterpret_cast<const NMTREEVIEW*>(header)->action);
        *result = refuses;
    }
    afx_msg void OnGetdispinfo(NMHDR* header, LRESULT*)
    {
        TVITEM& item = reinterpret_cast<NMTVDISPINFO*>(header)->item;
        if (item.mask & TVIF_TEXT)
            item.pszText = const_cast<LPWSTR>(L"asked");
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MapParent, RecordingParent)
    ON_NOTIFY(TVN_SELCHANGINGW, 7, &MapParent::OnSelchanging)
    ON_NOTIFY(TVN_ITEMEXPANDINGW, 7, &MapParent::OnItemexpanding)
    ON_NOTIFY(TVN_GETDISPINFOW, 7, &MapParent::OnGetdispinfo)
END_MESSAGE_MAP()

class MapScene : public Scene
{
public:
    explicit MapScene(const Names& names)
        : Scene(std::make_unique<MapParent>(CSize(420, 380), L"Tree"), names, kStyle)
    {
    }

    MapParent& host() { return static_cast<MapParent&>(parent()); }
};

} // namespace

TEST(TreeParentMap, MayRefuseAChangeOfTheSelection)
{
    MapScene scene({"a", "b"});
    scene.tree.SelectItem(scene.item("a"));
    scene.host().refuses = true;
    EXPECT_FALSE(scene.tree.SelectItem(scene.item("b")));
    EXPECT_EQ(scene.caret(), "a");
}

TEST(TreeParentMap, IsAskedForTheTextOfAnItemOfItsOwn)
{
    MapScene scene({"a"});
    const HTREEITEM own = scene.tree.InsertItem(LPSTR_TEXTCALLBACKW);
    EXPECT_EQ(scene.nameOf(own), "asked");
}

TEST(TreeParentMap, DecidesWhetherAnItemOfItsOwnOpens)
{
    MapScene scene({"a"});
    const HTREEITEM own = scene.tree.InsertItem(L"own");
    scene.tree.InsertItem(L"below", own);
    scene.host().refuses = true;
    scene.tree.Expand(own, TVE_EXPAND);
    EXPECT_FALSE(scene.isExpanded("own"));
    scene.host().refuses = false;
    scene.tree.Expand(own, TVE_EXPAND);
    EXPECT_TRUE(scene.isExpanded("own"));
    EXPECT_EQ(scene.host().expanding, (std::vector<UINT>{TVE_EXPAND, TVE_EXPAND}));
}

TEST(TreeParentMap, HearsThatTheUserClosesTheItemOfANode)
{
    MapScene scene({"a"});
    TestNode& a = scene.node("a");
    a.children = 1;
    a.childNames = {"x"};
    scene.tree.updateUI(a);
    scene.user.click(scene.button("a"));
    ASSERT_TRUE(scene.isExpanded("a"));
    scene.host().expanding.clear();
    scene.user.click(scene.button("a"));
    EXPECT_FALSE(scene.isExpanded("a"));
    ASSERT_FALSE(scene.host().expanding.empty());
    EXPECT_EQ(scene.host().expanding.front(), UINT{TVE_COLLAPSE});
}
