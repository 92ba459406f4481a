// The monkey's steps: which one comes next, and what the user does.
#include "Monkey.h"

#include <ovouires/resource.h>

#include <algorithm>
#include <utility>

namespace
{

constexpr UINT_PTR kEditTimer = 2115;

} // namespace

/// What nodes raise comes out of some operations.
void Monkey::catching(const std::function<void()>& act)
{
    try {
        act();
    } catch (const std::exception&) {
        tell("an exception came out");
    } catch (int) {
        tell("a foreign exception came out");
    }
}

void Monkey::step()
{
    const bool clean = pick(2) != 0;
    m_dirty = false;
    m_closed.clear();
    m_chance = clean ? 0 : 2 + pick(12);
    m_left = 3;
    catching([this] {
        if (pick(2))
            hostStep();
        else
            userStep();
    });
    m_chance = 0;
    catching([this] {
        m_posted = m_posted || ask(TVM_GETEDITCONTROL);
        if (ask(TVM_GETEDITCONTROL) && pick(2))
            m_tree->SendMessage(TVM_ENDEDITLABELNOW, pick(2) != 0);
    });
    if (std::exchange(m_posted, false) || m_dirty || m_step % 8 == 0)
        catching([] {
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                ::DispatchMessageW(&message);
        });
    m_parent->log().clear();
    if (std::exchange(m_clicked, false))
        ::KillTimer(m_tree->m_hWnd, kEditTimer); // when it runs out is not the model's business
    // Where the caret goes when its item goes, or when the tree view gets the focus without one, is the tree
    // view's choice; the item there is selected then.
    if (const int caret = caretNow(); m_model.caret == MonkeyModel::kNone && caret != MonkeyModel::kNone) {
        m_model.caret = caret;
        m_model.selected.insert(caret);
    }
    verify();
}

void Monkey::hostStep()
{
    if (m_model.size() < 6 || (m_model.size() < 40 && pick(3) == 0)) {
        insertPlain(anyOpenPlace());
        return;
    }
    switch (pick(16)) {
    case 0:
    case 1:
        insertInPlace(anyOpenPlace());
        break;
    case 2:
        insertMany();
        break;
    case 3:
    case 4:
        deleteNode(anyNode());
        break;
    case 5:
        if (pick(10) == 0)
            deleteAll();
        else
            moveNode(anyNode());
        break;
    case 6:
    case 7:
    case 8:
        toggle(anyNode());
        break;
    case 9:
        openOrClose(pick(2) ? TVE_COLLAPSE | TVE_COLLAPSERESET : TVE_TOGGLE);
        break;
    case 10:
    case 11:
        selectSomething();
        break;
    case 12:
        walkAndDelete();
        break;
    case 13:
        updateSomething();
        break;
    case 14:
        sortChildren();
        break;
    default:
        goByPath();
    }
}

