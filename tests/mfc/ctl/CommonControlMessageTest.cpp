// The messages behind the common controls' members that Wine's controls do not answer, or not visibly.
#include "MessageSpy.h"
#include "resource.h"

#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

namespace
{

template <class Control>
struct Spied
{
    Spied() { spy.Create(WS_CHILD, CRect(0, 0, 100, 50), &parent, 7); }

    RecordingParent parent;
    MessageSpy<Control> spy;
};

const auto kItem = reinterpret_cast<HTREEITEM>(0x1234);

} // namespace

TEST(CommonControlMessages, OfTrees)
{
    Spied<CTreeCtrl> scene;
    auto& spy = scene.spy;

    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.SetScrollTime(250); }), (Sent{TVM_SETSCROLLTIME, 250}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.GetExtendedStyle(); }), (Sent{TVM_GETEXTENDEDSTYLE}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.SetExtendedStyle(3, 1); }), (Sent{TVM_SETEXTENDEDSTYLE, 3, 1}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.GetSelectedCount(); }), (Sent{TVM_GETSELECTEDCOUNT}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.MapAccIdToItem(5); }), (Sent{TVM_MAPACCIDTOHTREEITEM, 5}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.MapItemToAccID(kItem); }),
              (Sent{TVM_MAPHTREEITEMTOACCID, asWParam(kItem)}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.SetAutoscrollInfo(40, 10); }),
              (Sent{TVM_SETAUTOSCROLLINFO, 40, 10}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.ShowInfoTip(kItem); }),
              (Sent{TVM_SHOWINFOTIP, 0, asLParam(kItem)}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.SetInsertMark(kItem, FALSE); }),
              (Sent{TVM_SETINSERTMARK, FALSE, asLParam(kItem)}));
    EXPECT_EQ(spy.of([](CTreeCtrl& c) { c.GetNextItem(kItem, TVGN_PARENT); }),
              (Sent{TVM_GETNEXTITEM, TVGN_PARENT, asLParam(kItem)}));
    for (const UINT message : {spy.of([](CTreeCtrl& c) { c.GetItemStateEx(kItem); }).message,
                               spy.of([](CTreeCtrl& c) { c.GetItemExpandedImageIndex(kItem); }).message})
        EXPECT_EQ(message, static_cast<UINT>(TVM_GETITEMW));
    for (const UINT message : {spy.of([](CTreeCtrl& c) { c.SetItemStateEx(kItem, 1); }).message,
                               spy.of([](CTreeCtrl& c) { c.SetItemExpandedImageIndex(kItem, 1); }).message})
        EXPECT_EQ(message, static_cast<UINT>(TVM_SETITEMW));
    CRect rect;
    EXPECT_EQ(spy.of([&](CTreeCtrl& c) { c.GetItemPartRect(kItem, TVGIPR_BUTTON, &rect); }).message,
              static_cast<UINT>(TVM_GETITEMPARTRECT));
}

