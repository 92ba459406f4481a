#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <afxcmn.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <memory>

using namespace ovo::testkit;
using ::testing::ElementsAre;

namespace
{

constexpr UINT kTreeId = 21;

struct TreeScene
{
    RecordingParent parent;
    CTreeCtrl tree;
    HTREEITEM oak = nullptr;
    HTREEITEM elm = nullptr;

    TreeScene()
    {
        tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_EDITLABELS, CRect(10, 10, 210, 210), &parent,
                    kTreeId);
        oak = tree.InsertItem(L"Oak");
        elm = tree.InsertItem(L"Elm");
        tree.SetItemData(elm, 77);
        present(parent);
        tree.SelectItem(oak);
        parent.log().clear();
    }

    Spot on(HTREEITEM item) const
    {
        return Spot{[this, item] {
            CRect rect;
            tree.GetItemRect(item, &rect, TRUE);
            CPoint point = rect.CenterPoint();
            tree.ClientToScreen(&point);
            return point;
        }};
    }
};

} // namespace

TEST(RecordingParent, TakesNotificationsDownInOrder)
{
    TreeScene scene;

    scene.tree.SelectItem(scene.elm);
    scene.tree.SelectItem(scene.oak);

    const auto& all = scene.parent.log().all();
    constexpr auto kChanging = static_cast<UINT>(TVN_SELCHANGINGW);
    constexpr auto kChanged = static_cast<UINT>(TVN_SELCHANGEDW);
    ASSERT_THAT(scene.parent.log().codes(), ElementsAre(kChanging, kChanged, kChanging, kChanged));
    EXPECT_EQ(all[1].newItem, scene.elm);
    EXPECT_EQ(all[3].newItem, scene.oak);
}

TEST(RecordingParent, TakesDownWhatAClickOfTheUserSetsOff)
{
    TreeScene scene;
    Robot robot;

    robot.click(scene.on(scene.elm));

    EXPECT_EQ(scene.parent.log().count(TVN_SELCHANGINGW), 1);
    EXPECT_EQ(scene.parent.log().count(TVN_SELCHANGEDW), 1);
    EXPECT_EQ(scene.parent.log().count(static_cast<UINT>(NM_CLICK)), 1);
    EXPECT_EQ(scene.parent.log().last(TVN_SELCHANGEDW).action, static_cast<UINT>(TVC_BYMOUSE));
}

TEST(RecordingParent, DecodesTreeNotifications)
{
    TreeScene scene;

    scene.tree.SelectItem(scene.elm);

    const Notification change = scene.parent.log().last(TVN_SELCHANGEDW);
    EXPECT_EQ(change.id, kTreeId);
    EXPECT_EQ(change.from, scene.tree.m_hWnd);
    EXPECT_EQ(change.oldItem, scene.oak);
    EXPECT_EQ(change.newItem, scene.elm);
    EXPECT_EQ(change.itemData, 77);
    EXPECT_EQ(change.action, static_cast<UINT>(TVC_UNKNOWN));
}

TEST(RecordingParent, DecodesAChangeOfAnItemsState)
{
    TreeScene scene;
    // It is shorter than what comes with a selection.
    union {
        NMTREEVIEWW whole;
        NMTVITEMCHANGE change;
    } sent{};
    for (const UINT code : {static_cast<UINT>(TVN_ITEMCHANGINGW), static_cast<UINT>(TVN_ITEMCHANGEDW)}) {
        scene.parent.log().regard(code);
        sent.change = {{scene.tree, kTreeId, code}, TVIF_STATE, scene.elm, TVIS_BOLD, TVIS_SELECTED, 77};
        scene.parent.SendMessage(WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&sent));

        const Notification change = scene.parent.log().last(code);
        EXPECT_EQ(change.newItem, scene.elm);
        EXPECT_EQ(change.oldItem, nullptr);
        EXPECT_EQ(change.state, static_cast<UINT>(TVIS_BOLD));
        EXPECT_EQ(change.itemData, 77);
        EXPECT_EQ(change.action, 0U);
    }
}

TEST(RecordingParent, LeavesOutChangesOfStateThatOnlySomePlatformsTell)
{
    TreeScene scene;
    for (const UINT code : {static_cast<UINT>(TVN_ITEMCHANGINGW), static_cast<UINT>(TVN_ITEMCHANGEDW)}) {
        NMTVITEMCHANGE sent{{scene.tree, kTreeId, code}, TVIF_STATE, scene.elm, TVIS_BOLD, 0, 77};
        scene.parent.SendMessage(WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&sent));
    }
    EXPECT_TRUE(scene.parent.log().empty());
}