void Monkey::userStep()
{
    switch (pick(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
        click();
        break;
    case 4:
        clickBelow();
        break;
    case 5:
    case 6:
        clickButton();
        break;
    case 7:
    case 8:
    case 9:
    case 10:
        key();
        break;
    case 11:
        editLabel();
        break;
    case 12:
        runCommand();
        break;
    case 13:
        openMenu();
        break;
    case 14:
        askTip();
        break;
    default:
        if (pick(40) == 0)
            eraseSelected();
        else
            refreshAll();
    }
}

// The mouse

/// The release waits in the queue already when the press is handled.
void Monkey::pressAt(CPoint point, WPARAM keys, bool right)
{
    m_clicked = m_posted = true;
    const LPARAM where = MAKELPARAM(point.x, point.y);
    m_tree->PostMessage(right ? WM_RBUTTONUP : WM_LBUTTONUP, keys, where);
    m_tree->SendMessage(right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, keys | (right ? MK_RBUTTON : MK_LBUTTON),
                        where);
}

void Monkey::click()
{
    const int id = anyShown();
    if (id == MonkeyModel::kNone)
        return;
    m_tree->EnsureVisible(itemOf(id));
    CRect label;
    m_tree->GetItemRect(itemOf(id), &label, TRUE);
    if (const HTREEITEM hit = m_tree->CTreeCtrl::HitTest(label.CenterPoint()); hit != itemOf(id)) {
        CRect client;
        m_tree->GetClientRect(&client);
        fail("at " + std::to_string(label.CenterPoint().x) + ", " + std::to_string(label.CenterPoint().y) +
             " of " + std::to_string(client.right) + ", " + std::to_string(client.bottom) +
             ", in the row of " + names({id}) + ", stands " + names({idOf(hit)}));
        return;
    }
    if (pick(12) == 0) {
        tell("clicks a part of its own of " + names({id}));
        const OVO::Handle<MonkeyNode> node(alive(id));
        struct Claim
        {
            ~Claim() { flag = false; }
            bool& flag;
        } const claim{node->ownPart};
        node->ownPart = true;
        const LPARAM where = MAKELPARAM(label.CenterPoint().x, label.CenterPoint().y);
        m_tree->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
        m_tree->SendMessage(WM_LBUTTONUP, 0, where);
        return;
    }
    const bool shift = pick(3) == 0;
    const bool ctrl = !shift && pick(2) == 0;
    tell(std::string("clicks ") + (shift ? "with Shift " : ctrl ? "with Ctrl " : "") + names({id}));
    expectClick(id, shift, ctrl);
    pressAt(label.CenterPoint(), (shift ? MK_SHIFT : 0) | (ctrl ? MK_CONTROL : 0), false);
}

void Monkey::expectClick(int id, bool shift, bool ctrl)
{
    if (ctrl) {
        if (!m_model.selected.erase(id))
            m_model.selected.insert(id);
    } else {
        m_model.selectAlone(id);
    }
    if (shift)
        m_model.selectRange(displayed(), m_model.anchor, id);
    else
        m_model.anchor = id;
}

void Monkey::clickBelow()
{
    CRect client;
    m_tree->GetClientRect(&client);
    const CPoint point(200, client.bottom - 2);
    unsigned hit = 0;
    if (m_tree->HitTest(point, &hit) || !(hit & TVHT_NOWHERE))
        return;
    tell("clicks on empty space");
    m_model.selectAlone(MonkeyModel::kNone);
    const std::vector<int> rows = displayed();
    m_model.anchor = rows.empty() ? MonkeyModel::kNone : rows.back();
    pressAt(point, 0, false);
}

void Monkey::clickButton()
{
    const int id = anyShown();
    if (id == MonkeyModel::kNone)
        return;
    m_tree->EnsureVisible(itemOf(id));
    CRect label;
    m_tree->GetItemRect(itemOf(id), &label, TRUE);
    for (int x = label.left; x >= 0; --x) {
        UINT flags = 0;
        m_tree->CTreeCtrl::HitTest(CPoint(x, label.CenterPoint().y), &flags);
        if (!(flags & TVHT_ONITEMBUTTON))
            continue;
        tell("clicks the button of " + names({id}));
        pressAt(CPoint(x, label.CenterPoint().y), 0, false);
        return;
    }
}

// The keyboard

void Monkey::sendKey(UINT code, bool shift, bool ctrl)
{
    struct Held
    {
        Held(BYTE* all, int which)
            : keys(which ? all : nullptr)
            , key(which)
        {
            set(0x80);
        }
        ~Held() { set(0); }
        void set(BYTE state) const
        {
            if (!keys)
                return;
            keys[key] = state;
            ::SetKeyboardState(keys);
        }
        BYTE* const keys;
        const int key;
    } const held{m_keys, shift ? VK_SHIFT : ctrl ? VK_CONTROL : 0};
    m_tree->SendMessage(WM_KEYDOWN, code, 1);
}

void Monkey::expectMoveTo(int id, bool shift, bool ctrl)
{
    if (ctrl) {
        m_model.caret = id;
        m_model.anchor = id;
        return;
    }
    m_model.selectAlone(id);
    if (shift)
        m_model.selectRange(displayed(), m_model.anchor, id);
    else
        m_model.anchor = id;
}

void Monkey::key()
{
    const bool shift = pick(3) == 0;
    const bool ctrl = !shift && pick(3) == 0;
    const std::vector<int> rows = displayed();
    // A caret in a closed node counts as standing just below it.
    const int shown = m_model.lastDisplayedOnTheWayTo(m_model.caret, [this](int id) { return isOpen(id); });
    const auto at = std::find(rows.begin(), rows.end(), shown);
    const bool none = at == rows.end();
    switch (pick(9)) {
    case 0:
        tell(std::string("Home") + (shift ? " with Shift" : ctrl ? " with Ctrl" : ""));
        if (!rows.empty())
            expectMoveTo(rows.front(), shift, ctrl);
        sendKey(VK_HOME, shift, ctrl);
        break;
    case 1:
    case 2:
        tell(std::string("Down") + (shift ? " with Shift" : ctrl ? " with Ctrl" : ""));
        if (!none && at + 1 != rows.end())
            expectMoveTo(*(at + 1), shift, ctrl);
        sendKey(VK_DOWN, shift, ctrl);
        break;
    case 3:
        tell(std::string("Up") + (shift ? " with Shift" : ctrl ? " with Ctrl" : ""));
        if (!none && shown != m_model.caret)
            expectMoveTo(shown, shift, ctrl);
        else if (!none && at != rows.begin())
            expectMoveTo(*(at - 1), shift, ctrl);
        sendKey(VK_UP, shift, ctrl);
        break;
    case 4:
        tell("Ctrl+Space");
        if (m_model.caret != MonkeyModel::kNone && !m_model.selected.erase(m_model.caret))
            m_model.selected.insert(m_model.caret);
        sendKey(VK_SPACE, false, true);
        break;
    case 5:
        tell("Ctrl+A");
        m_model.selected.insert(rows.begin(), rows.end());
        sendKey('A', false, true);
        break;
    case 6:
        tell("Enter");
        sendKey(VK_RETURN, false, false);
        break;
    default: {
        constexpr UINT kKeys[] = {VK_MULTIPLY, VK_LEFT,  VK_RIGHT, VK_END,
                                  VK_NEXT,     VK_PRIOR, VK_ADD,   VK_SUBTRACT};
        const UINT code = kKeys[pick(8)];
        tell("key " + std::to_string(code));
        m_dirty = true; // where these go is the tree view's choice
        sendKey(code, false, false);
    }
    }
}

// Labels, commands, menus, tips

void Monkey::editLabel()
{
    const int id = anyShown();
    if (id == MonkeyModel::kNone)
        return;
    tell("edits the label of " + names({id}));
    m_posted = true;
    CEdit* const edit = m_tree->EditLabel(itemOf(id));
    if (!edit)
        return;
    edit->SetWindowText(std::wstring(1, static_cast<wchar_t>('a' + pick(26))).c_str());
    if (pick(3))
        m_tree->SendMessage(TVM_ENDEDITLABELNOW, pick(4) == 0);
}

void Monkey::runCommand()
{
    for (int i = 0; i < 3; ++i)
        if (const int id = anyNode(); id != MonkeyModel::kNone)
            alive(id)->offers = pick(2) != 0;
    tell("runs a command");
    m_tree->SendMessage(WM_COMMAND, kCommand);
}

void Monkey::openMenu()
{
    tell("opens a menu");
    CMenu menu;
    menu.CreatePopupMenu();
    for (const UINT command :
         {kCommand, static_cast<UINT>(ID_TREE_DELETE), static_cast<UINT>(ID_TREE_RENAME)})
        menu.AppendMenu(MF_STRING, command, L"command");
    m_tree->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
}

void Monkey::askTip()
{
    const int id = anyNode();
    if (id == MonkeyModel::kNone)
        return;
    tell("asks for the tip of " + names({id}));
    wchar_t buffer[20] = L"";
    NMTVGETINFOTIPW request{};
    request.hdr = {m_tree->m_hWnd, 7, static_cast<UINT>(TVN_GETINFOTIPW)};
    request.pszText = buffer;
    request.cchTextMax = 20;
    request.hItem = itemOf(id);
    m_parent->SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
}

void Monkey::refreshAll()
{
    tell("refreshes");
    m_tree->SendMessage(WM_COMMAND, ID_TREE_REDRAW);
}

void Monkey::eraseSelected()
{
    tell("erases the selected nodes");
    // The question is answered as soon as it is shown.
    const HHOOK hook = ::SetWindowsHookExW(
        WH_CBT,
        [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
            wchar_t name[16] = L"";
            if (code == HCBT_ACTIVATE)
                ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 16);
            if (std::wstring(name) == L"#32770")
                ::PostMessageW(reinterpret_cast<HWND>(wParam), WM_COMMAND, IDYES, 0);
            return ::CallNextHookEx(nullptr, code, wParam, lParam);
        },
        nullptr, ::GetCurrentThreadId());
    struct Unhook
    {
        ~Unhook() { ::UnhookWindowsHookEx(hook); }
        HHOOK hook;
    } const unhook{hook};
    m_tree->SendMessage(WM_KEYDOWN, VK_DELETE, 1);
    m_dirty = true;
}
