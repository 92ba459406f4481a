// Unloading: what the framework keeps for the whole process goes only when a program frees the DLL before its
// end.
#include <detail/modulestate.h>
#include <detail/threadstate.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_DETACH && !processEnds)
        afxdetail::releaseStates();
    return TRUE;
}
