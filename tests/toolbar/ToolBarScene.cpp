#include "ToolBarScene.h"

#include <afxpriv.h>

#include <ostream>
#include <string_view>

using namespace ovo::testkit;

// The bar

TestBar::~TestBar()
{
    DestroyWindow();
}

void TestBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    ++updates;
    CVantorToolBar::OnUpdateCmdUI(target, disableIfNoHandler);
}

LRESULT TestBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (seeing)
        seeing(message, wParam);
    return CVantorToolBar::WindowProc(message, wParam, lParam);
}

// The frame

std::ostream& operator<<(std::ostream& out, const Issued& issued)
{
    return out << issued.id << " from " << issued.from;
}

BarFrame::BarFrame()
{
    Create(nullptr, L"Bar frame", WS_OVERLAPPEDWINDOW, CRect(200, 150, 800, 550));
    LoadAccelTable(MAKEINTRESOURCEW(IDR_TEST_KEYS));
}

BOOL BarFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    static constexpr UINT kPanes[] = {ID_SEPARATOR};
    return m_status.Create(this) && m_status.SetIndicators(kPanes, 1);
}

BOOL BarFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const bool mine = id >= ID_PLAIN && id <= ID_RING && id != ID_NAMELESS + 1;
    if (!mine || (code != CN_COMMAND && code != static_cast<int>(CN_UPDATE_COMMAND_UI)))
        return CFrameWnd::OnCmdMsg(id, code, extra, info);
    if (info)
        return TRUE;
    if (code == CN_COMMAND) {
        if (onCommand)
            onCommand(id);
        return TRUE;
    }
    ++askedFor;
    static_cast<CCmdUI*>(extra)->Enable(!disabled.contains(id));
    if (onUpdate)
        onUpdate(id);
    return TRUE;
}

BOOL BarFrame::PreTranslateMessage(MSG* message)
{
    ++pretranslated;
    return CFrameWnd::PreTranslateMessage(message);
}

LRESULT BarFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && HIWORD(wParam) <= 1) // of a bar, or of an accelerator
        issued.push_back({LOWORD(wParam), reinterpret_cast<HWND>(lParam)});
    if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_KEYMENU) {
        ++menusAsked;
        return 0;
    }
    if (message == WM_ACTIVATEAPP && passesActivation)
        CVantorToolBar::ActivateApp(wParam != 0);
    if (message == WM_NOTIFY && onNotify)
        if (const LRESULT result = onNotify(reinterpret_cast<NMHDR*>(lParam)))
            return result;
    const LRESULT result = CFrameWnd::WindowProc(message, wParam, lParam);
    if (message == WM_SETMESSAGESTRING) {
        CString text;
        m_status.GetWindowText(text);
        prompts.emplace_back(text.GetString());
    }
    return result;
}

// The scene

const std::vector<int>& BarScene::lineCommands()
{
    static const std::vector<int> commands{ID_LINE, ID_CURVE, 0, ID_ARC, ID_NAMELESS};
    return commands;
}

BarScene::BarScene(DWORD side)
    : m_frame(new BarFrame)
    , m_frameWnd(m_frame->m_hWnd)
    , m_bar(std::make_unique<TestBar>())
{
    m_bar->CreateEx(m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | side | CBRS_TOOLTIPS);
    static constexpr UINT kButtons[] = {ID_PLAIN, ID_LINE, ID_BOX, ID_SEPARATOR, ID_OTHER};
    m_bar->LoadBitmap(IDR_SHAPES);
    m_bar->SetButtons(kButtons, 5);
    m_bar->AttachBar(Lines, 16, lineCommands(), std::vector<int>(5, IDR_SHAPES), {4, 5, 0, 6, 7},
                     {Quark(L"line"), Quark(L"curve"), Quark(L""), Quark(L"arc"), Quark(L"nameless")}, false,
                     false);
    m_bar->AttachBar(Shapes, IDR_SHAPES, 16, {0, 1, 3, 4}, false);
    m_frame->RecalcLayout();
    present(*m_frame);
}

BarScene::~BarScene()
{
    m_bar.reset();
    m_more.clear();
    if (frameLives())
        m_frame->DestroyWindow();
    EXPECT_TRUE(idle());
}