TEST(CommonControlMessages, OfLists)
{
    Spied<CListCtrl> scene;
    auto& spy = scene.spy;
    LVINSERTMARK mark{};
    LVSETINFOTIP tip{};
    CPoint point;
    CRect rect;
    LVITEMINDEX index{1, 2};
    PFNLVCOMPARE compare = [](LPARAM, LPARAM, LPARAM) -> int { return 0; };

    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetItemCount(9); }), (Sent{LVM_SETITEMCOUNT, 9}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.IsItemVisible(4); }), (Sent{LVM_ISITEMVISIBLE, 4}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.Arrange(LVA_SNAPTOGRID); }), (Sent{LVM_ARRANGE, LVA_SNAPTOGRID}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.ApproximateViewRect(CSize(30, 40), 5); }),
              (Sent{LVM_APPROXIMATEVIEWRECT, 5, MAKELPARAM(30, 40)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.CancelEditLabel(); }), (Sent{LVM_CANCELEDITLABEL}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.CreateDragImage(3, &point); }),
              (Sent{LVM_CREATEDRAGIMAGE, 3, asLParam(&point)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetCallbackMask(); }), (Sent{LVM_GETCALLBACKMASK}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetCallbackMask(LVIS_CUT); }),
              (Sent{LVM_SETCALLBACKMASK, LVIS_CUT}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetHotItem(); }), (Sent{LVM_GETHOTITEM}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetHotItem(2); }), (Sent{LVM_SETHOTITEM, 2}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetHotCursor(); }), (Sent{LVM_GETHOTCURSOR}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetHotCursor(nullptr); }), (Sent{LVM_SETHOTCURSOR}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetOrigin(&point); }), (Sent{LVM_GETORIGIN, 0, asLParam(&point)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetViewRect(&rect); }),
              (Sent{LVM_GETVIEWRECT, 0, asLParam(static_cast<LPRECT>(&rect))}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.RedrawItems(1, 4); }), (Sent{LVM_REDRAWITEMS, 1, 4}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.Scroll(CSize(5, -6)); }), (Sent{LVM_SCROLL, 5, -6}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.Update(3); }), (Sent{LVM_UPDATE, 3}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetSelectionMark(3); }), (Sent{LVM_SETSELECTIONMARK, 0, 3}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetSelectedColumn(); }), (Sent{LVM_GETSELECTEDCOLUMN}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetSelectedColumn(2); }), (Sent{LVM_SETSELECTEDCOLUMN, 2}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetOutlineColor(); }), (Sent{LVM_GETOUTLINECOLOR}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetOutlineColor(RGB(1, 2, 3)); }),
              (Sent{LVM_SETOUTLINECOLOR, 0, RGB(1, 2, 3)}));
    EXPECT_EQ(spy.of([=](CListCtrl& c) { c.SortItemsEx(compare, 5); }),
              (Sent{LVM_SORTITEMSEX, 5, asLParam(compare)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.MapIndexToID(4); }), (Sent{LVM_MAPINDEXTOID, 4}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.MapIDToIndex(4); }), (Sent{LVM_MAPIDTOINDEX, 4}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetNextItemIndex(&index, LVNI_ALL); }),
              (Sent{LVM_GETNEXTITEMINDEX, asWParam(&index)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetItemIndexState(&index, 1, 1); }).message,
              static_cast<UINT>(LVM_SETITEMINDEXSTATE));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetItemIndexRect(&index, 6, LVIR_ICON, &rect); }),
              (Sent{LVM_GETITEMINDEXRECT, asWParam(&index), asLParam(static_cast<LPRECT>(&rect))}));
    EXPECT_EQ(rect.top, 6) << "what is asked stands where the answer will";
    EXPECT_EQ(rect.left, LVIR_ICON);
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetInfoTip(&tip); }), (Sent{LVM_SETINFOTIP, 0, asLParam(&tip)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetInsertMark(&mark); }),
              (Sent{LVM_GETINSERTMARK, 0, asLParam(&mark)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetInsertMark(&mark); }),
              (Sent{LVM_SETINSERTMARK, 0, asLParam(&mark)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetInsertMarkColor(); }), (Sent{LVM_GETINSERTMARKCOLOR}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetInsertMarkColor(5); }), (Sent{LVM_SETINSERTMARKCOLOR, 0, 5}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetInsertMarkRect(&rect); }),
              (Sent{LVM_GETINSERTMARKRECT, 0, asLParam(static_cast<LPRECT>(&rect))}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.InsertMarkHitTest(&point, &mark); }),
              (Sent{LVM_INSERTMARKHITTEST, asWParam(&point), asLParam(&mark)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetToolTips(); }), (Sent{LVM_GETTOOLTIPS}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetToolTips(nullptr); }), (Sent{LVM_SETTOOLTIPS}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { EXPECT_STREQ(c.GetEmptyText(), L""); }).message,
              static_cast<UINT>(LVM_GETEMPTYTEXT));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetWorkAreas(1, &rect); }),
              (Sent{LVM_GETWORKAREAS, 1, asLParam(static_cast<LPRECT>(&rect))}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetWorkAreas(1, &rect); }),
              (Sent{LVM_SETWORKAREAS, 1, asLParam(static_cast<LPRECT>(&rect))}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetNumberOfWorkAreas(); }).message,
              static_cast<UINT>(LVM_GETNUMBEROFWORKAREAS));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetBkImage(static_cast<HBITMAP>(nullptr)); }).message,
              static_cast<UINT>(LVM_SETBKIMAGEW));
    LVBKIMAGE image{};
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetBkImage(&image); }),
              (Sent{LVM_GETBKIMAGEW, 0, asLParam(&image)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.SetColumnWidth(1, LVSCW_AUTOSIZE_USEHEADER); }),
              (Sent{LVM_SETCOLUMNWIDTH, 1, MAKELPARAM(LVSCW_AUTOSIZE_USEHEADER, 0)}));
}

