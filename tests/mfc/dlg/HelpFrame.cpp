#include "HelpFrame.h"

using namespace ovo::testkit;

BEGIN_MESSAGE_MAP(HelpFrame, TestFrame)
    ON_COMMAND(ID_HELP, &HelpFrame::OnHelp)
    ON_COMMAND(ID_CONTEXT_HELP, &HelpFrame::OnContextHelp)
    ON_COMMAND(ID_DEFAULT_HELP, &CFrameWnd::OnHelpFinder)
END_MESSAGE_MAP()

HelpFrame* HelpFrame::make()
{
    TestView::s_log.clear();
    TestView::s_taker = "frame";
    auto* frame = new HelpFrame;
    if (!frame->Create(nullptr, L"Frame with help", WS_OVERLAPPEDWINDOW, CRect(20, 20, 520, 420)))
        return nullptr;
    frame->m_nIDHelp = kHelpId;
    frame->view = frame->addView();
    frame->SetActiveView(frame->view, FALSE);
    frame->RecalcLayout();
    return frame;
}

BOOL HelpFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return (id != ID_HELP || handlesHelp) && TestFrame::OnCmdMsg(id, code, extra, info);
}

std::vector<unsigned long> asked()
{
    std::vector<unsigned long> contexts;
    for (const AskedHelp& help : TestApp::instance().helps())
        contexts.push_back(static_cast<unsigned long>(help.data));
    return contexts;
}

bool boxShows(const wchar_t* text)
{
    const HWND box = shownDialog();
    for (HWND child = box ? ::GetTopWindow(box) : nullptr; child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (textIn(*CWnd::FromHandle(child)) == text)
            return true;
    return false;
}
