#include "SheetScene.h"

using namespace ovo::testkit;

BEGIN_MESSAGE_MAP(TestPage, CPropertyPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &TestPage::OnQuery)
    ON_BN_CLICKED(ID_TEST_ACT, &TestPage::OnAct)
END_MESSAGE_MAP()

TestPage::TestPage(std::string name, Calls& calls, UINT templateId, UINT captionId)
    : CPropertyPage(templateId, captionId)
    , m_name(std::move(name))
    , m_calls(calls)
{
}

template <class Base>
LRESULT TestPage::told(const std::string& call, Base base)
{
    m_calls.push_back(m_name + " " + call);
    if (const auto deed = deeds.find(call); deed != deeds.end()) {
        const auto act = deed->second; // this object may go
        act();
    }
    const auto answer = answers.find(call);
    return answer == answers.end() ? base() : answer->second;
}

BOOL TestPage::OnInitDialog()
{
    return told("init", [this] { return CPropertyPage::OnInitDialog(); }) != 0;
}

BOOL TestPage::OnSetActive()
{
    return told("active", [this] { return CPropertyPage::OnSetActive(); }) != 0;
}

BOOL TestPage::OnKillActive()
{
    return told("left", [this] { return CPropertyPage::OnKillActive(); }) != 0;
}

BOOL TestPage::OnApply()
{
    return told("apply", [this] { return CPropertyPage::OnApply(); }) != 0;
}

void TestPage::OnOK()
{
    told("ok", [this] {
        CPropertyPage::OnOK();
        return 0;
    });
}

void TestPage::OnReset()
{
    told("reset", [this] {
        CPropertyPage::OnReset();
        return 0;
    });
}

void TestPage::OnCancel()
{
    told("cancel", [this] {
        CPropertyPage::OnCancel();
        return 0;
    });
}

BOOL TestPage::OnQueryCancel()
{
    return told("query cancel", [this] { return CPropertyPage::OnQueryCancel(); }) != 0;
}

LRESULT TestPage::OnWizardBack()
{
    return told("back", [this] { return CPropertyPage::OnWizardBack(); });
}

LRESULT TestPage::OnWizardNext()
{
    return told("next", [this] { return CPropertyPage::OnWizardNext(); });
}

BOOL TestPage::OnWizardFinish()
{
    return told("finish", [this] { return CPropertyPage::OnWizardFinish(); }) != 0;
}

void TestPage::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_NUMBER, number);
    DDV_MinMaxInt(exchange, number, 0, 100);
}

void TestPage::PostNcDestroy()
{
    CPropertyPage::PostNcDestroy();
    if (deletesItself)
        delete this;
}

LRESULT TestPage::OnQuery(WPARAM wParam, LPARAM lParam)
{
    m_calls.push_back(m_name + " query");
    return onQuery ? onQuery(wParam, lParam) : 0;
}

void TestPage::OnAct()
{
    if (onAct)
        onAct();
}

BEGIN_MESSAGE_MAP(TestSheet, CPropertySheet)
    ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

BOOL TestSheet::OnInitDialog()
{
    const BOOL result = CPropertySheet::OnInitDialog();
    if (onInit)
        onInit(*this);
    return result;
}

void TestSheet::PostNcDestroy()
{
    const auto act = onGone; // which may delete this object
    CPropertySheet::PostNcDestroy();
    if (act)
        act();
}

void TestSheet::OnShowWindow(BOOL show, UINT status)
{
    shown += show != FALSE;
    CPropertySheet::OnShowWindow(show, status);
}

SheetScene::SheetScene()
{
    owner.CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 40, 30, 700, 500, nullptr,
                   nullptr);
    sheet.AddPage(&general);
    sheet.AddPage(&colours);
    sheet.AddPage(&lists);
}

SheetScene::~SheetScene()
{
    if (sheet.m_hWnd)
        sheet.DestroyWindow();
    owner.DestroyWindow();
}

INT_PTR SheetScene::showUntilClosed(CPropertySheet& shown, Story story)
{
    bool closed = false;
    const auto closing = std::move(story).waitFor("the end of the sheet", [&] { return closed; }).start();
    const struct Closed
    {
        ~Closed() { flag = true; }
        bool& flag;
    } whenClosed{closed};
    return shown.DoModal();
}

INT_PTR SheetScene::showUntilClosed(CPropertySheet& shown)
{
    return showUntilClosed(shown, Robot().then([] {}));
}

Story SheetScene::whenShown()
{
    return Robot().waitFor("the sheet", [this] { return sheet.m_hWnd && shownDialog() == sheet.m_hWnd; });
}

Spot SheetScene::button(int id)
{
    return Spot{[this, id] { return ::GetDlgItem(sheet.m_hWnd, id); }};
}

Spot SheetScene::tab(int index)
{
    return Spot{[this, index] {
        CTabCtrl* const tabs = sheet.GetTabControl();
        CRect rect;
        tabs->GetItemRect(index, &rect);
        tabs->ClientToScreen(&rect);
        return rect.CenterPoint();
    }};
}

std::wstring SheetScene::textOf(int id) const
{
    CString text;
    sheet.GetDlgItemText(id, text);
    return std::wstring(text);
}

bool SheetScene::isEnabled(int id) const
{
    return ::IsWindowEnabled(::GetDlgItem(sheet.m_hWnd, id));
}

Calls SheetScene::taken()
{
    return std::exchange(calls, {});
}