TEST(CommonControlMessages, OfListsWithTilesAndGroups)
{
    Spied<CListCtrl> scene;
    auto& spy = scene.spy;
    LVGROUP group{};
    LVINSERTGROUPSORTED sorted{};
    LVGROUPMETRICS metrics{};
    LVTILEINFO tile{};
    LVTILEVIEWINFO tiles{};
    CRect rect;
    PFNLVGROUPCOMPARE compare = [](int, int, void*) -> int { return 0; };
    int data = 0;

    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetTileInfo(&tile); }),
              (Sent{LVM_GETTILEINFO, 0, asLParam(&tile)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetTileInfo(&tile); }),
              (Sent{LVM_SETTILEINFO, 0, asLParam(&tile)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetTileViewInfo(&tiles); }),
              (Sent{LVM_GETTILEVIEWINFO, 0, asLParam(&tiles)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetTileViewInfo(&tiles); }),
              (Sent{LVM_SETTILEVIEWINFO, 0, asLParam(&tiles)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.EnableGroupView(TRUE); }), (Sent{LVM_ENABLEGROUPVIEW, TRUE}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.IsGroupViewEnabled(); }), (Sent{LVM_ISGROUPVIEWENABLED}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.InsertGroup(2, &group); }),
              (Sent{LVM_INSERTGROUP, 2, asLParam(&group)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.InsertGroupSorted(&sorted); }),
              (Sent{LVM_INSERTGROUPSORTED, asWParam(&sorted)}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.MoveGroup(7, 1); }), (Sent{LVM_MOVEGROUP, 7, 1}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.MoveItemToGroup(3, 7); }), (Sent{LVM_MOVEITEMTOGROUP, 3, 7}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.RemoveGroup(7); }), (Sent{LVM_REMOVEGROUP, 7}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.RemoveAllGroups(); }), (Sent{LVM_REMOVEALLGROUPS}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.HasGroup(7); }), (Sent{LVM_HASGROUP, 7}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetGroupCount(); }), (Sent{LVM_GETGROUPCOUNT}));
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetFocusedGroup(); }), (Sent{LVM_GETFOCUSEDGROUP}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetGroupInfo(7, &group); }),
              (Sent{LVM_GETGROUPINFO, 7, asLParam(&group)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetGroupInfo(7, &group); }),
              (Sent{LVM_SETGROUPINFO, 7, asLParam(&group)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetGroupInfoByIndex(1, &group); }),
              (Sent{LVM_GETGROUPINFOBYINDEX, 1, asLParam(&group)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetGroupMetrics(&metrics); }),
              (Sent{LVM_GETGROUPMETRICS, 0, asLParam(&metrics)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SetGroupMetrics(&metrics); }),
              (Sent{LVM_SETGROUPMETRICS, 0, asLParam(&metrics)}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.GetGroupRect(7, &rect, LVGGR_HEADER); }),
              (Sent{LVM_GETGROUPRECT, 7, asLParam(static_cast<LPRECT>(&rect))}));
    EXPECT_EQ(rect.top, LVGGR_HEADER);
    EXPECT_EQ(spy.of([](CListCtrl& c) { c.GetGroupState(7, LVGS_COLLAPSED); }),
              (Sent{LVM_GETGROUPSTATE, 7, LVGS_COLLAPSED}));
    EXPECT_EQ(spy.of([&](CListCtrl& c) { c.SortGroups(compare, &data); }),
              (Sent{LVM_SORTGROUPS, asWParam(compare), asLParam(&data)}));
}

