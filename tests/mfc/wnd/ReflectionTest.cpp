// Who is asked first: the control or its parent.
#include <afxwin.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> s_log;
BOOL s_childTakes = FALSE;
HBRUSH s_childBrush = nullptr;

class Child : public CButton
{
protected:
    afx_msg BOOL OnClickedHere()
    {
        s_log.push_back("child clicked");
        return s_childTakes;
    }
    afx_msg BOOL OnNotifyHere(NMHDR*, LRESULT* result)
    {
        s_log.push_back("child notify");
        *result = 5;
        return s_childTakes;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT kind)
    {
        s_log.push_back("child colour " + std::to_string(kind));
        return s_childBrush;
    }
    void DrawItem(LPDRAWITEMSTRUCT) override { s_log.push_back("child draws"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Child, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &Child::OnClickedHere)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &Child::OnNotifyHere)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class Parent : public CWnd
{
public:
    Child child;

    Parent()
    {
        s_log.clear();
        s_childTakes = FALSE;
        s_childBrush = nullptr;
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 80, nullptr, nullptr);
        child.Create(L"", WS_CHILD, CRect(0, 0, 20, 20), this, 7);
    }
    ~Parent() override { DestroyWindow(); }

protected:
    afx_msg void OnClicked() { s_log.push_back("parent clicked"); }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT* result)
    {
        s_log.push_back("parent notify");
        *result = 6;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_BN_CLICKED(7, &Parent::OnClicked)
    ON_NOTIFY(NM_CLICK, 7, &Parent::OnNotifyClick)
END_MESSAGE_MAP()

class ColouringParent : public Parent
{
protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind)
    {
        s_log.push_back("parent colour");
        return Parent::OnCtlColor(dc, wnd, kind);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouringParent, Parent)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

LRESULT colourFor(CWnd& parent, CWnd& child)
{
    CClientDC dc(&child);
    return ::SendMessageW(parent, WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                          reinterpret_cast<LPARAM>(child.m_hWnd));
}

} // namespace

TEST(Reflection, ACommandIsOfferedToTheControlFirst)
{
    Parent parent;
    parent.child.SendMessage(BM_CLICK);
    EXPECT_EQ(s_log, (std::vector<std::string>{"child clicked", "parent clicked"}));
}

TEST(Reflection, AControlThatTakesItKeepsItFromItsParent)
{
    Parent parent;
    s_childTakes = TRUE;
    parent.child.SendMessage(BM_CLICK);
    EXPECT_EQ(s_log, std::vector<std::string>{"child clicked"});
}

TEST(Reflection, ANotificationCarriesTheResultOfWhoTookIt)
{
    Parent parent;
    NMHDR header{parent.child, 7, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(::SendMessageW(parent, WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header)), 6);
    EXPECT_EQ(s_log, (std::vector<std::string>{"child notify", "parent notify"}));
    s_childTakes = TRUE;
    EXPECT_EQ(::SendMessageW(parent, WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header)), 5);
    EXPECT_EQ(s_log.size(), 3u);
}

TEST(Reflection, ColoursAreAskedOfTheParentFirst)
{
    ColouringParent parent;
    s_childBrush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    EXPECT_EQ(colourFor(parent, parent.child), reinterpret_cast<LRESULT>(s_childBrush));
    EXPECT_EQ(s_log, (std::vector<std::string>{"parent colour", "child colour 3"}));
}

TEST(Reflection, NoBrushLeavesTheColourToTheDefault)
{
    Parent parent;
    EXPECT_NE(colourFor(parent, parent.child), 0);
    EXPECT_EQ(s_log, std::vector<std::string>{"child colour 3"});
}

TEST(Reflection, AnOwnerDrawnControlDrawsItself)
{
    Parent parent;
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = 7;
    item.hwndItem = parent.child;
    ::SendMessageW(parent, WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(s_log, std::vector<std::string>{"child draws"});
}

TEST(Reflection, AForeignControlIsNotAsked)
{
    Parent parent;
    const HWND plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 9, 9, parent, reinterpret_cast<HMENU>(7),
                                         nullptr, nullptr);
    ::SendMessageW(plain, BM_CLICK, 0, 0);
    EXPECT_EQ(s_log, std::vector<std::string>{"parent clicked"});
}
