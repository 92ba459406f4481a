// The two forms in which a map names its handlers: &Class::Handler, as the documentation writes it, and the
// bare name of older programs. Every kind of entry must lead to the same handler in both.
#include "Windows.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

constexpr UINT kMessage = WM_APP + 1, kVoidMessage = WM_APP + 2;
const UINT s_registered = ::RegisterWindowMessageW(L"ovomfc message map forms");

/// The handlers of every kind, most of them overloads of one name.
class Handlers : public Hidden<CWnd>
{
public:
    Log log;

    BOOL OnCommandNumber(UINT id) { return took("command", id); }
    afx_msg void OnUpdateIt(CCmdUI* ui) { took("update", ui->m_nID); }

protected:
    afx_msg void OnIt() { log.push_back("plain"); }
    afx_msg void OnIt(UINT id) { took("number", id); }
    afx_msg LRESULT OnIt(WPARAM wParam, LPARAM lParam)
    {
        took("message", wParam);
        return lParam;
    }
    afx_msg void OnIt(NMHDR* header, LRESULT* result)
    {
        took("notify", header->code & 0xFF);
        *result = 5;
    }
    afx_msg void OnIt(UINT id, NMHDR*, LRESULT*) { took("notify range", id); }
    afx_msg BOOL OnNotifyNumber(UINT id, NMHDR*, LRESULT*) { return took("notify ex", id); }
    afx_msg BOOL OnReflected()
    {
        log.push_back("reflected");
        return TRUE;
    }
    afx_msg BOOL OnReflectedNotify(NMHDR* header, LRESULT*)
    {
        return took("reflected notify", header->code & 0xFF);
    }

    virtual void OnVirtual() { log.push_back("of the base"); }

private:
    BOOL took(const char* kind, WPARAM number)
    {
        log.push_back(std::string(kind) + " " + std::to_string(number));
        return TRUE;
    }
};

#define EVERY_KIND_OF_ENTRY(handler)                                                                         \
    ON_MESSAGE(kMessage, handler(OnIt))                                                                      \
    ON_MESSAGE_VOID(kVoidMessage, handler(OnIt))                                                             \
    ON_REGISTERED_MESSAGE(s_registered, handler(OnIt))                                                       \
    ON_COMMAND(10, handler(OnIt))                                                                            \
    ON_COMMAND(11, handler(OnVirtual))                                                                       \
    ON_COMMAND_RANGE(12, 13, handler(OnIt))                                                                  \
    ON_COMMAND_EX(14, handler(OnCommandNumber))                                                              \
    ON_COMMAND_EX_RANGE(15, 16, handler(OnCommandNumber))                                                    \
    ON_UPDATE_COMMAND_UI(10, handler(OnUpdateIt))                                                            \
    ON_UPDATE_COMMAND_UI_RANGE(12, 13, handler(OnUpdateIt))                                                  \
    ON_UPDATE_COMMAND_UI_REFLECT(handler(OnUpdateIt))                                                        \
    ON_BN_CLICKED(20, handler(OnIt))                                                                         \
    ON_CONTROL_RANGE(BN_CLICKED, 21, 22, handler(OnIt))                                                      \
    ON_CONTROL_REFLECT(EN_CHANGE, handler(OnIt))                                                             \
    ON_CONTROL_REFLECT_EX(EN_UPDATE, handler(OnReflected))                                                   \
    ON_NOTIFY(NM_CLICK, 30, handler(OnIt))                                                                   \
    ON_NOTIFY_RANGE(NM_CLICK, 31, 32, handler(OnIt))                                                         \
    ON_NOTIFY_EX(NM_CLICK, 33, handler(OnNotifyNumber))                                                      \
    ON_NOTIFY_EX_RANGE(NM_CLICK, 34, 35, handler(OnNotifyNumber))                                            \
    ON_NOTIFY_REFLECT(NM_RETURN, handler(OnIt))                                                              \
    ON_NOTIFY_REFLECT_EX(NM_CHAR, handler(OnReflectedNotify))

class Documented : public Handlers
{
    void OnVirtual() override { log.push_back("of the class"); }
    DECLARE_MESSAGE_MAP()
};

#define DOCUMENTED(name) &Documented::name
BEGIN_MESSAGE_MAP(Documented, Handlers)
    EVERY_KIND_OF_ENTRY(DOCUMENTED)
    ON_COMMAND_EX(17, &Handlers::OnCommandNumber) // named as the base class's
END_MESSAGE_MAP()

class Bare : public Handlers
{
    void OnVirtual() override { log.push_back("of the class"); }
    DECLARE_MESSAGE_MAP()
};

#define BARE(name) name
BEGIN_MESSAGE_MAP(Bare, Handlers)
    EVERY_KIND_OF_ENTRY(BARE)
    ON_COMMAND_EX(17, OnCommandNumber)
END_MESSAGE_MAP()