TEST(CommonControlMessages, OfTabs)
{
    Spied<CTabCtrl> scene;
    auto& spy = scene.spy;

    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.DeselectAll(TRUE); }), (Sent{TCM_DESELECTALL, TRUE}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.GetExtendedStyle(); }), (Sent{TCM_GETEXTENDEDSTYLE}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.SetExtendedStyle(1, 3); }), (Sent{TCM_SETEXTENDEDSTYLE, 3, 1}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.RemoveImage(2); }), (Sent{TCM_REMOVEIMAGE, 2}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.SetItemExtra(16); }), (Sent{TCM_SETITEMEXTRA, 16}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.SetMinTabWidth(-1); }), (Sent{TCM_SETMINTABWIDTH, 0, -1}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.SetPadding(CSize(5, 6)); }),
              (Sent{TCM_SETPADDING, 0, MAKELPARAM(5, 6)}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.GetToolTips(); }), (Sent{TCM_GETTOOLTIPS}));
    EXPECT_EQ(spy.of([](CTabCtrl& c) { c.SetToolTips(nullptr); }), (Sent{TCM_SETTOOLTIPS}));
}

TEST(CommonControlMessages, OfSlidersAndProgressBars)
{
    Spied<CSliderCtrl> slider;
    Spied<CProgressCtrl> bar;

    EXPECT_EQ(slider.spy.of([](CSliderCtrl& c) { c.GetToolTips(); }), (Sent{TBM_GETTOOLTIPS}));
    EXPECT_EQ(slider.spy.of([](CSliderCtrl& c) { c.SetToolTips(nullptr); }), (Sent{TBM_SETTOOLTIPS}));
    EXPECT_EQ(slider.spy.of([](CSliderCtrl& c) { c.SetTipSide(TBTS_LEFT); }),
              (Sent{TBM_SETTIPSIDE, TBTS_LEFT}));
    EXPECT_EQ(bar.spy.of([](CProgressCtrl& c) { c.SetMarquee(TRUE, 50); }), (Sent{PBM_SETMARQUEE, TRUE, 50}));
    EXPECT_EQ(bar.spy.of([](CProgressCtrl& c) { c.SetState(PBST_PAUSED); }),
              (Sent{PBM_SETSTATE, PBST_PAUSED}));
    EXPECT_EQ(bar.spy.of([](CProgressCtrl& c) { c.GetState(); }), (Sent{PBM_GETSTATE}));
}

TEST(CommonControlMessages, OfHeaders)
{
    Spied<CHeaderCtrl> scene;
    auto& spy = scene.spy;
    CRect rect;
    const LPARAM place = asLParam(static_cast<LPRECT>(&rect));

    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.GetFocusedItem(); }), (Sent{HDM_GETFOCUSEDITEM}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.SetFocusedItem(2); }), (Sent{HDM_SETFOCUSEDITEM, 0, 2}));
    EXPECT_EQ(spy.of([&](CHeaderCtrl& c) { c.GetItemDropDownRect(1, &rect); }),
              (Sent{HDM_GETITEMDROPDOWNRECT, 1, place}));
    EXPECT_EQ(spy.of([&](CHeaderCtrl& c) { c.GetOverflowRect(&rect); }),
              (Sent{HDM_GETOVERFLOWRECT, 0, place}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.SetHotDivider(CPoint(7, 8)); }),
              (Sent{HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(7, 8)}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.SetHotDivider(3); }), (Sent{HDM_SETHOTDIVIDER, FALSE, 3}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.CreateDragImage(1); }), (Sent{HDM_CREATEDRAGIMAGE, 1}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.SetFilterChangeTimeout(900); }),
              (Sent{HDM_SETFILTERCHANGETIMEOUT, 0, 900}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.EditFilter(1, TRUE); }),
              (Sent{HDM_EDITFILTER, 1, MAKELPARAM(TRUE, 0)}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.ClearFilter(1); }), (Sent{HDM_CLEARFILTER, 1}));
    EXPECT_EQ(spy.of([](CHeaderCtrl& c) { c.ClearAllFilters(); }),
              (Sent{HDM_CLEARFILTER, static_cast<WPARAM>(-1)}));
}

