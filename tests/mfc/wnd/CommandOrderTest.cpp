// Which entry of which class gets a command, and who is asked next when a handler declines.
#include "Windows.h"

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

Log s_log;

/// A target that is no window: routing goes on to it.
class Document : public CCmdTarget
{
public:
    using CCmdTarget::OnCmdMsg;

protected:
    void OnSave() { s_log.push_back("document saves"); }
    void OnUpdateSave(CCmdUI* ui) { ui->SetCheck(2); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Document, CCmdTarget)
    ON_COMMAND(100, &Document::OnSave)
    ON_COMMAND(101, &Document::OnSave)
    ON_UPDATE_COMMAND_UI(100, &Document::OnUpdateSave)
END_MESSAGE_MAP()

class Base : public Hidden<>
{
public:
    BOOL take = TRUE;

protected:
    void OnBase() { s_log.push_back("base"); }
    BOOL OnBaseEx(UINT id)
    {
        s_log.push_back("base ex " + std::to_string(id));
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, Hidden<>)
    ON_COMMAND(100, &Base::OnBase)
    ON_COMMAND_EX(101, &Base::OnBaseEx)
    ON_COMMAND(102, &Base::OnBase)
END_MESSAGE_MAP()

class Derived : public Base
{
public:
    Document* document = nullptr;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (Base::OnCmdMsg(id, code, extra, info))
            return TRUE;
        return document && document->OnCmdMsg(id, code, extra, info);
    }

protected:
    BOOL OnEx(UINT id)
    {
        s_log.push_back("derived " + std::to_string(id));
        return take;
    }
    void OnNamed() { s_log.push_back("named"); }
    BOOL OnAny(UINT id)
    {
        s_log.push_back("any " + std::to_string(id));
        return take;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_COMMAND_EX(100, &Derived::OnEx)
    ON_COMMAND_EX(101, &Derived::OnEx)
    ON_COMMAND(500, &Derived::OnNamed)
    ON_COMMAND_EX_RANGE(400, 65535, &Derived::OnAny)
    ON_COMMAND_RANGE_EX(300, 310, &Derived::OnAny)
END_MESSAGE_MAP()

class CommandOrder : public ::testing::Test
{
protected:
    CommandOrder()
    {
        s_log.clear();
        wnd.create();
    }

    LRESULT command(UINT id) { return ::SendMessageW(wnd, WM_COMMAND, id, 0); }

    Document document;
    Derived wnd;
};

} // namespace

TEST_F(CommandOrder, TheMostDerivedClassWins)
{
    EXPECT_EQ(command(100), 1);
    EXPECT_EQ(command(102), 1);
    EXPECT_EQ(s_log, (Log{"derived 100", "base"}));
}

TEST_F(CommandOrder, ADecliningHandlerEndsTheSearchInItsTarget)
{
    wnd.take = FALSE;
    EXPECT_EQ(command(101), 0) << "the entry of the base class is not asked";
    EXPECT_EQ(s_log, Log{"derived 101"});
}

TEST_F(CommandOrder, ADecliningHandlerLetsTheNextTargetHaveIt)
{
    wnd.take = FALSE;
    wnd.document = &document;
    EXPECT_EQ(command(100), 1);
    EXPECT_EQ(s_log, (Log{"derived 100", "document saves"}));
}

TEST_F(CommandOrder, NamedCommandsStandBeforeTheRangeThatHoldsThem)
{
    command(499);
    command(500);
    command(65535);
    EXPECT_EQ(s_log, (Log{"any 499", "named", "any 65535"}));
}

TEST_F(CommandOrder, BothSpellingsOfTheRangeMacroWork)
{
    EXPECT_EQ(command(300), 1);
    EXPECT_EQ(command(310), 1);
    EXPECT_EQ(command(311), 0);
    EXPECT_EQ(s_log, (Log{"any 300", "any 310"}));
}

TEST_F(CommandOrder, HandlerInformationNamesTheTargetThatWouldTakeIt)
{
    wnd.document = &document;
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(wnd.OnCmdMsg(102, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &wnd);
    EXPECT_TRUE(wnd.OnCmdMsg(100, static_cast<int>(CN_UPDATE_COMMAND_UI), nullptr, &info));
    EXPECT_EQ(info.pTarget, &document);
    EXPECT_TRUE(s_log.empty());
}

TEST_F(CommandOrder, AnUpdateRequestReachesTheNextTargetToo)
{
    class Ui : public CCmdUI
    {
    public:
        int check = -1;
        void SetCheck(int value) override { check = value; }
        void Enable(BOOL) override {}
    } ui;
    wnd.document = &document;
    ui.m_nID = 100;
    EXPECT_TRUE(ui.DoUpdate(&wnd, TRUE));
    EXPECT_EQ(ui.check, 2);
}

TEST_F(CommandOrder, CommandZeroIsNone)
{
    EXPECT_EQ(command(0), 0);
    EXPECT_TRUE(s_log.empty());
}

TEST_F(CommandOrder, TheHighWordOfAMenuCommandDoesNotMatter)
{
    EXPECT_EQ(::SendMessageW(wnd, WM_COMMAND, MAKEWPARAM(500, 0x300), 0), 1);
    EXPECT_EQ(s_log, Log{"named"});
}

TEST_F(CommandOrder, ANotificationIsNoCommandUnlessItIsAClick)
{
    const HWND control = plainControl(wnd, L"EDIT", 500);
    ::SendMessageW(wnd, WM_COMMAND, MAKEWPARAM(500, EN_CHANGE), reinterpret_cast<LPARAM>(control));
    EXPECT_TRUE(s_log.empty());
    ::SendMessageW(wnd, WM_COMMAND, MAKEWPARAM(500, BN_CLICKED), reinterpret_cast<LPARAM>(control));
    EXPECT_EQ(s_log, Log{"named"}) << "a click and a command have the same code";
}

TEST_F(CommandOrder, ANotificationThatLooksLikeAnUpdateRequestIsNone)
{
    wnd.document = &document;
    const HWND control = plainControl(wnd, L"EDIT", 100);
    EXPECT_EQ(::SendMessageW(wnd, WM_COMMAND, MAKEWPARAM(100, 0xFFFF), reinterpret_cast<LPARAM>(control)), 0);
}

TEST_F(CommandOrder, AnUnhandledCommandGoesOnToTheWindowsOwnProcedure)
{
    static UINT s_seen = 0;
    struct Behind
    {
        static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
        {
            if (message == WM_COMMAND)
                s_seen = LOWORD(wParam);
            return message == WM_COMMAND ? 5 : ::DefWindowProcW(handle, message, wParam, lParam);
        }
    };
    const PlainWindow plain;
    ::SetWindowLongPtrW(plain, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Behind::procedure));
    Derived object;
    object.SubclassWindow(plain);
    EXPECT_EQ(::SendMessageW(plain, WM_COMMAND, 7, 0), 5);
    EXPECT_EQ(s_seen, 7u);
    EXPECT_EQ(::SendMessageW(plain, WM_COMMAND, 500, 0), 1);
    EXPECT_EQ(s_seen, 7u);
    object.UnsubclassWindow();
}
