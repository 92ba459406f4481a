// The control: message map, creation and destruction.
#include <ovoui/tree/MultiTreeCtrl.h>

#include <ovoui/tree/DropTarget.h>
#include <ovoui/tree/EditLabelAgain.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/TreeState.h>

#include <ovouires/resource.h>

BEGIN_MESSAGE_MAP(MultiTreeCtrl, CTreeCtrl)
    // Mouse: Mouse.cpp
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_NOTIFY_REFLECT(NM_RCLICK, &MultiTreeCtrl::OnRClick)
    ON_WM_TIMER()
    // Keyboard and focus: Keyboard.cpp, Selection.cpp
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_NOTIFY_REFLECT(NM_RETURN, &MultiTreeCtrl::OnReturn)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    // Opening, closing, deleting: Expansion.cpp, Deletion.cpp
    ON_NOTIFY_REFLECT_EX(TVN_SELCHANGINGW, &MultiTreeCtrl::OnSelchanging)
    ON_NOTIFY_REFLECT_EX(TVN_ITEMEXPANDINGW, &MultiTreeCtrl::OnItemexpanding)
    ON_NOTIFY_REFLECT_EX(TVN_ITEMEXPANDEDW, &MultiTreeCtrl::OnItemexpanded)
    ON_NOTIFY_REFLECT(TVN_DELETEITEMW, &MultiTreeCtrl::OnDeleteitem)
    ON_NOTIFY_REFLECT_EX(TVN_GETDISPINFOW, &MultiTreeCtrl::OnGetdispinfo)
    // Label editing: LabelEdit.cpp
    ON_NOTIFY_REFLECT(TVN_BEGINLABELEDITW, &MultiTreeCtrl::OnBeginlabeledit)
    ON_NOTIFY_REFLECT(TVN_ENDLABELEDITW, &MultiTreeCtrl::OnEndlabeledit)
    ON_REGISTERED_MESSAGE(ovoui::tree::kEditLabelAgain, &MultiTreeCtrl::OnEditLabelAgain)
    // Tooltips: Tips.cpp
    ON_NOTIFY_REFLECT(TVN_GETINFOTIPW, &MultiTreeCtrl::OnGetinfotip)
    ON_NOTIFY_EX(TTN_SHOW, 0, &MultiTreeCtrl::OnToolTipShow)
    // Commands and menus: Commands.cpp, Erasing.cpp, ContextMenu.cpp
    ON_COMMAND(IDOK, &MultiTreeCtrl::OnOk)
    ON_COMMAND(ID_TREE_DELETE, &MultiTreeCtrl::OnEditDelete)
    ON_UPDATE_COMMAND_UI(ID_TREE_DELETE, &MultiTreeCtrl::OnUpdateEditDelete)
    ON_COMMAND(ID_TREE_RENAME, &MultiTreeCtrl::OnEditReplace)
    ON_UPDATE_COMMAND_UI(ID_TREE_RENAME, &MultiTreeCtrl::OnUpdateEditReplace)
    ON_COMMAND(ID_TREE_REDRAW, &MultiTreeCtrl::OnRedraw)
    ON_COMMAND_EX(ID_EDIT_PASTE, &MultiTreeCtrl::OnEditPaste)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &MultiTreeCtrl::OnUpdateEditPaste)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &MultiTreeCtrl::OnEditSelectAll)
    ON_WM_CONTEXTMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_CREATE()
    // Behind all named commands: it takes every other one
    ON_COMMAND_EX_RANGE(0, 0xFFFF, &MultiTreeCtrl::OnUnknownCommand)
END_MESSAGE_MAP()

MultiTreeCtrl::MultiTreeCtrl()
    : m_dropTarget(std::make_unique<DropTarget>(*this))
    , m_gestures(EVSubscriptionList<int>::create())
    , m_state(std::make_shared<State>(*this))
{
}

MultiTreeCtrl::~MultiTreeCtrl()
{
    m_state->controlCloses();
    // Here and not in the base class: there the notifications that release the nodes would not arrive. Not by
    // the member function either: an exception must not leave a destructor.
    if (m_hWnd)
        ::DestroyWindow(m_hWnd);
    m_dropTarget->leave();
    m_dropTarget.release()->InternalRelease(); // a drag may hold it still
    m_state->controlGoes();
}

int MultiTreeCtrl::OnCreate(LPCREATESTRUCT cs)
{
    if (CTreeCtrl::OnCreate(cs) == -1)
        return -1;
    setUp();
    return 0;
}

void MultiTreeCtrl::PreSubclassWindow()
{
    CTreeCtrl::PreSubclassWindow();
    // A window that is just being created has no items' height yet; its OnCreate will come.
    if (::SendMessageW(m_hWnd, TVM_GETITEMHEIGHT, 0, 0) == 0)
        return;
    m_state->takeOver();
    setUp();
}

void MultiTreeCtrl::setUp()
{
    // Without OLE the tree works, but for drops.
    m_dropTarget->Register(this);
    const LPCTSTR name = MAKEINTRESOURCE(IDR_TREE_ACCELERATORS);
    m_accelerators = ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
    const std::shared_ptr<State> state = m_state; // the host may hear of messages, and delete the tree
    state->windowMade();
}

OVO::Handle<MultiTreeCtrl::Node> MultiTreeCtrl::node(HTREEITEM item) const
{
    return m_state->view.node(item);
}

HTREEITEM MultiTreeCtrl::HitTest(CPoint point, unsigned* flags) const
{
    const std::shared_ptr<State> state = m_state;
    TVHITTESTINFO info{};
    info.pt = point;
    const auto hitItem =
        reinterpret_cast<HTREEITEM>(state->view.ask(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&info)));
    const Tracker item(state, hitItem && state->view.isDoomed(hitItem) ? nullptr : hitItem);
    unsigned hit = info.flags;
    if (const OVO::Handle<Node> under = node(item.item()))
        under->hitTest(*this, point, hit);
    // The node may have deleted its item.
    if (flags)
        *flags = hitItem && !item ? TVHT_NOWHERE : hit;
    return item.item();
}

EVSubscriptionList<int>& MultiTreeCtrl::gestureEV()
{
    return *m_gestures;
}
