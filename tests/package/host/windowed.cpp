#include <ovoui/ovoui.h>

class HostApp : public CWinApp
{
    BOOL InitInstance() override { return FALSE; }
    int ExitInstance() override { return OvoNonClientMetrics().cbSize == 500 ? 0 : 1; }
} theApp;
