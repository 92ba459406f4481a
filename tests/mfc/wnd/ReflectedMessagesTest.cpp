// Messages about a control that its parent does not handle come back to the control.
#include "Windows.h"

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

Log s_log;

/// Handles everything that can come back.
class Control : public Hidden<>
{
protected:
    HBRUSH CtlColor(CDC*, UINT kind)
    {
        note("colour", kind);
        return static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    }
    void DrawItem(LPDRAWITEMSTRUCT item) { note("draw", item->itemID); }
    void MeasureItem(LPMEASUREITEMSTRUCT item)
    {
        note("measure", item->itemID);
        item->itemHeight = 33;
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) { note("delete", item->itemID); }
    int CompareItem(LPCOMPAREITEMSTRUCT item)
    {
        note("compare", item->itemID1);
        return -1;
    }
    int CharToItem(UINT key, UINT index)
    {
        note("char", key * 1000 + index);
        return -2;
    }
    int VKeyToItem(UINT key, UINT index)
    {
        note("key", key * 1000 + index);
        return -2;
    }
    void HScroll(UINT code, UINT pos) { note("hscroll", code * 1000 + pos); }
    void VScroll(UINT code, UINT pos) { note("vscroll", code * 1000 + pos); }
    void ParentNotify(UINT event, LPARAM) { note("parentnotify", LOWORD(event)); }
    DECLARE_MESSAGE_MAP()

private:
    static void note(const char* what, UINT number) { s_log.push_back(what + (" " + std::to_string(number))); }
};

BEGIN_MESSAGE_MAP(Control, Hidden<>)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

/// Has handlers of its own for some of them; `on` lets the base class go on.
class Parent : public Hidden<>
{
public:
    bool on = false;

protected:
    void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        s_log.push_back("parent hscroll");
        if (on)
            CWnd::OnHScroll(code, pos, bar);
    }
    void OnDrawItem(int id, LPDRAWITEMSTRUCT item)
    {
        s_log.push_back("parent draw");
        if (on)
            CWnd::OnDrawItem(id, item);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, Hidden<>)
    ON_WM_HSCROLL()
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

class ReflectedMessages : public ::testing::Test
{
protected:
    static constexpr UINT kId = 9;

    ReflectedMessages()
    {
        parent.create();
        plainParent.create();
        control.createChild(plainParent, kId);
        s_log.clear();
    }

    LPARAM handle() const { return reinterpret_cast<LPARAM>(control.m_hWnd); }
    /// To the parent without handlers.
    LRESULT tell(UINT message, WPARAM wParam, LPARAM lParam) { return ::SendMessageW(plainParent, message, wParam, lParam); }
    void moveToHandlingParent() { ::SetParent(control, parent); }

    Parent parent;
    Hidden<> plainParent;
    Control control;
};

} // namespace

TEST_F(ReflectedMessages, ComeBackFromAParentWithoutHandlers)
{
    tell(WM_HSCROLL, MAKEWPARAM(5, 42), handle());
    tell(WM_VSCROLL, MAKEWPARAM(4, 43), handle());
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_LISTBOX;
    draw.itemID = 2;
    draw.hwndItem = control;
    tell(WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&draw));
    DELETEITEMSTRUCT gone{};
    gone.itemID = 3;
    gone.hwndItem = control;
    tell(WM_DELETEITEM, kId, reinterpret_cast<LPARAM>(&gone));
    tell(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, kId), handle());
    EXPECT_EQ(s_log, (Log{"hscroll 5042", "vscroll 4043", "draw 2", "delete 3", "parentnotify 1"}));
}

TEST_F(ReflectedMessages, GiveTheControlsResult)
{
    COMPAREITEMSTRUCT compare{};
    compare.itemID1 = 4;
    compare.hwndItem = control;
    EXPECT_EQ(tell(WM_COMPAREITEM, kId, reinterpret_cast<LPARAM>(&compare)), -1);
    EXPECT_EQ(tell(WM_CHARTOITEM, MAKEWPARAM('k', 7), handle()), -2);
    EXPECT_EQ(tell(WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 7), handle()), -2);
    EXPECT_EQ(s_log, (Log{"compare 4", "char 107007", "key 40007"}));
}

