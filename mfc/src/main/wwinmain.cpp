// The entry point of a windowed host: everything is done in the framework's DLL.
#include <afxwin.h>

extern "C" int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int show)
{
    return AfxWinMain(instance, previous, commandLine, show);
}