/// A class template names its handlers in both forms.
template <class T>
class Counting : public Handlers
{
public:
    T count{};

protected:
    afx_msg void OnCount() { ++count; }
    afx_msg void OnCountTwice() { count += 2; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(Counting, T, Handlers)
    ON_COMMAND(40, &Counting<T>::OnCount)
    ON_COMMAND(41, OnCountTwice)
    ON_COMMAND_EX(42, &Handlers::OnCommandNumber)
    ON_COMMAND_EX(43, OnCommandNumber)
END_MESSAGE_MAP()

class Thread : public CWinThread
{
public:
    Log log;

protected:
    afx_msg void OnPosted(WPARAM wParam, LPARAM) { log.push_back("posted " + std::to_string(wParam)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Thread, CWinThread)
    ON_THREAD_MESSAGE(kMessage, &Thread::OnPosted)
    ON_THREAD_MESSAGE(kVoidMessage, OnPosted)
    ON_REGISTERED_THREAD_MESSAGE(s_registered, &Thread::OnPosted)
END_MESSAGE_MAP()

void command(CWnd& wnd, UINT id)
{
    wnd.OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

void update(CWnd& wnd, UINT id, int code = static_cast<int>(CN_UPDATE_COMMAND_UI))
{
    CCmdUI ui;
    ui.m_nID = id;
    wnd.OnCmdMsg(id, code, &ui, nullptr);
}

LRESULT notify(CWnd& wnd, UINT id, UINT code, UINT message = WM_NOTIFY)
{
    NMHDR header{nullptr, id, code};
    LRESULT result = 0;
    AFX_NOTIFY notified{&result, &header};
    wnd.OnCmdMsg(id, static_cast<int>(MAKELONG(code, message)), &notified, nullptr);
    return result;
}

void control(CWnd& wnd, UINT id, UINT code, UINT message = 0)
{
    wnd.OnCmdMsg(id, static_cast<int>(MAKELONG(code, message)), nullptr, nullptr);
}

std::string low(UINT code)
{
    return std::to_string(code & 0xFF);
}

template <class Window>
class MessageMapForm : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(wnd.create()); }
    Window wnd;
};
using Forms = testing::Types<Documented, Bare>;
TYPED_TEST_SUITE(MessageMapForm, Forms);

} // namespace

TYPED_TEST(MessageMapForm, LeadsMessagesToTheirHandlers)
{
    EXPECT_EQ(this->wnd.SendMessage(kMessage, 1, 77), 77);
    this->wnd.SendMessage(kVoidMessage);
    EXPECT_EQ(this->wnd.SendMessage(s_registered, 3, 78), 78);
    EXPECT_EQ(this->wnd.log, (Log{"message 1", "plain", "message 3"}));
}

TYPED_TEST(MessageMapForm, LeadsCommandsToTheirHandlers)
{
    for (UINT id = 10; id <= 17; ++id)
        command(this->wnd, id);
    EXPECT_EQ(this->wnd.log, (Log{"plain", "of the class", "number 12", "number 13", "command 14",
                                  "command 15", "command 16", "command 17"}));
}

TYPED_TEST(MessageMapForm, LeadsUpdateRequestsToTheirHandlers)
{
    update(this->wnd, 10);
    update(this->wnd, 13);
    update(this->wnd, 0, static_cast<int>(MAKELONG(0xFFFF, WM_REFLECT_BASE + WM_COMMAND)));
    EXPECT_EQ(this->wnd.log, (Log{"update 10", "update 13", "update 0"}));
}

TYPED_TEST(MessageMapForm, LeadsNotificationsOfControlsToTheirHandlers)
{
    control(this->wnd, 20, BN_CLICKED);
    control(this->wnd, 22, BN_CLICKED);
    control(this->wnd, 0, EN_CHANGE, WM_REFLECT_BASE + WM_COMMAND);
    control(this->wnd, 0, EN_UPDATE, WM_REFLECT_BASE + WM_COMMAND);
    EXPECT_EQ(this->wnd.log, (Log{"plain", "number 22", "plain", "reflected"}));
}

TYPED_TEST(MessageMapForm, LeadsNotificationsOfCommonControlsToTheirHandlers)
{
    EXPECT_EQ(notify(this->wnd, 30, NM_CLICK), 5);
    notify(this->wnd, 32, NM_CLICK);
    notify(this->wnd, 33, NM_CLICK);
    notify(this->wnd, 35, NM_CLICK);
    EXPECT_EQ(notify(this->wnd, 0, NM_RETURN, WM_REFLECT_BASE + WM_NOTIFY), 5);
    notify(this->wnd, 0, NM_CHAR, WM_REFLECT_BASE + WM_NOTIFY);
    EXPECT_EQ(this->wnd.log,
              (Log{"notify " + low(NM_CLICK), "notify range 32", "notify ex 33", "notify ex 35",
                   "notify " + low(NM_RETURN), "reflected notify " + low(NM_CHAR)}));
}

TEST(MessageMapForms, MayBeMixedInAClassTemplate)
{
    Counting<int> wnd;
    command(wnd, 40);
    command(wnd, 41);
    EXPECT_EQ(wnd.count, 3);
    command(wnd, 42);
    command(wnd, 43);
    EXPECT_EQ(wnd.log, (Log{"command 42", "command 43"}));
    Counting<double> other;
    command(other, 41);
    EXPECT_EQ(other.count, 2.0);
    EXPECT_EQ(wnd.count, 3);
}

TEST(MessageMapForms, MayBeMixedForAThread)
{
    Thread thread;
    for (const UINT message : {kMessage, kVoidMessage, s_registered}) {
        MSG posted{nullptr, message, message == s_registered ? 9u : message - WM_APP, 0, 0, {}};
        EXPECT_TRUE(thread.PreTranslateMessage(&posted));
    }
    EXPECT_EQ(thread.log, (Log{"posted 1", "posted 2", "posted 9"}));
}