TEST(RecordingParent, DecodesTheTextOfALabelEdit)
{
    TreeScene scene;
    scene.tree.SetFocus();
    scene.tree.EditLabel(scene.oak);
    Robot robot;

    robot.type(L"Ash").key(VK_RETURN);

    const Notification edit = scene.parent.log().last(TVN_ENDLABELEDITW);
    EXPECT_EQ(edit.newItem, scene.oak);
    EXPECT_EQ(edit.text, L"Ash");
}

TEST(RecordingParent, AnswerReachesTheSender)
{
    TreeScene scene;
    scene.parent.answer(TVN_SELCHANGINGW, TRUE);

    scene.tree.SelectItem(scene.elm);

    EXPECT_EQ(scene.tree.GetSelectedItem(), scene.oak) << "the parent forbade the change";
    EXPECT_EQ(scene.parent.log().count(TVN_SELCHANGEDW), 0);
}

TEST(RecordingParent, AnswerIsAskedForWithTheOriginalStructure)
{
    TreeScene scene;
    HTREEITEM wanted = nullptr;
    scene.parent.answer(TVN_SELCHANGINGW, [&](NMHDR* header) -> LRESULT {
        wanted = reinterpret_cast<NMTREEVIEWW*>(header)->itemNew.hItem;
        return FALSE;
    });

    scene.tree.SelectItem(scene.elm);

    EXPECT_EQ(wanted, scene.elm);
    EXPECT_EQ(scene.tree.GetSelectedItem(), scene.elm);
}

TEST(RecordingParent, AnAnswerMayReplaceItself)
{
    TreeScene scene;
    auto kept = std::make_shared<int>(0);
    const std::weak_ptr<int> alive = kept;
    bool aliveBehind = false;
    scene.parent.answer(TVN_SELCHANGINGW, [&, own = std::move(kept)](NMHDR*) -> LRESULT {
        scene.parent.answer(TVN_SELCHANGINGW, FALSE);
        aliveBehind = !alive.expired();
        return TRUE;
    });

    scene.tree.SelectItem(scene.elm);
    EXPECT_EQ(scene.tree.GetSelectedItem(), scene.oak) << "the first answer";
    EXPECT_TRUE(aliveBehind);
    scene.tree.SelectItem(scene.elm);
    EXPECT_EQ(scene.tree.GetSelectedItem(), scene.elm) << "the second one";
}

TEST(RecordingParent, LeavesOutWhatIsSentForDrawing)
{
    TreeScene scene;

    scene.tree.RedrawWindow();

    EXPECT_TRUE(scene.parent.log().empty()) << ::testing::PrintToString(scene.parent.log().all());
}

TEST(RecordingParent, RegardsAndIgnoresByCode)
{
    TreeScene scene;
    scene.parent.log().regard(static_cast<UINT>(NM_CUSTOMDRAW));
    scene.parent.log().ignore(static_cast<UINT>(TVN_SELCHANGINGW));

    scene.tree.RedrawWindow();
    scene.tree.SelectItem(scene.elm);

    EXPECT_GT(scene.parent.log().count(static_cast<UINT>(NM_CUSTOMDRAW)), 0);
    EXPECT_EQ(scene.parent.log().count(TVN_SELCHANGINGW), 0);
    EXPECT_EQ(scene.parent.log().count(TVN_SELCHANGEDW), 1);
}

TEST(RecordingParent, RecordsOtherMessagesWhenTold)
{
    RecordingParent parent;
    parent.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    parent.log().record(WM_HSCROLL);
    parent.SendMessage(WM_HSCROLL, SB_PAGELEFT);

    ASSERT_EQ(parent.log().size(), 1U);
    EXPECT_EQ(parent.log().all()[0].message, static_cast<UINT>(WM_HSCROLL));
    EXPECT_EQ(parent.log().all()[0].code, static_cast<UINT>(SB_PAGELEFT));
}

TEST(RecordingParent, CommandsComeWithControlAndCode)
{
    RecordingParent parent;
    CEdit edit;
    edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5);
    parent.log().clear();

    edit.SetWindowText(L"x");
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(44, 0));

    EXPECT_THAT(parent.log().codes(),
                ElementsAre(static_cast<UINT>(EN_UPDATE), static_cast<UINT>(EN_CHANGE), 0U));
    EXPECT_EQ(parent.log().all()[1].from, edit.m_hWnd);
    EXPECT_EQ(parent.log().all()[2].id, 44U);
    EXPECT_EQ(parent.log().all()[2].from, nullptr);
}

TEST(RecordingParent, AskingForWhatNeverCameFails)
{
    static RecordingParent* parent = nullptr;
    RecordingParent window;
    parent = &window;

    EXPECT_NONFATAL_FAILURE(parent->log().last(TVN_BEGINDRAGW), "TVN_BEGINDRAGW");
}