TestBar& BarScene::addBar()
{
    auto& bar = *m_more.emplace_back(std::make_unique<TestBar>());
    bar.CreateEx(m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButtons[] = {ID_ARC, ID_OTHER};
    bar.LoadBitmap(IDR_SHAPES);
    bar.SetButtons(kButtons, 2);
    bar.AttachBar(0, 16, lineCommands(), std::vector<int>(5, IDR_SHAPES), {4, 5, 0, 6, 7}, {}, false, false);
    m_frame->RecalcLayout();
    GuiThread::settle();
    return bar;
}

Spot BarScene::button(int index) const
{
    return Spot{[=, this] {
        CRect rect;
        m_bar->GetItemRect(index, &rect);
        m_bar->ClientToScreen(&rect);
        return rect.CenterPoint();
    }};
}

Spot BarScene::buttonOf(const TestBar& bar, int index) const
{
    return Spot{[&bar, index] {
        CRect rect;
        bar.GetItemRect(index, &rect);
        bar.ClientToScreen(&rect);
        return rect.CenterPoint();
    }};
}

Spot BarScene::entry(int index) const
{
    return Spot{[=] {
        CRect rect;
        flyout()->GetItemRect(index, &rect);
        flyout()->ClientToScreen(&rect);
        return rect.CenterPoint();
    }};
}

Spot BarScene::outside() const
{
    return Spot{[this] {
        CRect rect;
        m_frame->GetWindowRect(&rect);
        return rect.CenterPoint();
    }};
}

bool BarScene::idle()
{
    return !TestBar::ms_popupBar && !TestBar::ms_dragging && TestBar::ms_dragButton == -1;
}

int BarScene::hotEntry()
{
    int hot = -1;
    const int count = flyout() ? static_cast<int>(flyout()->SendMessage(TB_BUTTONCOUNT)) : 0;
    for (int i = 0; i < count; ++i)
        if (flyout()->GetButtonStyle(i) & TBBS_PRESSED) {
            EXPECT_EQ(hot, -1) << "two entries are pressed";
            hot = i;
        }
    return hot;
}

CRect BarScene::flyoutRect()
{
    CRect rect;
    flyout()->GetWindowRect(&rect);
    return rect;
}

int BarScene::command(int index) const
{
    TBBUTTON button;
    m_bar->_getButton(index, &button);
    return button.idCommand;
}

int BarScene::image(int index) const
{
    TBBUTTON button;
    m_bar->_getButton(index, &button);
    return button.iBitmap;
}

std::vector<UINT> BarScene::commands() const
{
    std::vector<UINT> ids;
    for (const Issued& issued : m_frame->issued)
        ids.push_back(issued.id);
    return ids;
}

std::wstring BarScene::prompt() const
{
    CString text;
    m_frame->status().GetWindowText(text);
    return text.GetString();
}

// Hands

CRect onScreen(const TestBar& bar, int index)
{
    CRect rect;
    bar.GetItemRect(index, &rect);
    bar.ClientToScreen(&rect);
    return rect;
}

void attachMany(BarScene& scene, int count, bool styleFlag)
{
    std::vector<int> commands;
    for (int i = 0; i < count; ++i)
        commands.push_back(1000 + i);
    scene.bar().AttachBar(BarScene::Lines, 16, commands, std::vector<int>(commands.size(), IDR_SHAPES),
                          std::vector<int>(commands.size(), 4), {}, styleFlag, false);
}

void pressAtOnce(TestBar& bar, int index)
{
    CRect rect;
    bar.GetItemRect(index, &rect);
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y));
}

void releaseAtOnce(TestBar& bar, CPoint screen)
{
    bar.ScreenToClient(&screen);
    const LPARAM where = MAKELPARAM(screen.x, screen.y);
    bar.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, where);
    bar.SendMessage(WM_LBUTTONUP, 0, where);
}

// Counting messages

namespace
{

MessageCounter* counting = nullptr;

} // namespace

MessageCounter::MessageCounter(const wchar_t* windowClass, UINT message, WPARAM wParam)
    : m_class(windowClass)
    , m_message(message)
    , m_wParam(wParam)
    , m_hook(::SetWindowsHookExW(WH_GETMESSAGE, &onMessage, nullptr, ::GetCurrentThreadId()))
{
    counting = this;
}

MessageCounter::~MessageCounter()
{
    ::UnhookWindowsHookEx(m_hook);
    counting = nullptr;
}

LRESULT CALLBACK MessageCounter::onMessage(int code, WPARAM removed, LPARAM message)
{
    const MSG& taken = *reinterpret_cast<const MSG*>(message);
    if (code == HC_ACTION && removed == PM_REMOVE && taken.message == counting->m_message &&
        taken.wParam == counting->m_wParam) {
        wchar_t name[64] = L"";
        ::GetClassNameW(taken.hwnd, name, 64);
        if (std::wstring_view(name) == counting->m_class)
            ++counting->m_count;
    }
    return ::CallNextHookEx(nullptr, code, removed, message);
}