TEST(CommonControlMessages, OfToolbars)
{
    Spied<CToolBarCtrl> scene;
    auto& spy = scene.spy;
    TBMETRICS metrics{};
    COLORSCHEME scheme{};
    TBREPLACEBITMAP replacement{};
    TBINSERTMARK mark{};
    CPoint point;
    UINT id = 0;
    IDropTarget* target = nullptr;
    const wchar_t* theme = L"Explorer";
    int horizontal = 0;
    int vertical = 0;

    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SetPadding(9, 8); }),
              (Sent{TB_SETPADDING, 0, MAKELPARAM(9, 8)}));
    spy.answer = MAKELONG(9, 8);
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.GetPadding(&horizontal, &vertical); }), (Sent{TB_GETPADDING}));
    EXPECT_EQ(horizontal, 9);
    EXPECT_EQ(vertical, 8);
    spy.answer = 0;
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SetIndent(15); }), (Sent{TB_SETINDENT, 15}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.Customize(); }), (Sent{TB_CUSTOMIZE}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.GetBitmapFlags(); }), (Sent{TB_GETBITMAPFLAGS}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.GetColorScheme(&scheme); }),
              (Sent{TB_GETCOLORSCHEME, 0, asLParam(&scheme)}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.SetColorScheme(&scheme); }),
              (Sent{TB_SETCOLORSCHEME, 0, asLParam(&scheme)}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.GetMetrics(&metrics); }),
              (Sent{TB_GETMETRICS, 0, asLParam(&metrics)}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.SetMetrics(&metrics); }),
              (Sent{TB_SETMETRICS, 0, asLParam(&metrics)}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.GetPressedImageList(); }), (Sent{TB_GETPRESSEDIMAGELIST}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SetPressedImageList(2, nullptr); }),
              (Sent{TB_SETPRESSEDIMAGELIST, 2}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.InsertMarkHitTest(&point, &mark); }),
              (Sent{TB_INSERTMARKHITTEST, asWParam(&point), asLParam(&mark)}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.LoadImages(IDB_STD_SMALL_COLOR, HINST_COMMCTRL); }),
              (Sent{TB_LOADIMAGES, IDB_STD_SMALL_COLOR, asLParam(HINST_COMMCTRL)}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.MapAccelerator(L'x', &id); }),
              (Sent{TB_MAPACCELERATORW, L'x', asLParam(&id)}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.ReplaceBitmap(&replacement); }),
              (Sent{TB_REPLACEBITMAP, 0, asLParam(&replacement)}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SaveState(HKEY_CURRENT_USER, L"k", L"v"); }).wParam,
              static_cast<WPARAM>(TRUE));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.RestoreState(HKEY_CURRENT_USER, L"k", L"v"); }).message,
              static_cast<UINT>(TB_SAVERESTOREW));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SetButtonStructSize(32); }), (Sent{TB_BUTTONSTRUCTSIZE, 32}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SetButtonWidth(10, 90); }),
              (Sent{TB_SETBUTTONWIDTH, 0, MAKELPARAM(10, 90)}));
    EXPECT_EQ(spy.of([](CToolBarCtrl& c) { c.SetDrawTextFlags(3, 1); }), (Sent{TB_SETDRAWTEXTFLAGS, 3, 1}));
    EXPECT_EQ(spy.of([=](CToolBarCtrl& c) { c.SetWindowTheme(theme); }),
              (Sent{TB_SETWINDOWTHEME, 0, asLParam(theme)}));
    EXPECT_EQ(spy.of([&](CToolBarCtrl& c) { c.GetDropTarget(&target); }).lParam, asLParam(&target));
}

