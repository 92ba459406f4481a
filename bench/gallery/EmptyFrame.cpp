// An empty frame of the framework: what starting the gallery is measured against.
#include <afxwin.h>

class EmptyFrameApp : public CWinApp
{
    BOOL InitInstance() override
    {
        auto* const frame = new CFrameWnd; // deletes itself with its window
        if (!frame->Create(nullptr, L"An empty frame"))
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
        frame->UpdateWindow();
        return TRUE;
    }
} theApp;