TEST_F(ReflectedMessages, OfMeasuringFindTheControlByItsNumber)
{
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_LISTBOX;
    item.CtlID = kId;
    item.itemID = 6;
    tell(WM_MEASUREITEM, kId, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(item.itemHeight, 33u);
    EXPECT_EQ(s_log, Log{"measure 6"});
}

TEST_F(ReflectedMessages, OfColourComeForEveryKind)
{
    const auto grey = reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH));
    HDC dc = ::GetDC(control);
    for (UINT kind = CTLCOLOR_EDIT; kind <= CTLCOLOR_STATIC; ++kind) {
        s_log.clear();
        EXPECT_EQ(tell(WM_CTLCOLORMSGBOX + kind, reinterpret_cast<WPARAM>(dc), handle()), grey);
        EXPECT_EQ(s_log, Log{"colour " + std::to_string(kind)});
    }
    ::ReleaseDC(control, dc);
}

TEST_F(ReflectedMessages, AreTheParentsFirst)
{
    moveToHandlingParent();
    s_log.clear();
    ::SendMessageW(parent, WM_HSCROLL, MAKEWPARAM(5, 42), handle());
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_LISTBOX;
    draw.hwndItem = control;
    ::SendMessageW(parent, WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(s_log, (Log{"parent hscroll", "parent draw"}));
}

TEST_F(ReflectedMessages, GoOnToTheControlWhenTheParentCallsItsBaseClass)
{
    moveToHandlingParent();
    parent.on = true;
    s_log.clear();
    ::SendMessageW(parent, WM_HSCROLL, MAKEWPARAM(5, 42), handle());
    EXPECT_EQ(s_log, (Log{"parent hscroll", "hscroll 5042"}));
}

TEST_F(ReflectedMessages, WithoutAControlGoToTheDefault)
{
    EXPECT_EQ(tell(WM_HSCROLL, SB_LINELEFT, 0), 0);
    const HWND plain = plainControl(plainParent, L"STATIC", 40);
    s_log.clear(); // a new child is announced to its parent
    EXPECT_EQ(tell(WM_HSCROLL, SB_LINELEFT, reinterpret_cast<LPARAM>(plain)), 0);
    HDC dc = ::GetDC(plain);
    EXPECT_NE(tell(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(plain)), 0)
        << "the system's brush";
    ::ReleaseDC(plain, dc);
    EXPECT_TRUE(s_log.empty());
}

TEST_F(ReflectedMessages, CanBeTakenByAnOverrideOfOnChildNotify)
{
    class Overriding : public Hidden<>
    {
    public:
        UINT got = 0;

    protected:
        BOOL OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT* result) override
        {
            got = message;
            if (result)
                *result = 88;
            return TRUE;
        }
    } child;
    child.createChild(plainParent, 50);
    NMHDR header{child, 50, 123};
    EXPECT_EQ(tell(WM_NOTIFY, 50, reinterpret_cast<LPARAM>(&header)), 88);
    EXPECT_EQ(child.got, static_cast<UINT>(WM_NOTIFY));
    EXPECT_EQ(tell(WM_COMMAND, MAKEWPARAM(50, 1), reinterpret_cast<LPARAM>(child.m_hWnd)), 1);
    EXPECT_EQ(child.got, static_cast<UINT>(WM_COMMAND));
    child.DestroyWindow();
}

TEST_F(ReflectedMessages, MayDestroyTheControl)
{
    class Leaving : public CWnd
    {
    public:
        explicit Leaving(bool& alive)
            : m_alive(alive)
        {
            m_alive = true;
        }
        ~Leaving() override { m_alive = false; }

    protected:
        BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (message != WM_COMMAND)
                return CWnd::OnChildNotify(message, wParam, lParam, result);
            DestroyWindow();
            return TRUE;
        }
        void PostNcDestroy() override { delete this; }

    private:
        bool& m_alive;
    };
    bool alive = false;
    auto* child = new Leaving(alive);
    child->Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 9, 9), &plainParent, 60);
    EXPECT_EQ(tell(WM_COMMAND, MAKEWPARAM(60, 1), reinterpret_cast<LPARAM>(child->m_hWnd)), 1);
    EXPECT_FALSE(alive);
}