TEST(CommonControlMessages, OfToolbarsNameTheModuleThatHasTheString)
{
    Spied<CToolBarCtrl> scene;
    const auto module = [&](UINT id) {
        return scene.spy.of([id](CToolBarCtrl& c) { c.AddString(id); }).wParam;
    };
    EXPECT_EQ(module(AFX_IDS_IDLEMESSAGE), asWParam(::GetModuleHandleW(L"ovomfc.dll")));
    EXPECT_EQ(module(IDS_BESIDE_READY), asWParam(::GetModuleHandleW(nullptr))) << "of the same block";
}

TEST(CommonControlMessages, OfTooltips)
{
    RecordingParent parent;
    MessageSpy<CToolTipCtrl> spy;
    spy.CreateEx(&parent, TTS_NOPREFIX, WS_EX_TOPMOST);
    EXPECT_TRUE(spy.GetExStyle() & WS_EX_TOPMOST);
    MSG message{};
    TOOLINFO info{};
    TTGETTITLE title{};
    CRect rect;
    const wchar_t* theme = L"Explorer";

    EXPECT_EQ(spy.of([](CToolTipCtrl& c) { c.Activate(FALSE); }), (Sent{TTM_ACTIVATE, FALSE}));
    EXPECT_EQ(spy.of([](CToolTipCtrl& c) { c.Popup(); }), (Sent{TTM_POPUP}));
    EXPECT_EQ(spy.of([](CToolTipCtrl& c) { c.Update(); }), (Sent{TTM_UPDATE}));
    EXPECT_EQ(spy.of([&](CToolTipCtrl& c) { c.RelayEvent(&message); }),
              (Sent{TTM_RELAYEVENT, 0, asLParam(&message)}));
    EXPECT_EQ(spy.of([&](CToolTipCtrl& c) { c.SetToolInfo(&info); }),
              (Sent{TTM_SETTOOLINFOW, 0, asLParam(&info)}));
    EXPECT_EQ(spy.of([&](CToolTipCtrl& c) { c.GetTitle(&title); }),
              (Sent{TTM_GETTITLE, 0, asLParam(&title)}));
    EXPECT_EQ(spy.of([&](CToolTipCtrl& c) { c.AdjustRect(&rect, FALSE); }),
              (Sent{TTM_ADJUSTRECT, FALSE, asLParam(static_cast<LPRECT>(&rect))}));
    spy.answer = MAKELONG(60, 20);
    CSize size;
    EXPECT_EQ(spy.of([&](CToolTipCtrl& c) { size = c.GetBubbleSize(&info); }),
              (Sent{TTM_GETBUBBLESIZE, 0, asLParam(&info)}));
    EXPECT_EQ(size, CSize(60, 20));
    EXPECT_EQ(spy.of([=](CToolTipCtrl& c) { c.SetWindowTheme(theme); }),
              (Sent{TTM_SETWINDOWTHEME, 0, asLParam(theme)}));
}

TEST(CommonControlMessages, OfStatusBars)
{
    RecordingParent parent;
    MessageSpy<CStatusBarCtrl> spy;
    spy.CreateEx(WS_EX_STATICEDGE, WS_CHILD, CRect(0, 0, 0, 0), &parent, 7);
    const wchar_t* text = L"a tip";

    EXPECT_TRUE(spy.GetExStyle() & WS_EX_STATICEDGE);
    EXPECT_EQ(spy.of([](CStatusBarCtrl& c) { c.SetBkColor(RGB(1, 2, 3)); }),
              (Sent{SB_SETBKCOLOR, 0, RGB(1, 2, 3)}));
    EXPECT_EQ(spy.of([=](CStatusBarCtrl& c) { c.SetTipText(2, text); }),
              (Sent{SB_SETTIPTEXTW, 2, asLParam(text)}));
    const Sent asked = spy.of([](CStatusBarCtrl& c) { c.GetTipText(2); });
    EXPECT_EQ(asked.message, static_cast<UINT>(SB_GETTIPTEXTW));
    EXPECT_EQ(LOWORD(asked.wParam), 2);
    EXPECT_EQ(HIWORD(asked.wParam), 256);
}
